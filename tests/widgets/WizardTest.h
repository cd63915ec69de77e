#pragma once

#include <gtest/gtest.h>

#include <cerrno>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <QTest>
#include <QtWidgets>
#include <string>
#include <vector>

#include "app/WizardAssembly.h"
#include "grid/GridView.h"
#include "pages/candela/CandelaPage.h"
#include "pages/distribution/DistributionPage.h"
#include "platform/qt/Closing.h"
#include "platform/qt/OwnerWindow.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtEventWait.h"
#include "platform/sqlite/SqliteSettingsStore.h"
#include "platform/TextFiles.h"
#include "support/Captions.h"
#include "support/FakeDialogs.h"
#include "support/FakeEmbedding.h"
#include "support/FakeHelp.h"
#include "support/ReadBack.h"
#include "support/TempFolder.h"
#include "wizard/WarningDialog.h"
#include "wizard/WizardWindow.h"

namespace penwright::test {

/// Files that are noted, each of them read back and compared with the record that it is written of.
struct RecordingFiles : TextFiles {
    explicit RecordingFiles(const OneBased<PhotometricRecord> &all) : records(all) {}

    int replace(const std::string &path, std::string_view text) override
    {
        paths.push_back(path);
        const std::string fault = written.faultOf(path, text, records);
        EXPECT_EQ(failure == 0 ? fault : "", "");
        return failure;
    }
    FileContent read(const std::string &path, std::size_t, const std::function<bool(double)> &) override
    {
        return contents.count(path) ? contents.at(path) : FileContent{ENOENT, {}};
    }
    const OneBased<PhotometricRecord> &records;
    WrittenRecords written;
    std::vector<std::string> paths;
    std::map<std::string, FileContent> contents;  ///< of the files that there are
    int failure = 0;                              ///< what each writing ends with
};

/// The whole wizard window as start-up makes it, over a store of its own, with dialogs that only note what they were
/// asked unless `useRealDialogs` comes first.
class WizardTest : public testing::Test {
protected:
    WizardTest()
    {
        state.start.HostWindow = 123;
        state.start.EmbedInHost = true;
        state.start.HostInbox = "HostBox";
        state.start.InstanceTag = "7";
        state.start.ExchangeSection = "Sec";
        state.start.HelpFilePath = "/tool/Lumentor_PE-HTML.chm";
        state.PhotFiles.reset(1);
        embedding.former = 4711;
        embedding.onGiveBack = [this] { window->hide(); };
    }

    void TearDown() override { window.reset(); }

    Services services() { return {store, files, *m_dialogs, wait, embedding, help}; }

    void useRealDialogs() { m_dialogs = &realDialogs; }

    void loadWindow() { window = assembleWizard(state, services(), closing, owner, std::move(drafts)); }

    void startWizard()
    {
        loadWindow();
        window->StartWizard();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get(), 60'000));
        QApplication::setActiveWindow(window.get());
    }

    template <typename Widget = QWidget>
    Widget *find(const std::string &name)
    {
        auto *widget = window->findChild<Widget *>(QString::fromStdString(name));
        if (!widget)
            throw std::runtime_error("no control " + name);
        return widget;
    }

    void click(const std::string &button) { QTest::mouseClick(find(button), Qt::LeftButton); }

    /// Types into whatever has the focus, key by key.
    static void typeText(const std::string &text)
    {
        for (const char character : text)
            QTest::keyClick(QApplication::focusWidget(), character);
    }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    void setText(const std::string &box, const std::string &text)
    {
        find<QLineEdit>(box)->setText(QString::fromStdString(text));
    }
    std::string text(const std::string &box) { return find<QLineEdit>(box)->text().toStdString(); }

    /// Acts, and closes the warning dialog with Enter when it opens; its text.
    std::string warningsOf(const std::function<void()> &act)
    {
        std::string text;
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&] {
            auto *dialog = dynamic_cast<WarningDialog *>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            text = dialog->list().text();
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        poll.start(1);
        act();
        QApplication::setActiveWindow(window.get());  // as a window manager does when a dialog has closed
        return text;
    }

