#include "controls/NumberedText.h"

#include <algorithm>
#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>
#include <utility>

#include "controls/MixedColour.h"
#include "platform/qt/QtText.h"

namespace penwright {
namespace {

constexpr std::size_t kLongestPiece = 4096;  // bytes: the time of a line grows faster than its length
constexpr int kNumberMargin = 8;

/// As much of a line as makes a piece: not between the bytes of a character.
std::string_view pieceOf(std::string_view line)
{
    if (line.size() <= kLongestPiece)
        return line;
    const auto goesOn = [line](std::size_t at) { return (static_cast<unsigned char>(line[at]) & 0xC0U) == 0x80U; };
    std::size_t length = kLongestPiece;
    while (length > kLongestPiece - 3 && goesOn(length))
        --length;
    return line.substr(0, length);
}

/// What the box would take for the end of a line, or of more, though it ends none.
void hideOtherEnds(QString &text)
{
    for (const char16_t end : {u'\u2029', u'\uFDD0', u'\uFDD1'})
        text.replace(QChar(end), QChar::ReplacementCharacter);
}

bool isModifier(int key)
{
    return key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock;
}

}  // namespace

NumberedText::NumberedText(QWidget *parent)
    : QPlainTextEdit(parent), m_more(new QTimer(this)), m_text(std::make_shared<const std::string>())
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setLineWrapMode(NoWrap);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &NumberedText::followScrolling);
    connect(this, &QPlainTextEdit::updateRequest, this, [this] { update(); });
    connect(m_more, &QTimer::timeout, this, &NumberedText::showMore);
}

void NumberedText::showText(std::string text)
{
    showText(std::make_shared<const std::string>(std::move(text)));
}

void NumberedText::showText(Text text)
{
    begin(std::move(text), true);
}

void NumberedText::showSentence(const std::string &sentence)
{
    begin(std::make_shared<const std::string>(sentence), false);
}

void NumberedText::begin(Text text, bool hasNumbers)
{
    m_more->stop();
    m_text = std::make_shared<const std::string>();
    m_shown = 0;
    m_isInLine = false;
    clear();  // scrolls, which asks for more
    m_text = std::move(text);
    m_hasNumbers = hasNumbers;
    m_continued.clear();
    appendPieces(kFirstLines);
    moveCursor(QTextCursor::Start);
}

/// Goes behind the next line or piece of one, and its line end.
std::string_view NumberedText::nextPiece()
{
    const std::string_view rest = std::string_view(*m_text).substr(m_shown);
    const std::size_t end = rest.substr(0, kLongestPiece + 1).find_first_of("\r\n");
    const std::string_view piece = pieceOf(rest.substr(0, end));
    const bool isAtEnd = piece.size() == end;
    const bool isTwo = isAtEnd && rest.substr(end, 2) == "\r\n";
    m_shown += piece.size() + (isAtEnd ? 1 : 0) + (isTwo ? 1 : 0);
    m_isInLine = !isAtEnd;
    return piece;
}

void NumberedText::appendPieces(int count)
{
    QString added;
    int block = m_shown == 0 ? 0 : blockCount();
    for (int piece = 0; piece < count && added.size() < kLongestAtOnce && !isWhole(); ++piece, ++block) {
        if (m_isInLine)
            m_continued.push_back(block);
        if (block > 0)
            added += '\n';
        added += toQString(nextPiece());
    }
    hideOtherEnds(added);
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(added);
    layOutNumbers();
}

void NumberedText::showRest(const std::function<void()> &goThere)
{
    m_goThere = goThere;
    m_more->start(0);
    showMore();
}

/// What is copied is whole.
void NumberedText::showAll()
{
    while (!isWhole())
        appendPieces(kMostAtOnce);
    m_goThere();
}

void NumberedText::showMore()
{
    if (!isWhole())
        appendPieces(kMostAtOnce);
    if (isWhole())
        m_more->stop();
    m_goThere();
}

void NumberedText::followScrolling()
{
    const QScrollBar &bar = *verticalScrollBar();
    // As much again each time, so that the end of the longest file is a few steps away.
    if (!isWhole() && bar.value() > bar.maximum() - bar.pageStep())
        appendPieces(std::clamp(blockCount(), kFirstLines, kMostAtOnce));
}

void NumberedText::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy) && m_more->isActive())
        showAll();
    if (!isModifier(event->key()) && event->key() != Qt::Key_Menu)
        m_more->stop();
    if (event->matches(QKeySequence::MoveToEndOfDocument))
        showRest([this] { moveCursor(QTextCursor::End); });
    else if (event->matches(QKeySequence::SelectEndOfDocument))
        showRest([this] { moveCursor(QTextCursor::End, QTextCursor::KeepAnchor); });
    else if (event->matches(QKeySequence::SelectAll))
        showRest([this] { selectAll(); });
    else
        QPlainTextEdit::keyPressEvent(event);
}

void NumberedText::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_more->stop();
    QPlainTextEdit::mousePressEvent(event);
}

void NumberedText::contextMenuEvent(QContextMenuEvent *event)
{
    if (m_more->isActive())  // its Copy is to take all that is selected
        showAll();
    QMenu *menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (const auto *all = menu->findChild<QAction *>("select-all"))
        connect(all, &QAction::triggered, this, [this] { showRest([this] { selectAll(); }); });
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
    // As wide as what is shown needs: counting the lines of 100 MB would hold the window up.
    const QString widest(std::to_string(numberOf(blockCount() - 1)).size(), '0');
    m_numberWidth = m_hasNumbers ? fontMetrics().horizontalAdvance(widest) + 2 * kNumberMargin : 0;
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
