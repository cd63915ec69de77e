#include "help/window/HelpWindow.h"

#include <QDesktopServices>

#include "help/HelpTest.h"

namespace penwright::test {
namespace {

/// Takes the links that would open in the desktop's programs.
class Desktop : public QObject {
    Q_OBJECT

public:
    Desktop() { QDesktopServices::setUrlHandler("https", this, "open"); }
    ~Desktop() override { QDesktopServices::unsetUrlHandler("https"); }
    std::vector<std::string> opened;

public slots:
    void open(const QUrl &url) { opened.push_back(url.toString().toStdString()); }
};

TEST_F(HelpWindowTest, showsPageTreeAndTitle)
{
    openSample();
    EXPECT_EQ(window.windowTitle(), "Sample Help");
    EXPECT_EQ(heading(), "First & foremost");
    EXPECT_EQ(currentEntry(), "First & foremost");
    auto *tree = find<QTreeWidget>("tvwContents");
    ASSERT_EQ(tree->topLevelItemCount(), 2);
    EXPECT_EQ(tree->topLevelItem(0)->child(0)->text(0), "Second");
    EXPECT_TRUE(tree->topLevelItem(0)->isExpanded());
    EXPECT_EQ(focusName(), "wbrTopic");
    EXPECT_FALSE(find("lstFound")->isVisible());
}

TEST_F(HelpWindowTest, walkingThroughTheTreeShowsItsPages)
{
    openSample();
    find("tvwContents")->setFocus();
    press(Qt::Key_Down);
    EXPECT_EQ(heading(), "Second");
    press(Qt::Key_Down);
    EXPECT_EQ(heading(), "Third");
    EXPECT_EQ(focusName(), "tvwContents");
}

TEST_F(HelpWindowTest, aLinkIsFollowedByKeyAndTheTreeFollowsToo)
{
    openSample();
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(heading(), "Second");
    EXPECT_EQ(page().source().fragment(), "low");
    EXPECT_EQ(currentEntry(), "Second");
}

TEST_F(HelpWindowTest, goesBackForwardAndHome)
{
    openSample();
    EXPECT_FALSE(find("cmdBack")->isEnabled());
    window.showPlace({"second.html", ""});
    window.showPlace({"more/third.html", ""});
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(heading(), "Second");
    EXPECT_EQ(currentEntry(), "Second");
    QTest::mouseClick(find("cmdBack"), Qt::LeftButton);
    EXPECT_EQ(heading(), "First & foremost");
    EXPECT_FALSE(find("cmdBack")->isEnabled());
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(heading(), "Second");
    QTest::mouseClick(find("cmdForward"), Qt::LeftButton);
    EXPECT_EQ(heading(), "Third");
    EXPECT_FALSE(find("cmdForward")->isEnabled());
    QTest::mouseClick(find("cmdHome"), Qt::LeftButton);
    EXPECT_EQ(heading(), "First & foremost");
    press(Qt::Key_Left, Qt::AltModifier);
    press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(heading(), "First & foremost");
}

TEST_F(HelpWindowTest, keysGoBackFromTheTreeToo)
{
    openSample();
    window.showPlace({"second.html", ""});
    find("tvwContents")->setFocus();
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(heading(), "First & foremost");
}

TEST_F(HelpWindowTest, searchListsPagesAndMarksTheWords)
{
    openSample();
    press(Qt::Key_F3);
    EXPECT_EQ(focusName(), "txtSearch");
    type("LAMP");
    press(Qt::Key_Return);
    EXPECT_EQ(found(), "> First & foremost\nSecond\n");
    EXPECT_EQ(find<QLabel>("lblFound")->text(), "2 pages found");
    EXPECT_EQ(heading(), "First & foremost");
    EXPECT_EQ(focusName(), "lstFound");
    ASSERT_EQ(page().extraSelections().size(), 1);
    EXPECT_EQ(page().extraSelections()[0].cursor.selectedText(), "lamp");
    press(Qt::Key_Down);
    EXPECT_EQ(heading(), "Second");
    EXPECT_EQ(page().extraSelections().size(), 1);
    press(Qt::Key_Return);
    EXPECT_EQ(focusName(), "wbrTopic");
}

TEST_F(HelpWindowTest, searchScrollsToTheFirstHit)
{
    std::string lines;
    for (int i = 0; i < 300; ++i)
        lines += "<p>line</p>";
    open(helpOf(
             {{"/a.html", samplePage("A", "<p>x</p>")}, {"/b.html", samplePage("B", lines + "<p>needle</p>" + lines)}}),
         {"a.html", ""});
    press(Qt::Key_F, Qt::ControlModifier);
    type("needle");
    press(Qt::Key_Return);
    ASSERT_EQ(page().extraSelections().size(), 1);
    EXPECT_TRUE(page().viewport()->rect().intersects(page().cursorRect(page().extraSelections()[0].cursor)));
}

TEST_F(HelpWindowTest, nextHitComesByKeyInTheUpperThirdAndAroundTheEnd)
{
    std::string lines;
    for (int i = 0; i < 200; ++i)
        lines += "<p>line</p>";
    open(helpOf({{"/a.html", samplePage("A", lines + "<p>old needle</p>" + lines + "<p>new needle</p>" + lines)}}),
         {"a.html", ""});
    press(Qt::Key_F, Qt::ControlModifier);
    type("needle");
    press(Qt::Key_Return);
    ASSERT_EQ(page().extraSelections().size(), 2);
    for (const char *expected : {"old needle", "new needle", "old needle"}) {
        QTextCursor line = page().textCursor();
        line.select(QTextCursor::LineUnderCursor);
        EXPECT_EQ(line.selectedText().toStdString(), expected);
        EXPECT_NEAR(page().cursorRect().top(), page().viewport()->height() / 3, 2);
        press(Qt::Key_F3);
    }
}

TEST_F(HelpWindowTest, placeOfTheWholePhraseComesFirst)
{
    std::string lines;
    for (int i = 0; i < 200; ++i)
        lines += "<p>line of circles</p>";
    open(helpOf({{"/a.html", samplePage("A", "<p>vertical extent</p>" + lines + "<p>Vertical Circle</p>" + lines)}}),
         {"a.html", ""});
    press(Qt::Key_F, Qt::ControlModifier);
    type("vertical circle");
    press(Qt::Key_Return);
    QTextCursor line = page().textCursor();
    line.select(QTextCursor::LineUnderCursor);
    EXPECT_EQ(line.selectedText().toStdString(), "Vertical Circle");
}

TEST_F(HelpWindowTest, searchWithoutAHitSaysSoAndAnEmptyOneHidesTheList)
{
    openSample();
    press(Qt::Key_F3);
    type("nowhere");
    press(Qt::Key_Return);
    EXPECT_TRUE(find("lblFound")->isVisible());
    EXPECT_FALSE(find("lstFound")->isVisible());
    EXPECT_EQ(find<QLabel>("lblFound")->text(), "No page holds all of these words.");
    EXPECT_EQ(heading(), "First & foremost");
    EXPECT_EQ(focusName(), "txtSearch");
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Delete);
    press(Qt::Key_Return);
    EXPECT_FALSE(find("lblFound")->isVisible());
}

TEST_F(HelpWindowTest, searchListsNoMorePagesThanOneReads)
{
    std::vector<ChmObject> objects;
    for (int i = 0; i < 250; ++i)
        objects.push_back({"/" + std::to_string(i) + ".html", samplePage("P", "word")});
    open(helpOf(objects), {"0.html", ""});
    press(Qt::Key_F3);
    type("word");
    press(Qt::Key_Return);
    EXPECT_EQ(find<QListWidget>("lstFound")->count(), 200);
    EXPECT_EQ(find<QLabel>("lblFound")->text(), "250 pages found; these are the first 200");
}

TEST_F(HelpWindowTest, keysWalkThroughThePanes)
{
    openSample();
    std::string walked;
    for (int i = 0; i < 4; ++i) {
        press(Qt::Key_F6);
        walked += focusName() + " ";
    }
    EXPECT_EQ(walked, "txtSearch tvwContents wbrTopic txtSearch ");
    type("lamp");
    press(Qt::Key_Return);
    press(Qt::Key_F6);
    EXPECT_EQ(focusName(), "tvwContents");
}

TEST_F(HelpWindowTest, thePaneWithTheFocusIsFramed)
{
    openSample();
    const QColor highlight = window.palette().color(QPalette::Highlight);
    for (int i = 0; i < 4; ++i) {
        std::string framed;
        for (const char *name : {"tvwContents", "wbrTopic"}) {
            const QImage picture = find(name)->grab().toImage();
            if (picture.pixelColor(picture.width() / 2, 0) == highlight)
                framed += name;
        }
        EXPECT_EQ(framed, focusName() == "txtSearch" ? "" : focusName());
        press(Qt::Key_F6);
    }
}

TEST_F(HelpWindowTest, tabLeavesThePageBehindItsLastLink)
{
    openSample();
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), "wbrTopic");
    press(Qt::Key_Tab);
    EXPECT_NE(focusName(), "wbrTopic");
}