    /// Gives page 1 values that pass its checks.
    void fillPageOne()
    {
        for (const char *box : {"txtNumLamps", "txtLumPerLamp", "txtMultiplier", "txtBallast", "txtWatt", "txtWidth",
                                "txtLength", "txtHeight"})
            setText(box, "1");
    }

    /// Gives page 2 values that pass its checks: angles 0 and 90.
    void fillPageTwo()
    {
        setText("lmpTxtNumAngles", "2");
        find<QAbstractButton>("l2lg0")->setChecked(true);
        find<GridView>("lmpGridTiltMultiplier")->goTo(2, 0);
        typeText("90");
        press(Qt::Key_Return);
    }

    /// Gives page 4 values that pass its checks: type C, 10 vertical angles and one horizontal.
    void fillPageFour()
    {
        find<QAbstractButton>("rdoC")->click();
        for (const char *list : {"phoCmbVert", "phoCmbHorz"}) {
            find(list)->setFocus();
            press(Qt::Key_Down);
        }
    }

    /// Goes back from page 5, chooses other angles on page 4 and comes to a table of those.
    void buildOtherTable()
    {
        click("cmdBack50");
        click("rdoB");
        for (const char *box : {"phoCmbVert", "phoCmbHorz"}) {
            find(box)->setFocus();
            press(Qt::Key_Down);
        }
        click("cmdNext30");
        ASSERT_EQ(shownPage(), kCandelaPage);
    }

    /// Gives page 5, built from what fillPageFour chose, values that pass its checks.
    void fillPageFive()
    {
        QGuiApplication::clipboard()->setText("9\n8\n7\n6\n5\n4\n3\n2\n1\n0\n");
        find("cdaGridCd")->setFocus();
        press(Qt::Key_V, Qt::ControlModifier);
    }

    /// Index of the one frame that is shown; -1 when none is, -2 when several are.
    int shownPage()
    {
        int shown = -1;
        for (int index = 0; index < kPageCount; ++index)
            if (!find("nfra" + std::to_string(index))->isHidden())
                shown = shown == -1 ? index : -2;
        return shown;
    }

    std::string caption() const { return window->windowTitle().toStdString(); }

    static std::string focusName()
    {
        const QWidget *focus = QApplication::focusWidget();
        return focus ? focus->objectName().toStdString() : "";
    }

    std::string hostInbox() { return store.read("Lumentor_PE", "Sec", "HostBox"); }
    void sendCommand(const std::string &text) { store.write("Lumentor_PE", "Sec", "PenwrightPE|7", text); }

    /// Runs the program's event loop until something ends it; nothing when that takes too long. Meanwhile a host takes
    /// what is posted to it.
    std::optional<int> runUntilEnd()
    {
        constexpr int kTooLong = -77;
        QTimer host;
        QObject::connect(&host, &QTimer::timeout, [this] {
            if (const std::string text = store.pop("Lumentor_PE", "Sec", "HostBox"); !text.empty())
                taken.push_back(text);
        });
        host.start(5);
        QTimer bound;
        QObject::connect(&bound, &QTimer::timeout, [] { QCoreApplication::exit(kTooLong); });
        bound.start(20000);
        const int status = QApplication::exec();
        return status == kTooLong ? std::nullopt : std::optional<int>(status);
    }

    TempFolder folder;
    ToolState state;
    SqliteSettingsStore store{folder.file("settings.sqlite3")};
    RecordingFiles files{state.PhotFiles};
    FakeHelp help;
    FakeEmbedding embedding;
    Closing closing;
    OwnerWindow owner;
    QtEventWait wait{closing, owner};
    FakeDialogs dialogs;
    QtDialogs realDialogs{closing, owner};
    std::vector<std::string> taken;      ///< what the host has taken from its inbox
    std::unique_ptr<DraftStore> drafts;  ///< for the window that is loaded next; none unless a test has one
    std::unique_ptr<WizardWindow> window;

private:
    Dialogs *m_dialogs = &dialogs;
};

}  // namespace penwright::test
