#include "controls/NumberedText.h"

#include <algorithm>
#include <limits>
#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <utility>

#include "controls/MixedColour.h"
#include "platform/qt/QtText.h"

namespace penwright {
namespace {

constexpr qsizetype kLongestPiece = 4096;  // the time of a line grows faster than its length
constexpr int kNumberMargin = 8;

int linesOf(const std::string &text)
{
    const auto ends = std::count(text.begin(), text.end(), '\n');
    return static_cast<int>(ends) + (text.empty() || text.back() != '\n' ? 1 : 0);
}

/// How much of the text makes a piece: not between the two halves of a character.
qsizetype pieceLength(const QString &line, qsizetype from)
{
    const qsizetype length = std::min(kLongestPiece, line.size() - from);
    const bool isSplit = from + length < line.size() && line[from + length].isLowSurrogate();
    return isSplit ? length - 1 : length;
}

}  // namespace

NumberedText::NumberedText(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setLineWrapMode(NoWrap);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &NumberedText::followScrolling);
    connect(this, &QPlainTextEdit::updateRequest, this, [this] { update(); });
}

void NumberedText::showText(std::string text)
{
    const int lines = linesOf(text);
    begin(std::move(text), lines);
}

void NumberedText::showSentence(const std::string &sentence)
{
    begin(sentence, 0);
}

void NumberedText::begin(std::string text, int lines)
{
    m_text.clear();
    m_shown = 0;
    clear();  // scrolls, which asks for more
    m_text = std::move(text);
    m_lines = lines;
    m_continued.clear();
    layOutNumbers();
    appendLines(kFirstLines);
    moveCursor(QTextCursor::Start);
}

void NumberedText::appendLines(int count)
{
    QString added;
    int block = m_shown == 0 ? 0 : blockCount();
    for (int line = 0; line < count && m_shown < m_text.size(); ++line) {
        const std::size_t end = std::min(m_text.find('\n', m_shown), m_text.size());
        const bool isReturned = end > m_shown && m_text[end - 1] == '\r';
        const QString whole = toQString(std::string_view(m_text).substr(m_shown, end - m_shown - (isReturned ? 1 : 0)));
        qsizetype from = 0;
        do {
            const qsizetype length = pieceLength(whole, from);
            if (from > 0)
                m_continued.push_back(block);
            if (block++ > 0)
                added += '\n';
            added += QStringView(whole).mid(from, length);
            from += length;
        } while (from < whole.size());
        m_shown = std::min(end + 1, m_text.size());
    }
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(added);
}

void NumberedText::showRest()
{
    if (m_shown < m_text.size())
        appendLines(std::numeric_limits<int>::max());
}

void NumberedText::followScrolling()
{
    const QScrollBar &bar = *verticalScrollBar();
    // As much again each time, so that the end of the longest file is a few steps away.
    if (m_shown < m_text.size() && bar.value() > bar.maximum() - bar.pageStep())
        appendLines(std::max(kFirstLines, blockCount()));
}

void NumberedText::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::MoveToEndOfDocument) || event->matches(QKeySequence::SelectEndOfDocument) ||
        event->matches(QKeySequence::SelectAll))
        showRest();
    QPlainTextEdit::keyPressEvent(event);
}

void NumberedText::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu *menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (const auto *all = menu->findChild<QAction *>("select-all"))
        connect(all, &QAction::triggered, this, [this] {
            showRest();
            selectAll();
        });
    menu->popup(event->globalPos());
}

void NumberedText::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        layOutNumbers();
}

void NumberedText::layOutNumbers()
{
    const QString widest(std::to_string(m_lines).size(), '0');
    m_numberWidth = m_lines == 0 ? 0 : fontMetrics().horizontalAdvance(widest) + 2 * kNumberMargin;
    setViewportMargins(m_numberWidth, 0, 0, 0);
}

int NumberedText::numberOf(int block) const
{
    const auto next = std::upper_bound(m_continued.begin(), m_continued.end(), block);
    return block + 1 - static_cast<int>(next - m_continued.begin());
}

// In the margin, not in a widget of its own, which a screen reader would come to.
bool NumberedText::event(QEvent *event)
{
    const bool isDone = QPlainTextEdit::event(event);
    if (event->type() == QEvent::Paint && m_numberWidth > 0)
        paintNumbers();
    return isDone;
}

void NumberedText::paintNumbers()
{
    QPainter painter(this);
    const QRect margin(viewport()->x() - m_numberWidth, viewport()->y(), m_numberWidth, viewport()->height());
    painter.fillRect(margin, mixedColour(palette().color(QPalette::Text), palette().color(QPalette::Base), 0.05F));
    painter.setClipRect(margin);
    painter.setFont(font());
    painter.setPen(quietText(palette()));
    QTextBlock block = firstVisibleBlock();
    for (QRectF line; block.isValid() && line.top() <= viewport()->height(); block = block.next()) {
        line = blockBoundingGeometry(block).translated(contentOffset());
        const bool isContinued = std::binary_search(m_continued.begin(), m_continued.end(), block.blockNumber());
        const QRectF place(margin.x(), margin.y() + line.top(), margin.width() - kNumberMargin, line.height());
        if (!isContinued)
            painter.drawText(place, Qt::AlignRight | Qt::AlignTop, QString::number(numberOf(block.blockNumber())));
    }
}

}  // namespace penwright
