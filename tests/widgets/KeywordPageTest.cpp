// Page 3: first visit, defaults, and the buttons that leave it.
#include "widgets/KeywordPageTest.h"
#include "platform/sqlite/SqliteOpening.h"
#include "platform/sqlite/SqliteStatement.h"

namespace penwright::test {
namespace {

const std::string kSaveMessage =
    "[PenwrightPE|0] This will save all current keys and values as defaults. Leave individual descriptions empty that "
    "you want to fill in later.\n";
const OneBased<std::string> kBuiltInLines{"IESNA:LM-63-2002 ", "[TEST] ",    "[TESTLAB] ",
                                          "[ISSUEDATE] ",      "[MANUFAC] ", "[LUMCAT] ",
                                          "[LUMINAIRE] ",      "[LAMPCAT] ", "[LAMP] "};

TEST_F(KeywordPageTest, beginsWithTheBuiltInBlockAndTheFirstCell)
{
    open();
    EXPECT_EQ(rows(), kBuiltInRows);
    EXPECT_EQ(focusName(), "keyGrid");
    EXPECT_EQ(currentCell(), "1,0");
    EXPECT_EQ(record(), PhotometricRecord());
}

TEST_F(KeywordPageTest, beginsWithTheStoredDefaultsInTheirOrder)
{
    open({{"BIESNA91", ""}, {"A[TEST]", "1"}, {"", "x"}, {"\xC4\x80[MORE]", "y"}});
    EXPECT_EQ(rows(), "IESNA91|\n[TEST]|1\n|x\n[MORE]|y\n");
}

TEST_F(KeywordPageTest, laterVisitsKeepTheRows)
{
    open();
    typeInto(2, 1, "T-1");
    writeDefault("A[LAMP]", "meanwhile");
    click("cmdBack20");
    EXPECT_EQ(shownPage(), kLampPage);
    window->ShowPage(kKeywordPage);
    EXPECT_TRUE(rows().starts_with("IESNA:LM-63-2002|\n[TEST]|T-1\n[TESTLAB]|\n"));
}

TEST_F(KeywordPageTest, hasItsGridAndButtonsWithTheirCaptions)
{
    open();
    EXPECT_EQ(grid()->model()->headerData(0, Qt::Horizontal).toString(), "Keyword");
    EXPECT_EQ(grid()->model()->headerData(1, Qt::Horizontal).toString(),
              "Description (254 total chars max per line. or use [MORE]  )");
    EXPECT_EQ(grid()->model()->headerData(8, Qt::Vertical).toString(), "9");
    EXPECT_EQ(grid()->model()->headerData(9, Qt::Vertical).toString(), "*");
    EXPECT_EQ(find<QPushButton>("cmdDefaultLoad")->text(), "Load Defaults");
    EXPECT_EQ(find<QPushButton>("cmdSaveDefaults")->text(), "Save As Defaults");
    EXPECT_EQ(find<QLabel>("labLines")->buddy(), grid());
}

TEST_F(KeywordPageTest, ctrlTabWalksFromTheGridThroughTheButtons)
{
    open();
    press(Qt::Key_Tab, Qt::ControlModifier);
    std::vector<std::string> walked;
    for (int i = 0; i < 7; ++i) {
        walked.push_back(focusName());
        press(Qt::Key_Tab);
    }
    EXPECT_EQ(walked, (std::vector<std::string>{"cmdDefaultLoad", "cmdSaveDefaults", "cmdCancel20", "cmdHelp20",
                                                "cmdNext20", "cmdBack20", "keyGrid"}));
}

TEST_F(KeywordPageTest, enterOnTheButtonsOfDefaultsPressesNext)
{
    open();
    typeInto(2, 1, "T-1");
    const std::string before = rows();
    for (const char *button : {"cmdDefaultLoad", "cmdSaveDefaults"}) {
        window->ShowPage(kKeywordPage);
        find(button)->setFocus();
        press(Qt::Key_Return);
        EXPECT_EQ(shownPage(), kDistributionPage) << button;
        EXPECT_EQ(rows(), before) << button;
    }
    EXPECT_EQ(dialogs.transcript, "");
    EXPECT_EQ(storedDefaults(), "");
}

TEST_F(KeywordPageTest, spacePressesTheButtonsOfDefaults)
{
    open();
    typeInto(2, 1, "T-1");
    find("cmdSaveDefaults")->setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(dialogs.transcript, kSaveMessage);
    typeInto(2, 1, "T-2");
    find("cmdDefaultLoad")->setFocus();
    press(Qt::Key_Space);
    EXPECT_TRUE(rows().starts_with("IESNA:LM-63-2002|\n[TEST]|T-1\n"));
}

TEST_F(KeywordPageTest, cleanRowsAreStoredAndThePageIsTurned)
{
    open();
    EXPECT_EQ(warningsOfNext(), "");
    PhotometricRecord expected;
    expected.Keywords = kBuiltInLines;
    EXPECT_EQ(record(), expected);
    EXPECT_EQ(shownPage(), kDistributionPage);
}

TEST_F(KeywordPageTest, nextTakesTheOpenEditor)
{
    open();
    grid()->goTo(2, 1);
    typeText("  T 1 ");
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(record().Keywords(2), "[TEST] T 1");
}

TEST_F(KeywordPageTest, isFilledInAndLeftByKeyboardAlone)
{
    open();
    press(Qt::Key_Down);
    press(Qt::Key_Tab);
    typeText("T-17");
    press(Qt::Key_Return);
    typeText("Lab of ours");
    press(Qt::Key_Tab);
    press(Qt::Key_End, Qt::ControlModifier);
    press(Qt::Key_Left);
    typeText("[MORE]");
    press(Qt::Key_Tab);
    typeText("and more");
    press(Qt::Key_Return);
    press(Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(shownPage(), kDistributionPage);
    OneBased<std::string> expected = kBuiltInLines;
    expected(2) = "[TEST] T-17";
    expected(3) = "[TESTLAB] Lab of ours";
    expected.append("[MORE] and more");
    EXPECT_EQ(record().Keywords, expected);
}

TEST_F(KeywordPageTest, faultsAreToldTogetherAndTheFirstCellGetsTheFocus)
{
    open();
    typeInto(1, 1, "x");
    typeInto(3, 0, "[FOO]");
    typeInto(10, 1, "lost");
    EXPECT_EQ(warningsOfNext(),
              "line: 1  first line must contain only IESNA:LM-63-2002 or IESNA:LM-63-1995\r\n"
              "line:3 [FOO] not a valid IES or user keyword.\r\n"
              "line:10 value must have a keyword, like [MORE] or [OTHER].\r\n"
              "file must start with IES version number (i.e. IESNA:LM-63-1995)\r\n");
    EXPECT_EQ(shownPage(), kKeywordPage);
    EXPECT_EQ(record(), PhotometricRecord());
    EXPECT_EQ(focusName(), "keyGrid");
    EXPECT_EQ(currentCell(), "1,1");
    press(Qt::Key_Delete);
    warningsOfNext();
    EXPECT_EQ(currentCell(), "3,0");
}

TEST_F(KeywordPageTest, descriptionOfTheVersionLineIsToldWhileItIsTyped)
{
    open();
    const std::string refused = "The version line takes no description: Next refuses it.";
    grid()->goTo(1, 1);
    EXPECT_EQ(label("labDescription"), "Version line of the format of 2002");
    typeText("x");
    EXPECT_EQ(label("labDescription"), refused);
    EXPECT_EQ(grid()->accessibleDescription().toStdString(), refused);
    press(Qt::Key_Escape);
    EXPECT_EQ(label("labDescription"), "Version line of the format of 2002");
}

TEST_F(KeywordPageTest, missingVersionLineIsLookedForInRowOne)
{
    open({{"A[TEST]", "1"}});
    grid()->goTo(2, 1);
    EXPECT_EQ(warningsOfNext(), "file must start with IES version number (i.e. IESNA:LM-63-1995)\r\n");
    EXPECT_EQ(currentCell(), "1,0");
}

TEST_F(KeywordPageTest, lineOf254CharactersPassesAndOneMoreDoesNot)
{
    open();
    typeInto(2, 1, std::string(248, 'x'));
    EXPECT_EQ(warningsOfNext(), "");
    window->ShowPage(kKeywordPage);
    typeInto(2, 1, std::string(249, 'x'));
    EXPECT_EQ(warningsOfNext(), "line:2 must be less than 254 characters total. please use a [MORE]\r\n");
    EXPECT_EQ(currentCell(), "2,1");
}

TEST_F(KeywordPageTest, emptyRowIsAnEmptyLine)
{
    open({{"AIESNA91", ""}, {"B", ""}, {"C[TEST]", "1"}});
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(record().Keywords, (OneBased<std::string>{"IESNA91 ", "", "[TEST] 1"}));
}

TEST_F(KeywordPageTest, backTakesTheEditAndChecksNothing)
{
    open();
    grid()->goTo(1, 0);
    typeText("[FOO]");
    click("cmdBack20");
    EXPECT_EQ(shownPage(), kLampPage);
    EXPECT_EQ(record(), PhotometricRecord());
    window->ShowPage(kKeywordPage);
    EXPECT_TRUE(rows().starts_with("[FOO]|\n[TEST]|\n"));
}

TEST_F(KeywordPageTest, loadDefaultsReplacesTheRowsWithoutAQuestion)
{
    open();
    typeInto(2, 1, "T-1");
    writeDefault("AIESNA91", "");
    writeDefault("B[OTHER]", "mine");
    grid()->goTo(9, 1);
    typeText("half");
    find<QPushButton>("cmdDefaultLoad")->click();  // with the editor still open
    EXPECT_EQ(rows(), "IESNA91|\n[OTHER]|mine\n");
    EXPECT_FALSE(grid()->isEditing());
    EXPECT_EQ(dialogs.transcript, "");
    click("cmdDefaultLoad");
    EXPECT_EQ(rows(), "IESNA91|\n[OTHER]|mine\n");
}

TEST_F(KeywordPageTest, saveAsDefaultsInformsThenCommitsThenSaves)
{
    open({{"AIESNA91", ""}, {"B[OLD]", "gone"}, {"C[TEST]", ""}});
    press(Qt::Key_Down);
    press(Qt::Key_Minus, Qt::ControlModifier);
    grid()->goTo(2, 1);
    typeText("T-1");
    std::string storedAtMessage;
    dialogs.onShow = [&](const MessageBox &) { storedAtMessage = storedDefaults(); };
    find<QPushButton>("cmdSaveDefaults")->click();  // with the editor still open
    EXPECT_EQ(dialogs.transcript, kSaveMessage);
    EXPECT_EQ(storedAtMessage, "AIESNA91=\nB[OLD]=gone\nC[TEST]=\n");
    EXPECT_EQ(storedDefaults(), "AIESNA91=\nB[TEST]=T-1\n");
    EXPECT_EQ(shownPage(), kKeywordPage);
    EXPECT_EQ(record(), PhotometricRecord());
}

TEST_F(KeywordPageTest, escapeHeldOnAtTheMessageOfDefaultsAsksNothingMore)
{
    useRealDialogs();
    open();
    find("cmdSaveDefaults")->setFocus();
    QTimer::singleShot(0, [] { QTest::keyPress(QApplication::activeModalWidget(), Qt::Key_Escape); });
    press(Qt::Key_Space);
    ASSERT_FALSE(QApplication::activeModalWidget());
    QApplication::setActiveWindow(window.get());
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(QApplication::focusWidget(), &held);
    bool asks = false;
    QTimer::singleShot(0, [&] {
        asks = QApplication::activeModalWidget();
        if (asks)
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    });
    settle();
    EXPECT_FALSE(asks);
    EXPECT_EQ(focusName(), "cmdSaveDefaults");
}

TEST_F(KeywordPageTest, rowToAppendIsNotSaved)
{
    open({{"AIESNA91", ""}});
    grid()->goTo(2, 1);
    typeText("dropped");
    press(Qt::Key_Escape);
    click("cmdSaveDefaults");
    EXPECT_EQ(storedDefaults(), "AIESNA91=\n");
    typeInto(2, 0, "[MORE]");
    click("cmdSaveDefaults");
    EXPECT_EQ(storedDefaults(), "AIESNA91=\nB[MORE]=\n");
}

TEST_F(KeywordPageTest, savedDefaultsAreLoadedAgain)
{
    open();
    grid()->goTo(9, 1);
    QApplication::clipboard()->setText("Gr\u00F6\u00DFe");
    press(Qt::Key_V, Qt::ControlModifier);
    click("cmdSaveDefaults");
    typeInto(9, 1, "other");
    click("cmdDefaultLoad");
    EXPECT_TRUE(rows().ends_with("[LAMPCAT]|\n[LAMP]|Gr\u00F6\u00DFe\n"));
}

TEST_F(KeywordPageTest, storeThatCannotBeWrittenIsIgnoredAndThePageLivesOn)
{
    open({{"AIESNA91", ""}, {"B[TEST]", "1"}});
    typeInto(2, 1, "2");
    store.setBusyWait([] { return false; });
    SqliteSettingsStore other(folder.file("settings.sqlite3"));
    other.transact([this] { click("cmdSaveDefaults"); });
    EXPECT_EQ(dialogs.transcript, kSaveMessage);
    EXPECT_EQ(storedDefaults(), "AIESNA91=\nB[TEST]=1\n");
    EXPECT_EQ(rows(), "IESNA91|\n[TEST]|2\n");
    click("cmdSaveDefaults");
    EXPECT_EQ(storedDefaults(), "AIESNA91=\nB[TEST]=2\n");
}

/// Takes the store's table away, as another program may; the reason that reading gives from then on.
std::string breakStore(const std::string &path)
{
    runSqlite(openSqlite(path).get(), "DROP TABLE setting");
    return path + ": no such table: setting\n";
}

TEST_F(KeywordPageTest, storeThatCannotBeReadIsToldOnceAndLeavesTheRows)
{
    open();
    typeInto(2, 1, "T-1");
    const std::string before = rows();
    const std::string reason = breakStore(folder.file("settings.sqlite3"));
    click("cmdDefaultLoad");
    EXPECT_EQ(dialogs.transcript, "[" + kCaptions[kKeywordPage] + "|0] " + reason);
    EXPECT_EQ(rows(), before);
}

TEST_F(KeywordPageTest, storeThatCannotBeReadLeavesThePageBefore)
{
    startWizard();
    fillPageOne();
    const std::string reason = breakStore(folder.file("settings.sqlite3"));
    click("cmdNext10");
    EXPECT_EQ(shownPage(), kLampPage);
    EXPECT_EQ(dialogs.transcript, "[" + kCaptions[kLampPage] + "|0] " + reason);
}

TEST_F(KeywordPageTest, unloadingAtTheMessageSavesNothing)
{
    useRealDialogs();
    open({{"AIESNA91", ""}});
    typeInto(2, 0, "[MORE]");
    QTimer::singleShot(0, [this] { closing.begin(); });
    click("cmdSaveDefaults");
    ASSERT_TRUE(runUntilEnd().has_value());
    EXPECT_EQ(storedDefaults(), "AIESNA91=\n");
}

}  // namespace
}  // namespace penwright::test
