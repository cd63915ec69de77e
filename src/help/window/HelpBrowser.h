#pragma once

#include <QTextBrowser>

#include "help/HelpFile.h"

namespace penwright {

/// One page of a help file, on white or in the colours of a dark desktop, with a caret to read it by. Pages, pictures
/// and style sheets come from the help file alone: nothing is read from disk or net.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget *parent = nullptr);

    /// The file that the pages are from now on taken from; it must outlive their being shown. Empties page and history.
    void setFile(HelpFile *file);

    /// Shows a page and scrolls to the place. One that cannot be read says so where it would stand.
    void showPlace(const HelpPlace &place);

    /// The page shown; its topic is empty when none is.
    const HelpPlace &place() const { return m_place; }

    /// Marks all places where one of the words stands and scrolls to the first place of all of them in a row, else to
    /// the first mark; no words clear the marks.
    void markWords(const QStringList &words);

    /// Scrolls to the mark behind the one reached last, from the last one on to the first. False without marks.
    bool showNextMark();

    /// Takes over the colours of the palette.
    void followPalette();

    /// Makes letters larger or smaller by so many steps, within bounds.
    void zoomBy(int steps);

signals:
    void placeChanged();

    /// A link that leads out of the help file, to the web or to a mail address.
    void webLinkClicked(const QUrl &url);

protected:
    QVariant loadResource(int type, const QUrl &name) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void scrollToMark(const QTextCursor &mark);
    void onSource(const QUrl &url);
    void follow(const QUrl &url);
    std::optional<HelpPlace> placeOf(const QUrl &url) const;
    QString pageText(const QUrl &url);
    QVariant picture(const QUrl &url);

    HelpFile *m_file = nullptr;
    HelpPlace m_place;
    QUrl m_loaded;  ///< the page that pictures and style sheets are asked for
    qint64 m_pixels = 0;
    int m_zoom = 0;
    bool m_isFirstPage = true;  ///< of the file
};

}  // namespace penwright
