// What a page shows comes from the help file alone.
#include "help/window/HelpBrowser.h"

#include <map>
#include <QBuffer>
#include <QDir>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextLayout>
#include <QWheelEvent>

#include "help/HelpTest.h"
#include "support/TempFolder.h"

namespace penwright::test {
namespace {

std::string pictureOf(QColor colour, int width = 40, int height = 30)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data().toStdString();
}

std::string imageTag(const std::string &source)
{
    return "<p><img src=\"" + source + "\"></p>";
}

class Browser : public testing::Test {
protected:
    void show(const std::vector<ChmObject> &objects, const std::string &topic)
    {
        m_file = helpOf(objects);
        browser.setFile(m_file.get());
        browser.resize(400, 300);
        browser.showPlace({topic, ""});
        browser.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&browser, 60'000));
    }

    bool shows(QColor colour)
    {
        const QImage image = browser.viewport()->grab().toImage();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) == colour)
                    return true;
        return false;
    }

    HelpBrowser browser;

private:
    std::unique_ptr<HelpFile> m_file;
};

TEST_F(Browser, picturesAndStylesAreThoseOfTheFile)
{
    show({{"/a/Page.html", "<html><head><link rel=stylesheet href=\"../Style.css\"></head><body><h1>x</h1>" +
                               imageTag("../pictures\\Red.PNG") + imageTag("ms-its:x.chm::/pictures/blue.png") +
                               "</body></html>"},
          {"/style.css", "h1 { color: #00aa00; }"},
          {"/pictures/red.png", pictureOf(Qt::red)},
          {"/pictures/blue.png", pictureOf(Qt::blue)}},
         "a/Page.html");
    EXPECT_TRUE(shows(Qt::red));
    EXPECT_TRUE(shows(Qt::blue));
    QTextCursor cursor(browser.document());
    cursor.movePosition(QTextCursor::NextCharacter);
    EXPECT_EQ(cursor.charFormat().foreground().color(), QColor(0x00AA00));
}

// The same names lead to real files beside: from the current folder, by absolute paths and by file links.
TEST_F(Browser, nothingIsReadFromTheDisk)
{
    const TempFolder folder;
    const std::string path = folder.file("there.png");
    std::ofstream(path, std::ios::binary) << pictureOf(Qt::red);
    std::ofstream(folder.file("there.css")) << "p { color: #ff0000; background-color: #ff0000; }";
    std::ofstream(folder.file("there.html")) << "from the disk";
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(QString::fromStdString(folder.path().string())));

    std::string styles;
    std::string body = "<p>text</p>";
    for (const std::string &prefix :
         {std::string(), folder.file(""), "file://" + folder.file(""), "../../../../.." + folder.file(""),
          "FILE:" + folder.file(""), "qrc:" + folder.file(""), "help:" + folder.file("")}) {
        styles += "<link rel=stylesheet href=\"" + prefix + "there.css\">";
        body += imageTag(prefix + "there.png") + "<table background=\"" + prefix +
                "there.png\"><tr><td>x</td></tr></table>" + "<p><a href=\"" + prefix + "there.html\">link</a></p>";
    }
    body += imageTag("data:image/png;base64," + QByteArray::fromStdString(pictureOf(Qt::red)).toBase64().toStdString());
    show({{"/page.html", "<html><head>" + styles +
                             "<style>@import url(there.css); h1 { background-image: "
                             "url(there.png) }</style></head><body>" +
                             body + "</body></html>"}},
         "page.html");
    browser.resize(500, 1500);
    EXPECT_FALSE(shows(Qt::red));
    for (const char *link : {"there.html", "/there.html", "file:there.html"})
        emit browser.anchorClicked(browser.source().resolved(QUrl(link)));
    emit browser.anchorClicked(QUrl::fromLocalFile(QString::fromStdString(folder.file("there.html"))));
    EXPECT_EQ(browser.place(), (HelpPlace{"page.html", ""}));
    QDir::setCurrent(before);
}

