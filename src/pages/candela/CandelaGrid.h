#pragma once

#include "grid/GridView.h"

namespace penwright {

class CandelaTable;
class LabelColumn;

/// The grid of the candela table. Its first column stays in view, is passed over by every key, and like the captions
/// names the angles. Columns are as narrow as they were built until a value does not fit, and never become narrower
/// again.
class CandelaGrid : public GridView {
    Q_OBJECT

public:
    explicit CandelaGrid(QWidget *parent = nullptr);

    /// Serves `table`, as setSource does.
    void setTable(std::shared_ptr<CandelaTable> table, Dialogs &dialogs);

    /// Shows the first rows.
    void scrollToFirstRow();

    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

signals:
    /// The pointer has come to another data cell.
    void pointerEntered(int row, int column);

    /// The pointer has left the grid.
    void pointerLeft();

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;

protected slots:
    void updateGeometries() override;

private:
    void showNewTable();
    void growColumns();
    double padding() const;

    std::shared_ptr<const CandelaTable> m_table;
    LabelColumn *m_labels = nullptr;
};

}  // namespace penwright
