#pragma once

#include <QAbstractTableModel>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "grid/GridBlock.h"
#include "grid/GridSource.h"

namespace penwright {

/// Serves a GridSource to the toolkit. Rows are counted from 1 in what is said here, from 0 in the toolkit's indexes.
/// A source that has ended counts as one without rows. Where rows can be appended, one empty row with the header "*"
/// stands behind the last one.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setSource(GridSource &source);

    /// Reads row count, captions and cells anew.
    void refresh();

    /// The text of a cell; "" in the row to append.
    std::string read(int row, int column) const;

    /// Takes a text for a cell and appends the rows up to it; nothing, in the row to append, where none would be kept.
    std::optional<MessageBox> take(int row, int column, std::string_view text);

    /// A refused text and the cell that it was meant for.
    struct Refusal {
        int row;
        int column;
        MessageBox box;
    };

    /// Empties the cells of a block that can be edited, both ends included; the first refusal.
    std::optional<Refusal> clearBlock(int firstRow, int firstColumn, int lastRow, int lastColumn);

    /// Takes a block of texts from a cell on, lines of any length: all of it or, where a text is refused, nothing.
    /// A read-only cell refuses any text but its own, under `title`.
    std::optional<Refusal> takeBlock(int row, int column, const GridLines &lines, const std::string &title);

    /// The rows that the source has, without the one to append.
    int sourceRows() const { return source() ? source()->rowCount() : 0; }
    bool canAppend() const { return source() && source()->canAppend(); }
    bool isReadOnly(int column) const { return source() && source()->isReadOnly(column); }
    std::vector<GridChoice> choices(int row, int column) const;

    /// The name of a cell, of its row and its column: "Row 2, Factor".
    QString cellName(int row, int column) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
    void taken(int row, int column);

    /// A text that an editor handed over was refused.
    void refused(int row, int column, const penwright::MessageBox &box);

private:
    int shownRows() const { return sourceRows() + (canAppend() ? 1 : 0); }
    void appendUpTo(int row);
    std::optional<MessageBox> checkPasted(int row, int column, std::string_view text, const std::string &title) const;
    void noteChanges(const std::vector<std::pair<int, int>> &cells);

    GridSource *source() const { return m_life.expired() ? nullptr : m_source; }

    GridSource *m_source = nullptr;
    std::weak_ptr<const void> m_life;
    int m_rows = 0;  ///< as the toolkit knows them: the source may grow before it is told
    int m_columns = 0;
};

}  // namespace penwright