TEST_F(Browser, picturesThatAreTooLargeOrBrokenAreLeftOut)
{
    const std::string cut = pictureOf(Qt::red).substr(0, 60);
    show({{"/page.html", imageTag("wide.png") + imageTag("cut.png") + imageTag("text.png") + imageTag("good.png")},
          {"/wide.png", pictureOf(Qt::red, 4097, 2)},
          {"/cut.png", cut},
          {"/text.png", "no picture"},
          {"/good.png", pictureOf(Qt::blue)}},
         "page.html");
    EXPECT_FALSE(shows(Qt::red));
    EXPECT_TRUE(shows(Qt::blue));
}

TEST_F(Browser, aPageThatCannotBeShownSaysSo)
{
    std::string tables;
    for (int i = 0; i < 5000; ++i)
        tables += "<table><tr><td>";
    show({{"/deep.html", tables},
          {"/large.html", std::string((1U << 20) + 1, ' ')},
          {"/huge.html", std::string((16U << 20) + 1, 'x')}},
         "deep.html");
    EXPECT_EQ(browser.toPlainText(), "This page is too large to be shown.");
    browser.showPlace({"large.html", ""});
    EXPECT_EQ(browser.toPlainText(), "This page is too large to be shown.");
    browser.showPlace({"huge.html", ""});
    EXPECT_EQ(browser.toPlainText(),
              "A page of the help file cannot be read: huge.html in /help/x.chm: it is too large.");
}

TEST_F(Browser, followsADarkDesktopAndItsPicturesStay)
{
    const QPalette before = QApplication::palette();
    const std::string head = "<html><head><link rel=stylesheet href=\"own.css\"></head><body bgcolor=\"white\">";
    show({{"/page.html", head + "<p>text</p><h1>head</h1>" + imageTag("red.png") + "</body></html>"},
          {"/own.css", "h1 { background-color: #e4eaf2; } p { color: black; }"},
          {"/red.png", pictureOf(Qt::red)}},
         "page.html");
    EXPECT_TRUE(shows(Qt::white));
    EXPECT_TRUE(shows(QColor(0xe4, 0xea, 0xf2)));
    QPalette dark(QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Base, Qt::black);
    QApplication::setPalette(dark);
    browser.followPalette();
    EXPECT_TRUE(shows(Qt::black));
    EXPECT_FALSE(shows(QColor(0xe4, 0xea, 0xf2)));
    EXPECT_TRUE(shows(Qt::red));
    const QColor ink = browser.document()->firstBlock().begin().fragment().charFormat().foreground().color();
    EXPECT_EQ(ink, QColor(Qt::white));
    QApplication::setPalette(before);
    browser.followPalette();
    EXPECT_TRUE(shows(Qt::white));
}

