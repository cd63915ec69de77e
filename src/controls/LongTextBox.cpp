#include "controls/LongTextBox.h"

#include <QMouseEvent>
#include <QResizeEvent>
#include <QTextBlock>
#include <utility>

#include "controls/EnterKey.h"

namespace penwright {
namespace {

constexpr qsizetype kOrdinaryLines = 10'000;
constexpr int kLinesOfABlock = 100;

/// A text box spends most of its time for each block of text, whatever its length, so that a long list becomes blocks
/// of many lines. What is read or copied from the box is the same.
void joinIntoBlocks(QString &lines)
{
    int line = 0;
    for (QChar &character : lines)
        if (character == '\n' && ++line % kLinesOfABlock != 0)
            character = QChar::LineSeparator;
}

int lineOf(const QTextCursor &cursor)
{
    const auto blocksLines = static_cast<int>(cursor.block().previous().text().count(QChar(QChar::LineSeparator))) + 1;
    const QString before = cursor.block().text().left(cursor.positionInBlock());
    return cursor.blockNumber() * blocksLines + static_cast<int>(before.count(QChar(QChar::LineSeparator)));
}

}  // namespace

LongTextBox::LongTextBox(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
}

void LongTextBox::showLines(QString lines)
{
    m_isLong = lines.count('\n') > kOrdinaryLines;
    setLineWrapMode(m_isLong ? NoWrap : WidgetWidth);
    if (m_isLong)
        joinIntoBlocks(lines);
    setPlainText(lines);
    countLines();
}

void LongTextBox::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_pressedLine = lineOf(cursorForPosition(event->position().toPoint()));
}

// Told at the release, which is not to come to what stands below a dialog that closes.
void LongTextBox::mouseReleaseEvent(QMouseEvent *event)
{
    QPlainTextEdit::mouseReleaseEvent(event);
    if (const auto line = std::exchange(m_pressedLine, std::nullopt))
        emit lineChosen(*line);
}

void LongTextBox::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(*event))
        emit lineChosen(lineOf(textCursor()));
    else
        QPlainTextEdit::keyPressEvent(event);
}

void LongTextBox::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    if (!m_isLong)
        return;
    countLines();
    QResizeEvent again(event->size(), event->size());  // sets the scroll bars by the true count
    QPlainTextEdit::resizeEvent(&again);
}

void LongTextBox::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    countLines();
}

// A block that has never been shown, and each block at a new size or font, counts as one line; scrolling needs them
// all.
void LongTextBox::countLines()
{
    if (!m_isLong)
        return;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        block.setLineCount(1 + static_cast<int>(block.text().count(QChar(QChar::LineSeparator))));
}

}  // namespace penwright
