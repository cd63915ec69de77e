#pragma once

#include <QAbstractItemView>
#include <QPointer>

class QLineEdit;

namespace penwright {

class GridDelegate;
class GridRefusal;

/// The open editor of a grid's cell, and how it ends: committed, or dropped with what was typed. It commits where the
/// focus goes elsewhere in its window, and stays open while another window has the focus.
class GridCellEditor : public QObject {
    Q_OBJECT

public:
    /// All three outlive it.
    GridCellEditor(QAbstractItemView &view, GridDelegate &delegate, GridRefusal &refusal);

    bool isOpen() const { return !m_editor.isNull(); }
    bool is(const QObject *widget) const { return widget && widget == m_editor; }

    /// The text in the open editor.
    QLineEdit *line() const;

    /// An editor has been opened; F2 and a double click edit the text, anything else replaces it.
    void begin(QWidget *editor, QAbstractItemView::EditTrigger trigger);

    /// The editor is closing: what moves the focus from here on commits nothing.
    void forget() { m_editor.clear(); }

    /// Hands the text to the model. An editor left unchanged is not a new value, nor is a text edited back to what it
    /// was. False when the text was refused, now
    /// or at the focus change just before; the message follows.
    bool commit();

    /// Commits, without a message for a text that is refused.
    void commitIfValid();

    /// Closes the editor; its text is lost.
    void drop();

    /// Opens the list of an editor that has one.
    void openList();

    /// Whether a press of the mouse took the focus from the editor that was open last; told once.
    bool wasLeftByMouse();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void endAfterFocusChange(const QWidget *now);

    QAbstractItemView &m_view;
    GridDelegate &m_delegate;
    GridRefusal &m_refusal;
    QPointer<QWidget> m_editor;
    Qt::FocusReason m_leftBy = Qt::OtherFocusReason;
};

}  // namespace penwright
