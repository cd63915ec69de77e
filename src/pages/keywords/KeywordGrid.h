#pragma once

#include <QLineEdit>
#include <QPointer>

#include "grid/GridView.h"
#include "pages/keywords/KeywordRows.h"

class QAction;
class QMenu;

namespace penwright {

/// The grid of the keyword lines. Ctrl++ inserts an empty row before the current one, Ctrl+- deletes the selected rows,
/// Alt+Up and Alt+Down move them; the context menu, `mnuRows`, does the same. An open editor is committed first. The
/// list of keywords opens with F4, and with Alt+Down once a keyword is being edited.
class KeywordGrid : public GridView {
    Q_OBJECT

public:
    explicit KeywordGrid(QWidget *parent = nullptr);

    /// Serves `rows`, as setSource does.
    void setRows(std::shared_ptr<KeywordRows> rows, Dialogs &dialogs);

    /// Puts them behind the entries of `mnuRows`.
    void setStepActions(QAction *undo, QAction *redo) override;

    /// The current line as it would be stored, with what is typed in an open editor.
    KeywordRow shownLine() const;

signals:
    /// The rows, the current line or what is typed in it may have changed.
    void lineChanged();

protected:
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void changeEvent(QEvent *event) override;

protected slots:
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    /// The selected rows, both ends included.
    struct Span {
        int first, last;
    };

    QAction *addRowAction(const char *name, const QString &text, const QList<QKeySequence> &keys,
                          void (KeywordGrid::*act)());
    void insertRow();
    void deleteRows();
    void moveRowsUp();
    void moveRowsDown();
    void showMoved(GridEdit edit, Span rows);
    void headerMenu(const QPoint &place);

    Span selectedRows() const;
    void enableActions();
    void setKeyWidth();

    std::shared_ptr<KeywordRows> m_rows;
    QMenu *m_menu;
    QAction *m_delete;
    QAction *m_up;
    QAction *m_down;
    QPointer<QLineEdit> m_line;  ///< the text in the open editor
};

}  // namespace penwright
