#pragma once

#include "grid/GridView.h"

namespace penwright {

class CandelaTable;
class LabelColumn;

/// The grid of the candela table. Its first column stays in view, is passed over by every key, and like the captions
/// names the angles. Columns are as narrow as they were built until a value does not fit, and never become narrower
/// again. Copy and paste are of the whole table.
class CandelaGrid : public GridView {
    Q_OBJECT

public:
    explicit CandelaGrid(QWidget *parent = nullptr);

    /// Serves `table`, as setSource does.
    void setTable(CandelaTable &table, Dialogs &dialogs);

    /// Reads the table anew after a build and makes its first cell the current one, with the focus.
    void rebuild();

    /// Shows the first rows.
    void scrollToFirstRow();

    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

signals:
    /// The clipboard's table has been taken, or the part of it before a text that is no number.
    void pasted();

    /// The pointer has come to another data cell.
    void pointerEntered(int row, int column);

    /// The pointer has left the grid.
    void pointerLeft();

protected:
    void copy() override;
    void paste(std::string_view text) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;

protected slots:
    void updateGeometries() override;

private:
    void growColumns();
    double padding() const;

    CandelaTable *m_table = nullptr;
    LabelColumn *m_labels = nullptr;
};

}  // namespace penwright