TEST_F(HelpWindowTest, escapeClosesFromEverywhere)
{
    openSample();
    for (const char *name : {"wbrTopic", "tvwContents", "txtSearch"}) {
        window.showPlace({"first.html", ""});
        QApplication::setActiveWindow(&window);
        find(name)->setFocus();
        press(Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible()) << name;
    }
}

TEST_F(HelpWindowTest, keysZoom)
{
    openSample();
    const double size = page().font().pointSizeF();
    press(Qt::Key_Plus, Qt::ControlModifier);
    press(Qt::Key_Plus, Qt::ControlModifier);
    press(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(page().font().pointSizeF(), size + 1);
}

class WebLink : public HelpWindowTest {
protected:
    void openLink()
    {
        open(helpOf({{"/a.html", "<p><a href=\"https://example.org/x?y=1\">web</a></p>"}}), {"a.html", ""});
        press(Qt::Key_Tab);
        press(Qt::Key_Return);
    }
    Desktop desktop;
};

TEST_F(WebLink, opensOnlyAfterAYes)
{
    openLink();
    EXPECT_TRUE(find("fraWeb")->isVisible());
    EXPECT_EQ(find<QLabel>("lblWeb")->text(), "This link leads out of the help. Open it?\nhttps://example.org/x?y=1");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(desktop.opened.empty());
    EXPECT_EQ(focusName(), "cmdOpenWeb");
    press(Qt::Key_Return);
    EXPECT_EQ(desktop.opened, (std::vector<std::string>{"https://example.org/x?y=1"}));
    EXPECT_FALSE(find("fraWeb")->isVisible());
    EXPECT_EQ(focusName(), "wbrTopic");
}

TEST_F(WebLink, isDroppedByCancel)
{
    openLink();
    QTest::mouseClick(find("cmdStay"), Qt::LeftButton);
    EXPECT_FALSE(find("fraWeb")->isVisible());
    EXPECT_EQ(focusName(), "wbrTopic");
    EXPECT_TRUE(desktop.opened.empty());
}

TEST_F(WebLink, isDroppedByEscapeBeforeTheWindowCloses)
{
    openLink();
    press(Qt::Key_Escape);
    EXPECT_FALSE(find("fraWeb")->isVisible());
    EXPECT_TRUE(window.isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(desktop.opened.empty());
}

}  // namespace
}  // namespace penwright::test

#include "HelpWindowTest.moc"
