#include "pages/distribution/AngleListBox.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <utility>

#include "controls/EnterKey.h"
#include "controls/OneLine.h"
#include "pages/distribution/PredefinedAngles.h"
#include "platform/qt/QtText.h"

namespace penwright {

/// Selects its whole text at the click that brings the focus, and at any click on the prompt: what is typed into the
/// middle of either would not be understood. A part can still be selected by dragging, or after a second click.
/// Keeps in mind whether what is typed follows a lone minus sign, in whose place a 1 was put.
class AngleListBox::Edit : public QLineEdit {
public:
    explicit Edit(AngleListBox &box) : m_box(box) { setValidator(new OneLine(this)); }

    QString signBefore() const { return m_followsSign ? kSign : ""; }
    void keepSign() { followSign(m_followsSign || text() == kSign); }
    void forgetSign() { followSign(false); }

protected:
    void focusOutEvent(QFocusEvent *event) override
    {
        QLineEdit::focusOutEvent(event);
        forgetSign();
    }

    void focusInEvent(QFocusEvent *event) override
    {
        QLineEdit::focusInEvent(event);
        forgetSign();
        m_isFirstClick = event->reason() == Qt::MouseFocusReason;
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        const QString typed = event->text();
        if (selectedText() != text() || typed.size() != 1 || !(typed[0].isDigit() || typed[0] == '.'))
            forgetSign();
        QLineEdit::keyPressEvent(event);
    }

    void mouseReleaseEvent(QMouseEvent *event) override
    {
        forgetSign();
        QLineEdit::mouseReleaseEvent(event);
        const bool isFirst = std::exchange(m_isFirstClick, false);
        if (event->button() == Qt::LeftButton && !hasSelectedText() && (isFirst || text() == toQString(kAnglePrompt)))
            selectAll();
    }

private:
    static constexpr const char *kSign = "-";

    void followSign(bool follows)
    {
        if (std::exchange(m_followsSign, follows) != follows)
            emit m_box.signPending(follows);
    }

    AngleListBox &m_box;
    bool m_isFirstClick = false;
    bool m_followsSign = false;
};

AngleListBox::AngleListBox(QWidget *parent) : DropDownList(parent), m_edit(new Edit(*this))
{
    constexpr int kMostEntries = 12;
    setMaxVisibleItems(kMostEntries);
    setLineEdit(m_edit);
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
        addItem(toQString(entry));
    setCurrentIndex(-1);
    replaceText(toQString(kAnglePrompt));
}

void AngleListBox::setEntries(std::span<const std::string_view> entries)
{
    m_edit->forgetSign();
    const QString text = m_edit->text();
    offer(entries);
    const QSignalBlocker blocker(this);
    setCurrentIndex(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    replaceText(text);
}

std::string AngleListBox::chosenText() const
{
    return (m_edit->hasSelectedText() ? m_edit->selectedText() : m_edit->signBefore() + m_edit->text()).toStdString();
}

void AngleListBox::replaceText(const QString &text)
{
    m_edit->keepSign();
    const QSignalBlocker blocker(this);
    m_edit->setText(text);
    m_edit->selectAll();
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
    m_edit->forgetSign();
    // The open list has taken the selection away.
    if (const Selection before = std::exchange(m_selection, {}); before.length > 0 && before.text == m_edit->text())
        m_edit->setSelection(before.start, before.length);
    else
        m_edit->selectAll();
    emit changed();
}

void AngleListBox::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(*event))
        event->ignore();  // the page presses Next; the toolkit would pick the entry that equals the text
    else
        DropDownList::keyPressEvent(event);
}

}  // namespace penwright
