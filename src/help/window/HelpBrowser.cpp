#include "help/window/HelpBrowser.h"

#include <QApplication>
#include <QBuffer>
#include <QImageReader>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>
#include <utility>

#include "help/window/HelpColours.h"
#include "help/window/HelpPageLimits.h"
#include "platform/RunTimeError.h"

namespace penwright {
namespace {

constexpr int kLargestPicture = 4096;             ///< pixels in either direction
constexpr qint64 kMostPixels = qint64(64) << 20;  ///< of all pictures of a page
constexpr int kMostMarks = 1000;
constexpr int kSmallestZoom = -4;
constexpr int kLargestZoom = 20;
constexpr double kTextSize = 12;  ///< points, of what a page gives no size

constexpr const char *kScheme = "help";

/// The toolkit takes a style sheet only where its type is told, which pages need not do.
QString withStyleTypes(QString html)
{
    // Bounded, so that a page full of half links takes no time to speak of.
    static const QRegularExpression untyped("<link\\b(?=[^>]{0,300}stylesheet)(?![^>]{0,300}text/css)",
                                            QRegularExpression::CaseInsensitiveOption);
    return html.replace(untyped, "<link type=\"text/css\"");
}

QUrl urlOf(const HelpPlace &place)
{
    QUrl url;
    url.setScheme(kScheme);
    url.setPath("/" + QString::fromStdString(place.topic), QUrl::DecodedMode);
    if (!place.anchor.empty())
        url.setFragment(QString::fromStdString(place.anchor), QUrl::DecodedMode);
    return url;
}

/// What a link says of a place within the file; empty for a link of a kind that never leads there.
std::string linkOf(const QUrl &url)
{
    for (const char *scheme : {kScheme, "ms-its", "its", "mk"})
        if (url.scheme() == scheme) {
            const QString anchor = url.hasFragment() ? "#" + url.fragment(QUrl::FullyEncoded) : QString();
            return (url.path(QUrl::FullyEncoded) + anchor).toStdString();
        }
    return {};
}

/// Where an anchor stands; null when no part of the page has the name.
QTextCursor anchorOf(const QTextDocument &document, const QString &name)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (part.fragment().charFormat().anchorNames().contains(name)) {
                QTextCursor cursor(block);
                cursor.setPosition(part.fragment().position());
                return cursor;
            }
    return {};
}

bool isWebLink(const QUrl &url)
{
    return url.scheme() == "http" || url.scheme() == "https" || url.scheme() == "mailto";
}

/// A picture that shows nothing: without one the toolkit would look for the file on disk.
QImage noPicture()
{
    QImage image(1, 1, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    return image;
}

}  // namespace

HelpBrowser::HelpBrowser(QWidget *parent) : QTextBrowser(parent)
{
    setOpenLinks(false);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);  // a caret reads by the arrows
    setPalette(helpPalette(QApplication::palette()));
    QFont larger = font();
    larger.setPointSizeF(std::max(kTextSize, larger.pointSizeF() * 1.15));
    setFont(larger);
    document()->setDocumentMargin(20);
    connect(this, &QTextBrowser::sourceChanged, this, &HelpBrowser::onSource);
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::follow);
}

void HelpBrowser::setFile(HelpFile *file)
{
    m_file = file;
    m_place = {};
    m_loaded.clear();
    m_isFirstPage = true;
    clear();
}

void HelpBrowser::showPlace(const HelpPlace &place)
{
    setSource(urlOf(place), QTextDocument::HtmlResource);
    // What the file before was left at is no page of this one.
    if (std::exchange(m_isFirstPage, false))
        clearHistory();
}

void HelpBrowser::onSource(const QUrl &url)
{
    m_place = placeOf(url).value_or(HelpPlace());
    // Who reads by the caret begins there; what is at the top may be a line above it, to which the view would go.
    if (const QTextCursor anchor = anchorOf(*document(), QString::fromStdString(m_place.anchor)); !anchor.isNull())
        setTextCursor(anchor);
    emit placeChanged();
}

