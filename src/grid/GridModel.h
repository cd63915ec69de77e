#pragma once

#include <QAbstractTableModel>

#include <memory>
#include <string>
#include <vector>

#include "grid/GridSource.h"
#include "grid/GridWalk.h"

namespace penwright {

/// Serves a GridSource to the toolkit, and changes it: every change of a grid goes through `apply`. Rows are counted
/// from 1 in what is said here, from 0 in the toolkit's indexes. Where rows can be appended, one empty row with the
/// header "*" stands behind the last one.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit GridModel(QObject *parent = nullptr);

    /// Serves `source`, which lives as long as it is served.
    void setSource(std::shared_ptr<GridSource> source);

    GridSource &source() const { return *m_source; }

    /// The one way to change the source: checks, writes, tells. False when the edit, or a part of it, was refused.
    bool apply(GridEdit edit);

    /// Whether an edit is taken, all of it or a part: one that changes nothing is, unless it is refused. Changes
    /// nothing.
    bool isTaken(GridEdit edit) const;

    /// Says that what has been changed so far was an act of its own, though no other event has come since.
    void endAct() { emit actEnded(); }

    /// Takes a change back that `apply` has made, or makes it again: each time it exchanges what stands with what the
    /// edit's content keeps. To be called in turns, on what stood when it was made last.
    void exchange(const GridEdit &edit);

    bool isReadOnly(int column) const { return m_source->isReadOnly(column); }
    std::vector<GridChoice> choices(const QModelIndex &cell) const;

    /// The toolkit's index of a cell; an invalid one where it is not there.
    QModelIndex indexOf(const GridCell &cell) const { return index(cell.row - 1, cell.column); }

    /// The name of a cell, of its row and its column: "Row 2, Factor".
    QString cellName(const QModelIndex &cell) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
    /// A change has been made by `apply`. Its content keeps what stood before, its texts are gone but for their places.
    void made(const std::shared_ptr<penwright::GridEdit> &edit);

    /// What changes from here on is another act of the user.
    void actEnded();

    /// A new text has been written into a cell.
    void cellWritten(int row, int column);

    /// Every value may have changed, in the rows and columns that there were.
    void valuesReplaced();

    /// A change has been made, or refused; what is said of it under the grid, "" for nothing.
    void hinted(const QString &hint);

    void refused(const penwright::RefusedEdit &refused);

private:
    int shownRows() const { return m_source->rowCount() + (m_source->canAppend() ? 1 : 0); }
    std::string read(int row, int column) const;
    QString spokenText(const QModelIndex &cell) const;
    void write(const GridEdit &edit);
    void writeTable(GridContent &content);
    void tellCells(const std::vector<GridText> &cells);
    void showRows();

    std::shared_ptr<GridSource> m_source;
    int m_rows = 0;  ///< as the toolkit knows them: the source changes before it is told
    int m_columns = 0;
};

/// The cell of an index of the toolkit, row 0 and column 0 of an invalid one.
GridCell cellOf(const QModelIndex &index);

}  // namespace penwright