TEST_F(Browser, isReadByTheArrows)
{
    show({{"/page.html",
           "<p>First line.</p><p>Second line.</p><h2><a name=\"low\">Low</a></h2>" + std::string(9000, 'x')}},
         "page.html");
    browser.setFocus();
    const auto line = [this] { return browser.textCursor().block().text().toStdString(); };
    EXPECT_EQ(line(), "First line.");
    QTest::keyClick(&browser, Qt::Key_Down);
    EXPECT_EQ(line(), "Second line.");
    QTest::keyClick(&browser, Qt::Key_Right);
    EXPECT_EQ(browser.textCursor().positionInBlock(), 1);
    QTest::keyClick(&browser, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(line(), "First line.");
    browser.showPlace({"page.html", "low"});
    EXPECT_EQ(line(), "Low");
}

// What stands at the top when the page ends too early is no place for the caret: the view would follow it there.
TEST_F(Browser, showsAnAnchorThatIsTooLowToReachTheTop)
{
    std::string lines;
    for (int line = 0; line < 60; ++line)
        lines += "line<br>";
    show({{"/page.html", "<p>Before.</p><table><tr><th>One</th><th>Two</th></tr><tr><td>" + lines +
                             "</td><td>end</td></tr></table><h2><a name=\"low\">Low</a></h2><p>End.</p>"}},
         "page.html");
    browser.showPlace({"page.html", "low"});
    EXPECT_EQ(browser.textCursor().block().text().toStdString(), "Low");
    EXPECT_TRUE(browser.viewport()->rect().contains(browser.cursorRect()));
    EXPECT_EQ(browser.verticalScrollBar()->value(), browser.verticalScrollBar()->maximum());
}

TEST_F(Browser, followsLinksWithinTheFileAlone)
{
    QSignalSpy web(&browser, &HelpBrowser::webLinkClicked);
    show({{"/a.html", "<p>a</p>"}, {"/b.html", "<p>b</p>"}}, "a.html");
    struct {
        const char *link;
        const char *topic;
        int webLinks;
    } const rows[]{
        {"b.html#x", "b.html", 0},
        {"A.HTML", "a.html", 0},
        {"ms-its:x.chm::/b.html", "b.html", 0},
        {"gone.html", "b.html", 0},
        {"javascript:alert(1)", "b.html", 0},
        {"mk:@MSITStore:C:\\d\\x.chm::/a.html", "a.html", 0},
        {"ftp://a.b/c", "a.html", 0},
        {"file:///etc/passwd", "a.html", 0},
        {"https://a.b/b.html", "a.html", 1},
        {"http://a.b/", "a.html", 2},
        {"mailto:a@b.c", "a.html", 3},
        {"data:text/html,x", "a.html", 3},
        {"b.html?x=1", "b.html", 3},
    };
    for (const auto &row : rows) {
        emit browser.anchorClicked(browser.source().resolved(QUrl(row.link)));
        EXPECT_EQ(browser.place().topic, row.topic) << row.link;
        EXPECT_EQ(web.count(), row.webLinks) << row.link;
    }
}

TEST_F(Browser, everythingInTheHelpGrowsWithTheZoom)
{
    show({{"/style.css", contentOf(HELP_FOLDER "/style.css")},
          {"/a.html",
           "<html><head><link rel=stylesheet href=style.css></head><body><h1>a</h1><h3>b</h3><p>c</p>"
           "<ul><li>d</li></ul><dl><dt>e</dt><dd>f</dd></dl><p><code>g</code></p><pre>h</pre>"
           "<table><tr><th>i</th><td>j</td></tr></table></body></html>"}},
         "a.html");
    const auto heights = [this] {
        std::map<std::string, double> found;
        for (QTextBlock block = browser.document()->begin(); block.isValid(); block = block.next())
            if (!block.text().isEmpty())
                found[block.text().toStdString()] = block.layout()->lineAt(0).height();
        return found;
    };
    const auto before = heights();
    EXPECT_EQ(before.size(), 10);
    browser.zoomBy(6);
    for (const auto &[text, height] : heights())
        EXPECT_GT(height, before.at(text) * 1.25) << text;
}

TEST_F(Browser, zoomsWithinBounds)
{
    show({{"/a.html", "<p>a</p>"}}, "a.html");
    const double size = browser.font().pointSizeF();
    const auto turn = [&](int delta) {
        QWheelEvent event(QPointF(9, 9), browser.viewport()->mapToGlobal(QPointF(9, 9)), {}, {0, delta}, Qt::NoButton,
                          Qt::ControlModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(browser.viewport(), &event);
    };
    turn(120);
    turn(120);
    EXPECT_DOUBLE_EQ(browser.font().pointSizeF(), size + 2);
    turn(-120);
    EXPECT_DOUBLE_EQ(browser.font().pointSizeF(), size + 1);
    for (int i = 0; i < 100; ++i)
        turn(-120);
    EXPECT_DOUBLE_EQ(browser.font().pointSizeF(), size - 4);
    for (int i = 0; i < 100; ++i)
        turn(120);
    EXPECT_DOUBLE_EQ(browser.font().pointSizeF(), size + 20);
}

}  // namespace
}  // namespace penwright::test
