#include "support/SampleRecords.h"
#include "widgets/WizardTest.h"

namespace penwright::test {
namespace {

class Finish : public WizardTest {
protected:
    void SetUp() override
    {
        startWizard();
        window->ShowPage(kFinishPage);
    }

    /// A host that takes what is posted, from inside the post's wait.
    void takePosts()
    {
        QObject::connect(&m_host, &QTimer::timeout, [this] {
            if (const std::string text = store.pop("Lumentor_PE", "Sec", "HostBox"); !text.empty())
                taken.push_back(text);
        });
        m_host.start(5);
    }

    QString status() { return find<QLabel>("labStatus")->text(); }

private:
    QTimer m_host;
};

TEST_F(Finish, showsItsFixedTexts)
{
    const std::vector<std::pair<std::string, QString>> texts{
        {"Label80a", "New Photometric file complete!"},
        {"Label80b", "Load The File Into Toolbox Without Saving"},
        {"Label80c", "Choose A Filename And Save File Now"},
        {"Label3", "Retrieves data from calling app: Tooltype=1,2,3,4"},
        {"Label4", "Sends updated data to calling app: Tooltype=4. Need to then save data."},
    };
    for (const auto &[name, text] : texts) {
        EXPECT_EQ(find<QLabel>(name)->text(), text);
        EXPECT_FALSE(find(name)->visibleRegion().isEmpty()) << name;
    }
    EXPECT_EQ(find<QPushButton>("cmdUnname")->text(), "Finish Unnamed");
    EXPECT_EQ(find<QPushButton>("cmdSaveAs")->text(), "Finish And Save As...");
}

TEST_F(Finish, lastTwoLabelsAreSmallAtTheFootTheSecondUnderTheFirst)
{
    const QWidget *first = find("Label3");
    const QWidget *second = find("Label4");
    const auto top = [this](const QWidget *widget) { return widget->mapTo(window.get(), QPoint()).y(); };
    EXPECT_LT(first->font().pointSizeF(), find("Label80b")->font().pointSizeF());
    EXPECT_GT(top(second), top(first));
    EXPECT_GT(top(first), top(find("cmdSaveAs")));
    EXPECT_NE(first->palette().color(QPalette::WindowText), window->palette().color(QPalette::WindowText));
}

TEST_F(Finish, quietLinesFollowThePalette)
{
    const auto lightness = [this] { return find("Label3")->palette().color(QPalette::WindowText).lightness(); };
    const QPalette light = QApplication::palette();
    const int onLight = lightness();
    QApplication::setPalette(QPalette(Qt::darkGray, Qt::black));
    QCoreApplication::processEvents();  // the windows are told by an event
    EXPECT_GT(lightness(), onLight);
    EXPECT_LT(lightness(), QApplication::palette().color(QPalette::WindowText).lightness());
    QApplication::setPalette(light);
    QCoreApplication::processEvents();
    EXPECT_EQ(lightness(), onLight);
}

TEST_F(Finish, buttonsKeepACalmWidthInAWideHostAndTheirLabelsAlign)
{
    window->resize(1600, 900);
    QCoreApplication::processEvents();
    for (const char *button : {"cmdUnname", "cmdSaveAs"})
        EXPECT_EQ(find(button)->width(), 220) << button;
    EXPECT_EQ(find("Label80b")->x(), find("Label80c")->x());
    EXPECT_LT(find("Label80b")->x(), 260);
}

TEST_F(Finish, labelsAreBuddiesOfTheirButtons)
{
    EXPECT_EQ(find<QLabel>("Label80b")->buddy(), find("cmdUnname"));
    EXPECT_EQ(find<QLabel>("Label80c")->buddy(), find("cmdSaveAs"));
}

TEST_F(Finish, unnamedFileIsHandedOverAndThePageStays)
{
    state.start.OpenFileCount = 3;
    takePosts();
    click("cmdUnname");
    EXPECT_EQ(taken, std::vector<std::string>{"SendNewDataClose*,PenwrightPE,7"});
    EXPECT_EQ(state.PhotFiles(1).Filename, "new_file_4");
    EXPECT_EQ(status(), "");
    EXPECT_EQ(shownPage(), kFinishPage);
}

TEST_F(Finish, namedFileIsWrittenAndHandedOver)
{
    state.PhotFiles(1) = smallRecord();
    dialogs.names = {"/lum/a.ies"};
    takePosts();
    click("cmdSaveAs");
    EXPECT_EQ(files.paths, std::vector<std::string>{"/lum/a.ies"});
    EXPECT_EQ(taken, std::vector<std::string>{"SendNewDataClose,PenwrightPE,7"});
    EXPECT_EQ(state.PhotFiles(1).Directory, "/lum/");
}

TEST_F(Finish, cancelledSaveDialogPostsNothing)
{
    takePosts();
    click("cmdSaveAs");
    EXPECT_EQ(dialogs.transcript, "[save|Save New Photometric file As...|IES files (*.ies)|*.ies;*.IES|ies]\n");
    EXPECT_TRUE(taken.empty());
    EXPECT_EQ(hostInbox(), "");
    EXPECT_EQ(status(), "");
}

TEST_F(Finish, postThatNobodyTakesLeavesOneQuietLineUntilItIs)
{
    click("cmdUnname");
    EXPECT_EQ(status(), "The host has not taken the file yet. It is kept for the host until it does.");
    EXPECT_EQ(hostInbox(), "SendNewDataClose*,PenwrightPE,7");
    EXPECT_EQ(dialogs.transcript, "");
    takePosts();
    click("cmdUnname");
    EXPECT_EQ(status(), "");
}

TEST_F(Finish, whatWasToldOfTheHostIsOverWithWhenThePageIsLeft)
{
    click("cmdUnname");
    EXPECT_NE(status(), "");
    click("cmdBack80");
    EXPECT_EQ(status(), "");
}

TEST_F(Finish, keysAndClicksMeanwhileFinishNothingTwice)
{
    QTimer impatience;
    QObject::connect(&impatience, &QTimer::timeout, [this] {
        click("cmdUnname");
        QTest::keyClick(find("cmdUnname"), Qt::Key_Space);
        find<QPushButton>("cmdUnname")->click();
        click("cmdBack80");
        if (hostInbox() != "")
            taken.push_back(store.pop("Lumentor_PE", "Sec", "HostBox"));
    });
    impatience.start(5);
    click("cmdUnname");
    EXPECT_EQ(taken.size(), 1u);
    EXPECT_EQ(shownPage(), kFinishPage);
}

}  // namespace
}  // namespace penwright::test
