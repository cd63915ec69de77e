#pragma once

#include <QObject>

#include <memory>
#include <string>
#include <variant>

#include "grid/TableText.h"

namespace penwright {

class SideRun;
class TextFiles;

/// A text that is shared with the thread that reads it.
using SharedText = std::shared_ptr<const std::string>;

/// A table that was read, or why there is none: as large as the text, so it is not copied.
using SharedTable = std::shared_ptr<const std::variant<TableContent, TableFault>>;

/// Reads texts and tables without holding up the window: what takes longer than a blink runs on a thread of its own,
/// and what was asked for last is all that is told.
class TableRun : public QObject {
    Q_OBJECT

public:
    /// The longest file that is read, in bytes.
    static constexpr std::size_t kMostBytes = 100'000'000;

    explicit TableRun(QObject *parent);

    /// Reads a file and makes UTF-8 of it; `files` outlives the thread.
    void readFile(TextFiles &files, const std::string &path);

    /// Reads the table of a text.
    void readTable(const SharedText &text, const TableReading &reading);

    /// Nothing more is told of what runs.
    void stop();

signals:
    /// How much is done, 0 to 1; told while something runs for longer than a moment.
    void progressed(double part);

    /// The file's text, or its error, an errno.
    void fileRead(const penwright::SharedText &text, int error);

    void tableRead(const penwright::SharedTable &table);

private:
    SideRun *m_run;
};

}  // namespace penwright
