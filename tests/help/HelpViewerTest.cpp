#include "help/window/QtHelpViewer.h"

#include <filesystem>

#include "help/HelpTest.h"
#include "platform/qt/Closing.h"
#include "support/FakeDialogs.h"
#include "support/SpinUntil.h"
#include "support/TempFolder.h"

namespace penwright::test {
namespace {

class Viewer : public testing::Test {
protected:
    Viewer() { write(sampleHelp()); }

    void write(const std::string &bytes) { std::ofstream(path, std::ios::binary) << bytes; }

    std::string shownPage()
    {
        const auto *page = viewer.window() ? viewer.window()->findChild<QTextBrowser *>("wbrTopic") : nullptr;
        return page ? page->toPlainText().section('\n', 0, 0).toStdString() : "no window";
    }

    TempFolder folder;
    const std::string path = folder.file("Help.chm");
    FakeDialogs dialogs;
    Closing closing;
    QtHelpViewer viewer{dialogs, closing, openChm};
};

TEST_F(Viewer, showsTheTopicInAWindowThatBelongsToNone)
{
    QWidget wizard;
    wizard.show();
    viewer.showTopic(path, 20);
    EXPECT_EQ(shownPage(), "Second");
    const HelpWindow &window = *viewer.window();
    EXPECT_EQ(window.objectName(), "frmHelp");
    EXPECT_EQ(window.windowTitle(), "Sample Help");
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.parentWidget(), nullptr);
    EXPECT_EQ(window.windowType(), Qt::Window);
    EXPECT_EQ(window.windowModality(), Qt::NonModal);
    EXPECT_EQ(window.windowHandle()->transientParent(), nullptr);
    EXPECT_FALSE(window.testAttribute(Qt::WA_QuitOnClose));
    EXPECT_FALSE(window.testAttribute(Qt::WA_DeleteOnClose));
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(Viewer, showsThePlaceThatALinkNames)
{
    viewer.showLink(path, "second.html#low");
    EXPECT_EQ(shownPage(), "Second");
    EXPECT_EQ(viewer.window()->findChild<QTextBrowser *>("wbrTopic")->source().fragment(), "low");
    viewer.showLink(path, "none.html#low");
    EXPECT_EQ(shownPage(), "Second");
    EXPECT_EQ(dialogs.transcript, "[PenwrightPE|48] The help file lacks a page: none.html#low in " + path + "\n");
}

TEST_F(Viewer, reusesItsWindowAndItsHistory)
{
    viewer.showTopic(path, 10);
    HelpWindow *window = viewer.window();
    viewer.showTopic(path, 30);
    EXPECT_EQ(viewer.window(), window);
    EXPECT_EQ(shownPage(), "Third");
    QTest::mouseClick(window->findChild<QPushButton *>("cmdBack"), Qt::LeftButton);
    EXPECT_EQ(shownPage(), "First & foremost");
    window->close();
    EXPECT_FALSE(window->isVisible());
    viewer.showTopic(path, 20);
    EXPECT_EQ(viewer.window(), window);
    EXPECT_TRUE(window->isVisible());
    window->showMinimized();
    viewer.showTopic(path, 20);
    EXPECT_FALSE(window->isMinimized());
}

TEST_F(Viewer, opensAFileThatHasChangedAnew)
{
    viewer.showTopic(path, 10);
    write(mkchm::makeContainer({{"/new.html", samplePage("New", "")},
                                {"/#IVB", idObject({{10, 1}})},
                                {"/#STRINGS", std::string("\0new.html\0", 10)}}));
    viewer.showTopic(path, 10);
    EXPECT_EQ(shownPage(), "New");
    write(mkchm::makeContainer({{"/new.html", samplePage("Newer", "")},
                                {"/#IVB", idObject({{10, 1}})},
                                {"/#STRINGS", std::string("\0new.html\0", 10)}}));
    viewer.showTopic(path, 10);
    EXPECT_EQ(shownPage(), "Newer");
    EXPECT_FALSE(viewer.window()->findChild<QPushButton *>("cmdBack")->isEnabled());
}

TEST_F(Viewer, tellsInOneMessageWhatIsWrong)
{
    const std::string missing = folder.file("None.chm");
    viewer.showTopic(missing, 10);
    viewer.showTopic(path, 208);
    write("<html>something else</html>");
    viewer.showTopic(path, 10);
    const std::string whole = mkchm::makeContainer({{"/#IVB", idObject({{10, 1}, {11, 8}})},
                                                    {"/#STRINGS", std::string("\0a.html\0b.html\0", 15)},
                                                    {"/a.html", "page"}});
    write(whole);
    viewer.showTopic(path, 11);
    write(whole.substr(0, whole.size() - 33));
    viewer.showTopic(path, 10);
    EXPECT_EQ(dialogs.transcript, "[PenwrightPE|48] The help file is missing: " + missing + "\n" +
                                      "[PenwrightPE|48] The help file has no page for the number 208: " + path + "\n" +
                                      "[PenwrightPE|48] The help file cannot be read: " + path +
                                      ": it ends too early.\n" +
                                      "[PenwrightPE|48] The help file lacks a page: b.html in " + path + "\n" +
                                      "[PenwrightPE|48] A page of the help file cannot be read: a.html in " + path +
                                      ": it ends too early.\n");
    EXPECT_EQ(shownPage(), "no window");
}

TEST_F(Viewer, anErrorLeavesTheWindowAtItsPage)
{
    viewer.showTopic(path, 20);
    std::filesystem::remove(path);
    viewer.showTopic(path, 10);
    EXPECT_EQ(dialogs.transcript, "[PenwrightPE|48] The help file is missing: " + path + "\n");
    EXPECT_EQ(shownPage(), "Second");
}

TEST_F(Viewer, whatTheOpenerCannotBearIsToldToo)
{
    QtHelpViewer exhausted(dialogs, closing,
                           [](const std::string &) -> std::unique_ptr<HelpFile> { throw std::bad_alloc(); });
    exhausted.showTopic(path, 10);
    EXPECT_EQ(dialogs.transcript, "[PenwrightPE|48] The help file cannot be read: " + path + ": std::bad_alloc.\n");
}

TEST_F(Viewer, goesWhenTheProgramBeginsToClose)
{
    viewer.showTopic(path, 10);
    closing.begin();
    EXPECT_FALSE(viewer.window()->isVisible());
    viewer.showTopic(path, 20);
    EXPECT_FALSE(viewer.window()->isVisible());
    EXPECT_TRUE(spinUntil([&] { return true; }));
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(Viewer, doesNotHoldUpTheUnwinding)
{
    viewer.showTopic(path, 10);
    viewer.window()->findChild<QTreeWidget *>("tvwContents")->setFocus();
    bool isUnwound = false;
    QObject::connect(&closing, &Closing::unwound, [&] { isUnwound = true; });
    closing.begin();
    EXPECT_TRUE(spinUntil([&] { return isUnwound; }));
}

}  // namespace
}  // namespace penwright::test