void HelpBrowser::markWords(const QStringList &words)
{
    QList<ExtraSelection> marks;
    QTextCursor first;
    for (const QString &word : words)
        for (QTextCursor hit = document()->find(word); !hit.isNull() && marks.size() < kMostMarks;
             hit = document()->find(word, hit)) {
            ExtraSelection mark;
            mark.cursor = hit;
            mark.format.setBackground(QColor(0xFF, 0xE0, 0x82));
            mark.format.setForeground(Qt::black);
            marks << mark;
            if (first.isNull() || hit.selectionStart() < first.selectionStart())
                first = hit;
        }
    setExtraSelections(marks);
    if (const QTextCursor phrase = document()->find(words.join(' ')); !words.isEmpty() && !phrase.isNull())
        first = phrase;
    if (!first.isNull())
        scrollToMark(first);
}

bool HelpBrowser::showNextMark()
{
    QTextCursor next;
    QTextCursor first;
    for (const ExtraSelection &mark : extraSelections()) {
        const int start = mark.cursor.selectionStart();
        if (start > textCursor().position() && (next.isNull() || start < next.selectionStart()))
            next = mark.cursor;
        if (first.isNull() || start < first.selectionStart())
            first = mark.cursor;
    }
    if (first.isNull())
        return false;
    scrollToMark(next.isNull() ? first : next);
    return true;
}

// In the upper third, so that what the words are about can be read below them.
void HelpBrowser::scrollToMark(const QTextCursor &mark)
{
    QTextCursor place = mark;
    place.setPosition(mark.selectionStart());
    setTextCursor(place);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect().top() - viewport()->height() / 3);
}

void HelpBrowser::zoomBy(int steps)
{
    const int zoom = std::clamp(m_zoom + steps, kSmallestZoom, kLargestZoom);
    zoomIn(zoom - m_zoom);
    m_zoom = zoom;
}

void HelpBrowser::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier))
        return QTextBrowser::wheelEvent(event);
    const int turned = event->angleDelta().y();
    zoomBy(turned > 0 ? 1 : turned < 0 ? -1 : 0);
    event->accept();
}

void HelpBrowser::followPalette()
{
    setPalette(helpPalette(QApplication::palette()));
    if (m_place.topic.empty())
        return;
    const int top = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(top);
}

void HelpBrowser::follow(const QUrl &url)
{
    if (isWebLink(url))
        emit webLinkClicked(url);
    else if (const auto place = placeOf(url))
        showPlace(*place);
}

std::optional<HelpPlace> HelpBrowser::placeOf(const QUrl &url) const
{
    return m_file ? m_file->find(linkOf(url)) : std::nullopt;
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name)
{
    if (type == QTextDocument::HtmlResource)
        return pageText(name);
    const QUrl url = name.isRelative() ? m_loaded.resolved(name) : name;
    if (type == QTextDocument::ImageResource)
        return picture(url);
    const std::string link = linkOf(url);
    const auto bytes = m_file && !link.empty() ? m_file->object(link) : std::nullopt;
    // An empty variant would send the toolkit to the disk.
    if (!bytes)
        return QByteArray();
    return withColoursOf(QApplication::palette(), QString::fromStdString(m_file->decoded(*bytes)));
}

QString HelpBrowser::pageText(const QUrl &url)
{
    m_loaded = url;
    m_pixels = 0;
    const auto place = placeOf(url);
    try {
        const std::string text = place ? m_file->page(place->topic) : std::string();
        if (!isShowable(text))
            return "<p>This page is too large to be shown.</p>";
        return withColoursOf(QApplication::palette(), withStyleTypes(QString::fromStdString(text)));
    } catch (const RunTimeError &error) {
        return "<p>" + QString::fromStdString(error.description()).toHtmlEscaped() + "</p>";
    }
}

QVariant HelpBrowser::picture(const QUrl &url)
{
    const std::string link = linkOf(url);
    const auto bytes = m_file && !link.empty() ? m_file->object(link) : std::nullopt;
    if (!bytes)
        return noPicture();
    QByteArray encoded = QByteArray::fromRawData(bytes->data(), static_cast<qsizetype>(bytes->size()));
    QBuffer buffer(&encoded);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    const qint64 pixels = qint64(size.width()) * size.height();
    if (!size.isValid() || size.width() > kLargestPicture || size.height() > kLargestPicture ||
        m_pixels + pixels > kMostPixels)
        return noPicture();
    const QImage image = reader.read();
    m_pixels += image.isNull() ? 0 : pixels;
    return image.isNull() ? noPicture() : image;
}

}  // namespace penwright
