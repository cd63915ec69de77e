#include "host/HostWindowBench.h"

#include <QPlainTextEdit>

#include "core/IesText.h"
#include "hostbench/SampleLuminaire.h"
#include "hostlib/RecordBridge.h"
#include "platform/sqlite/SqliteSettingsStore.h"

namespace penwright::test {
namespace {

QString moveTo(ToolTab *tab)
{
    const QSize size = tab->area().pixels();
    return QStringLiteral("MOVEWIN,0,0,%1,%2").arg(size.width()).arg(size.height());
}

TEST_F(HostWindowTest, aToolGetsItsPlaceAndThenIsShown)
{
    ToolTab *tab = m_window->startTool();
    ASSERT_TRUE(waitNoted("START"));
    const ToolAddress &address = tab->run().tool().address();
    EXPECT_EQ(noted()[0], QStringLiteral("%1,1,HostInbox,1,0,%2")
                              .arg(tab->area().windowNumber())
                              .arg(QString::fromStdString(address.section)));
    EXPECT_LT(noted().indexOf(moveTo(tab)), noted().indexOf("START"));
    EXPECT_GT(noted().indexOf(moveTo(tab)), 0);
}

TEST_F(HostWindowTest, aToolFollowsTheSizeOfItsPlace)
{
    ToolTab *tab = m_window->startTool();
    ASSERT_TRUE(waitNoted("START"));
    const QString before = moveTo(tab);
    m_window->resize(m_window->size() - QSize(101, 53));
    EXPECT_NE(moveTo(tab), before);
    EXPECT_TRUE(waitNoted(moveTo(tab)));
}

struct FinishCase {
    const char *word;
    int files;
    bool isSaved;
};

void PrintTo(const FinishCase &row, std::ostream *out)
{
    *out << row.word;
}

class HostWindowFinish : public HostWindowTest, public testing::WithParamInterface<FinishCase> {};

TEST_P(HostWindowFinish, takesWhatTheToolBringsAndClosesIt)
{
    behave(GetParam().word);
    m_window->startTool();
    ASSERT_TRUE(waitForNoTools());
    EXPECT_TRUE(noted().contains("CLOSE"));
    ASSERT_EQ(m_window->files().count(), GetParam().files);
    const bool isSaved = GetParam().files > 0 && m_window->files().at(0).isSaved;
    EXPECT_EQ(isSaved, GetParam().isSaved);
    EXPECT_TRUE(logged().contains("CloseRemove,PenwrightPE,1"));
}

INSTANTIATE_TEST_SUITE_P(Words, HostWindowFinish,
                         testing::ValuesIn(std::vector<FinishCase>{{"SendNewDataClose", 1, true},
                                                                   {"SendNewDataClose*", 1, false},
                                                                   {"SendUpdatedDataClose", 1, false},
                                                                   {"SendSavedDataClose", 1, true},
                                                                   {"ReturnClose", 0, false}}),
                         [](const auto &row) {
                             std::string name = row.param.word;
                             if (name.back() == '*')
                                 name.replace(name.size() - 1, 1, "Unnamed");
                             return name;
                         });

TEST_F(HostWindowTest, theTextOfTheFileBroughtIsShown)
{
    behave("SendNewDataClose");
    m_window->startTool();
    ASSERT_TRUE(waitForNoTools());
    const auto *text = m_window->findChild<QPlainTextEdit *>("fileText");
    EXPECT_TRUE(text->toPlainText().startsWith("IESNA:LM-63-2002\nTILT=NONE\n")) << qPrintable(text->toPlainText());
    EXPECT_TRUE(text->isVisible());
}

TEST_F(HostWindowTest, anUnnamedFileCanBeSavedLater)
{
    m_window->addFile({sampleLuminaire(), false, {}});
    EXPECT_TRUE(button("saveAs")->isEnabled());
    m_window->addFile({sampleLuminaire(), true, {}});
    EXPECT_FALSE(button("saveAs")->isEnabled());
}

TEST_F(HostWindowTest, aToolThatDiesTakesOnlyItsTabWithIt)
{
    m_window->startTool();
    ASSERT_TRUE(waitNoted("START"));
    behave("die");
    m_window->startTool();
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_window->toolCount() == 1; }, 20'000));
    EXPECT_TRUE(logged().contains("Died"));
    EXPECT_TRUE(m_window->isVisible());
}

TEST_F(HostWindowTest, whatADyingToolHandedOverIsTaken)
{
    behave("last words");
    m_window->startTool();
    ASSERT_TRUE(waitForNoTools());
    ASSERT_EQ(m_window->files().count(), 1);
    EXPECT_EQ(m_window->files().at(0).record.Filename, "/tmp/last words.ies");
}

TEST_F(HostWindowTest, aToolThatIsNotThereLeavesALine)
{
    open("/nowhere/PenwrightPE");
    m_window->startTool();
    ASSERT_TRUE(waitForNoTools());
    EXPECT_TRUE(logged().last().startsWith("Could not be started: ")) << qPrintable(logged().last());
}

TEST_F(HostWindowTest, rubbishIsTakenAndIgnored)
{
    behave("rubbish");
    m_window->startTool();
    EXPECT_TRUE(QTest::qWaitFor([&] { return logged().count("Not a command of a tool; ignored") == 3; }, 20'000));
    EXPECT_EQ(m_window->toolCount(), 1);
    for (const QString &text : logged())
        EXPECT_LE(text.size(), 301);
}

TEST_F(HostWindowTest, twoToolsRunSideBySide)
{
    behave("SendNewDataClose");
    ToolTab *one = m_window->startTool();
    ToolTab *two = m_window->startTool();
    EXPECT_NE(one->run().tool().address().tag, two->run().tool().address().tag);
    EXPECT_NE(one->run().tool().address().section, two->run().tool().address().section);
    EXPECT_NE(one->area().windowNumber(), two->area().windowNumber());
    ASSERT_TRUE(waitForNoTools());
    EXPECT_EQ(m_window->files().count(), 2);
}

TEST_F(HostWindowTest, aRunningToolCountsAsAFile)
{
    for (int i = 0; i < 23; ++i)
        m_window->addFile({sampleLuminaire(), false, {}});
    EXPECT_EQ(m_window->startTool()->run().tool().address().openFiles, 23);
    EXPECT_EQ(m_window->startTool()->run().tool().address().openFiles, 24);
    EXPECT_EQ(m_window->startTool()->run().tool().address().openFiles, 25);
}

TEST_F(HostWindowTest, dataChangedHandsOverTheSelectedFile)
{
    PhotometricRecord record = sampleLuminaire();
    record.Filename = "the other";
    m_window->addFile({sampleLuminaire(), false, {}});
    m_window->addFile({record, false, {}});
    ToolTab *tab = m_window->startTool();
    ASSERT_TRUE(waitNoted("START"));
    button("sendDataChanged")->click();
    ASSERT_TRUE(waitNoted("DATACHANGED"));
    const auto stored = tab->run().tool().loadRecords();
    ASSERT_EQ(stored.size(), 1U);
    EXPECT_EQ(iesText(stored[0].record), iesFileText(record));
    EXPECT_EQ(stored[0].record.filename, "the other");
}

TEST_F(HostWindowTest, freshRecordsAreThereBeforeTheRequestIsTaken)
{
    behave("RefreshData");
    m_window->addFile({sampleLuminaire(), false, {}});
    m_window->startTool();
    EXPECT_TRUE(waitNoted("then Filename1 is sample luminaire"));
}

TEST_F(HostWindowTest, deleteFileNamesTheSelectedFile)
{
    m_window->addFile({sampleLuminaire(), false, {}});
    m_window->startTool();
    ASSERT_TRUE(waitNoted("START"));
    button("sendDeleteFile")->click();
    EXPECT_TRUE(waitNoted("DELETEFILE,sample luminaire"));
}

TEST_F(HostWindowTest, closeEndsTheToolShown)
{
    m_window->startTool();
    m_window->startTool();
    ASSERT_TRUE(QTest::qWaitFor([&] { return noted().count("START") == 2; }, 20'000));
    button("sendClose")->click();
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_window->toolCount() == 1; }, 20'000));
    EXPECT_TRUE(logged().contains("CloseRemove,PenwrightPE,2"));
    EXPECT_FALSE(logged().contains("CloseRemove,PenwrightPE,1"));
}

TEST_F(HostWindowTest, nothingCanBeSentWithoutATool)
{
    m_window->addFile({sampleLuminaire(), false, {}});
    EXPECT_FALSE(button("sendClose")->isEnabled());
    EXPECT_FALSE(button("sendDataChanged")->isEnabled());
    EXPECT_FALSE(button("sendDeleteFile")->isEnabled());
    m_window->startTool();
    EXPECT_TRUE(button("sendClose")->isEnabled());
    EXPECT_TRUE(button("sendDataChanged")->isEnabled());
    EXPECT_TRUE(button("sendDeleteFile")->isEnabled());
}

TEST_F(HostWindowTest, nothingOfAToolStaysInTheStore)
{
    behave("SendNewDataClose");
    const std::string section = m_window->startTool()->run().tool().address().section;
    ASSERT_TRUE(waitForNoTools());
    EXPECT_TRUE(SqliteSettingsStore(HostStore::userPath()).readAll("Lumentor_PE", section).empty());
}

TEST_F(HostWindowTest, closingTheWindowClosesItsToolsFirst)
{
    m_window->startTool();
    m_window->startTool();
    ASSERT_TRUE(QTest::qWaitFor([&] { return noted().count("START") == 2; }, 20'000));
    answer("2 wizards are open and have not finished their files. Close all the same?", "Close Without Saving");
    EXPECT_FALSE(m_window->close());
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !m_window->isVisible(); }, 20'000));
    EXPECT_EQ(noted().count("CLOSE"), 2);
    EXPECT_EQ(logged().count("Ended with status 0"), 2);
}

TEST_F(HostWindowTest, filesThatAreNotSavedAreLostOnRequestOnly)
{
    m_window->addFile({sampleLuminaire(), true, {}});
    m_window->addFile({sampleLuminaire(), false, {}});
    answer("1 file is not saved. Close all the same?", "Cancel");
    EXPECT_FALSE(m_window->close());
    EXPECT_TRUE(m_window->isVisible());
    m_window->startTool();
    ASSERT_TRUE(waitNoted("START"));
    m_window->addFile({sampleLuminaire(), false, {}});
    answer("2 files are not saved. 1 wizard is open and has not finished its file. Close all the same?",
           "Close Without Saving");
    m_window->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !m_window->isVisible(); }, 20'000));
    EXPECT_EQ(logged().count("Ended with status 0"), 1);
}

TEST_F(HostWindowTest, aFileThatIsNotSavedIsRemovedOnRequestOnly)
{
    m_window->addFile({sampleLuminaire(), true, {}});
    m_window->addFile({sampleLuminaire(), false, {}});
    const QString question =
        QString::fromStdString(sampleLuminaire().Filename) + " is not saved. Remove it all the same?";
    answer(question, "Cancel");
    button("remove")->click();
    EXPECT_EQ(m_window->files().count(), 2);
    answer(question, "Remove");
    button("remove")->click();
    EXPECT_EQ(m_window->files().count(), 1);
    button("remove")->click();
    EXPECT_EQ(m_window->files().count(), 0);
    EXPECT_TRUE(m_window->close());
}

TEST_F(HostWindowTest, aToolThatDoesNotCloseDoesNotKeepTheWindow)
{
    behave("silence");
    m_window->startTool();
    ASSERT_TRUE(waitNoted("START"));
    answer("1 wizard is open and has not finished its file. Close all the same?", "Close Without Saving");
    m_window->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !m_window->isVisible(); }, 20'000));
    EXPECT_TRUE(logged().contains("Did not close in time; killed"));
}

}  // namespace
}  // namespace penwright::test

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
