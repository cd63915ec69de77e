#include "widgets/WizardTest.h"

namespace penwright::test {
namespace {

/// What the parts of the program do for each other once they are put together.
class Assembly : public WizardTest {};

TEST_F(Assembly, dialogsOpenOverTheWizard)
{
    useRealDialogs();
    startWizard();
    QWidget *parent = nullptr;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        parent = box->parentWidget();
        box->reject();
    });
    look.start(5);
    window->ConfirmCancel();
    EXPECT_EQ(parent, window.get());
}

TEST_F(Assembly, keysAreHeldOffTheWizardWhileItWaits)
{
    startWizard();
    find("txtNumLamps")->setFocus();
    const auto type = [this] { return QTest::keyClick(find("txtNumLamps"), Qt::Key_7), true; };
    EXPECT_EQ(wait.until(type, std::chrono::seconds(10)), WaitEnd::Done);
    EXPECT_EQ(text("txtNumLamps"), "");
    type();
    EXPECT_EQ(text("txtNumLamps"), "7");
}

TEST_F(Assembly, eventsRunWhileTheStoreIsLockedAndUnloadingGivesItUp)
{
    startWizard();
    SqliteSettingsStore host(folder.file("settings.sqlite3"));
    host.transact([&] {
        host.write("Lumentor_PE", "Sec", "a value", "that keeps the store locked");
        QTimer::singleShot(0, window.get(), [this] { closing.begin(); });
        QElapsedTimer clock;
        clock.start();
        EXPECT_THROW(store.write("Lumentor_PE", "Sec", "another", "value"), RunTimeError);
        EXPECT_LT(clock.elapsed(), 5000);  // the patience of a store that goes on waiting
    });
    EXPECT_TRUE(closing.isClosing());
}

TEST_F(Assembly, opensHiddenInItsHostWhetherItIsToBeEmbeddedOrNot)
{
    for (const bool embedInHost : {true, false}) {
        state.start.EmbedInHost = embedInHost;
        embedding.transcript.clear();
        embedding.former = 4711;
        loadWindow();
        embedding.former = 123;
        openWizard(*window, state.start, embedding);
        EXPECT_EQ(embedding.transcript, std::string(embedInHost ? "parent 123\n" : "") + "watch 123\nparent 123\n");
        EXPECT_EQ(state.start.PreviousParent, 123u);
        EXPECT_FALSE(window->isVisible());
        EXPECT_EQ(caption(), state.start.ToolName);
        EXPECT_TRUE(find<QTimer>("tmrDeath")->isActive());
        EXPECT_EQ(state.start.DesignWidth, 720 * 15);
        EXPECT_EQ(state.start.DesignHeight, 560 * 15);
    }
}

}  // namespace
}  // namespace penwright::test
