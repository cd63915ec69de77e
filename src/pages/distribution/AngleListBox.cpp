#include "pages/distribution/AngleListBox.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <utility>

#include "pages/distribution/PredefinedAngles.h"
#include "platform/qt/ViewText.h"
#include "wizard/OneLine.h"

namespace penwright {
namespace {

/// Selects its whole text at the click that brings the focus, and at any click on the prompt: what is typed into the
/// middle of either would not be understood. A part can still be selected by dragging, or after a second click.
class AngleEdit : public QLineEdit {
public:
    AngleEdit() { setValidator(new OneLine(this)); }

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        QLineEdit::focusInEvent(event);
        m_isFirstClick = event->reason() == Qt::MouseFocusReason;
    }

    void mouseReleaseEvent(QMouseEvent *event) override
    {
        QLineEdit::mouseReleaseEvent(event);
        const bool isFirst = std::exchange(m_isFirstClick, false);
        if (event->button() == Qt::LeftButton && !hasSelectedText() && (isFirst || text() == fromView(kAnglePrompt)))
            selectAll();
    }

private:
    bool m_isFirstClick = false;
};

}  // namespace

AngleListBox::AngleListBox(QWidget *parent) : DropDownList(parent)
{
    constexpr int kMostEntries = 12;
    setMaxVisibleItems(kMostEntries);
    setLineEdit(new AngleEdit);
    setCompleter(nullptr);  // it would complete in the text and select what it added, and a selected part counts
    setInsertPolicy(NoInsert);
    // Enter, and leaving the field, would pick the entry that equals the text.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    disconnect(lineEdit(), &QLineEdit::returnPressed, this, nullptr);
    connect(lineEdit(), &QLineEdit::textChanged, this, &AngleListBox::changed);
    connect(this, &QComboBox::activated, this, &AngleListBox::tellPick);
    offer({});
}

void AngleListBox::offer(std::span<const std::string_view> entries)
{
    const QSignalBlocker blocker(this);
    clear();
    for (const std::string_view entry : entries)
        addItem(fromView(entry));
    setCurrentIndex(-1);
    replaceText(fromView(kAnglePrompt));
}

std::string AngleListBox::chosenText() const
{
    const QLineEdit &edit = *lineEdit();
    return (edit.hasSelectedText() ? edit.selectedText() : edit.text()).toStdString();
}

void AngleListBox::replaceText(const QString &text)
{
    const QSignalBlocker blocker(this);
    lineEdit()->setText(text);
    lineEdit()->selectAll();
}

void AngleListBox::showPopup()
{
    const QLineEdit &edit = *lineEdit();
    m_selection = {edit.text(), edit.selectionStart(), edit.selectionLength()};
    const int bar = count() > maxVisibleItems() ? view()->verticalScrollBar()->sizeHint().width() : 0;
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + bar + 2 * view()->frameWidth());
    DropDownList::showPopup();
}

void AngleListBox::tellPick()
{
    // The open list has taken the selection away.
    if (const Selection before = std::exchange(m_selection, {}); before.length > 0 && before.text == lineEdit()->text())
        lineEdit()->setSelection(before.start, before.length);
    emit changed();
}

void AngleListBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->ignore();  // the page presses Next; the toolkit would pick the entry that equals the text
    else
        DropDownList::keyPressEvent(event);
}

}  // namespace penwright
