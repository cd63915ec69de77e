#pragma once

#include <QTreeWidget>

#include "hostbench/ToolRun.h"

namespace penwright {

/// The log of both directions of the link: time, tool, way and text, the newest line last. It keeps its latest 1,000.
class LinkLog : public QTreeWidget {
    Q_OBJECT

public:
    explicit LinkLog(QWidget *parent = nullptr);

    void append(const QString &tool, ToolRun::Line way, const QString &text);

    /// The newest line as one text, "" while there is none.
    QString newestLine() const;
};

}  // namespace penwright
