#include <csignal>
#include <thread>

#include "core/IesText.h"
#include "hostlink/RecordText.h"
#include "run/Desktop.h"
#include "run/RunTest.h"
#include "support/Captions.h"
#include "support/RecordAngles.h"
#include "x11/DisplayQuery.h"
#include "x11/HostProcess.h"

namespace penwright::test {
namespace {

constexpr const char *kHelpTitle = "New Photometric File - Help";

/// What no page takes, so that it comes from the host alone.
PhotometricRecord hostsRecord()
{
    PhotometricRecord record;
    record.Filename = "from the host.ies";
    record.PictureFilename = "lamp.png";
    record.OptionalData = "free text";
    return record;
}

/// What `walkToTheEnd` makes of the host's record: page 3 shows the built-in block of keywords.
PhotometricRecord typedRecord()
{
    PhotometricRecord record = hostsRecord();
    record.Keywords = {"IESNA:LM-63-2002 ", "[TEST] ",      "[TESTLAB] ", "[ISSUEDATE] ", "[MANUFAC] ",
                       "[LUMCAT] ",         "[LUMINAIRE] ", "[LAMPCAT] ", "[LAMP] "};
    record.NumLamps = 1;
    record.LumensPerLamp = 1000;
    record.CandelaMultiplier = 1;
    record.BallastFactor = 1;
    record.InputWatts = 42;
    record.Width = 0.5F;
    record.UnitsType = kMeters;
    setAngles(record, kTypeC, {0}, evenAngles(10, 90));
    setCandela(record, [](int, int v) { return v + 0.5; });
    return record;
}

/// The tool in the window of a host process on a real display.
class EmbeddedRun : public RunTest {
protected:
    void startIn(const std::string &embed = "1")
    {
        start({std::to_string(host.window()) + "," + embed + ",HostBox,7,3,Sec"}, "xcb");
        send("anything");
    }
    void startWizard()
    {
        startIn();
        send("START");
        ASSERT_TRUE(waitUntil([this] { return display.isViewable(wizard()) && display.focus() == wizard(); }));
    }

    /// The wizard's window: the host's only child.
    std::uint32_t wizard()
    {
        const auto children = display.childrenOf(host.window());
        return children.size() == 1 ? children[0] : 0;
    }
    std::string caption()
    {
        std::string name = xdotool({"getwindowname", std::to_string(wizard())});
        return name.substr(0, name.find('\n'));
    }
    /// The help, which gets the keyboard.
    void openHelp()
    {
        typeKeys({"F1"});
        const std::string help = windowTitled(kHelpTitle);
        ASSERT_NE(help, "");
        ASSERT_TRUE(waitUntil([&] { return std::to_string(display.focus()) == help; }));
    }
    /// Turns from the help to the wizard as its user does, who moves the help down and presses the wizard's caption.
    void pressWizardAboveHelp()
    {
        const std::string help = windowTitled(kHelpTitle);
        host.obey("move 100 100");                    // some managers keep the corners of the screen to themselves
        xdotool({"windowmove", help, "200", "900"});  // some managers keep it on the screen whole
        const auto number = static_cast<std::uint32_t>(std::stoul(help));
        const auto isBelow = [&] {
            const Rectangle wizards = display.onScreen(wizard());
            return wizards.x >= 100 && wizards.y >= 100 && display.onScreen(number).y > wizards.y + 80;
        };
        ASSERT_TRUE(waitUntil(isBelow)) << display.onScreen(number) << " over " << display.onScreen(wizard());
        const Rectangle place = display.onScreen(wizard());
        xdotool({"mousemove", std::to_string(place.x + 20), std::to_string(place.y + 20), "click", "1"});
        ASSERT_TRUE(waitUntil([this] { return display.focus() == wizard(); }));
    }
    bool shows(int page)
    {
        return waitUntil([&] { return caption() == kCaptions.at(page); });
    }
    void sendRecord(const PhotometricRecord &record)
    {
        writeRecordTexts(record,
                         [this](std::string_view word, std::string text) { write(recordValueName(word, 1), text); });
        send("DATACHANGED");
    }
    /// A shape is left unchosen.
    void typeGeneralInfo()
    {
        ASSERT_TRUE(shows(0));
        xdotool({"type", "--delay", "1", "1\t1000\t1\t1\t42\t\t0.5\t0\t0\t"});
        typeKeys({"Right"});  // meters
    }
    /// Type C with the first entry of both lists.
    void typeDistribution() { typeKeys({"space", "Tab", "Down", "Tab", "ctrl+Tab", "Down"}); }
    void typeCandelas()
    {
        std::vector<std::string> keys;
        for (int v = 1; v <= 10; ++v)
            keys.insert(keys.end(), {std::to_string(v / 10), std::to_string(v % 10), "period", "5", "Return"});
        typeKeys(keys);
    }
    void turnTo(int page)
    {
        typeKeys({"alt+n"});
        ASSERT_TRUE(shows(page)) << "the page shown is " << caption();
    }
    void typeAllPages()
    {
        typeGeneralInfo();
        turnTo(2);
        turnTo(3);
        typeDistribution();
        turnTo(4);
        typeCandelas();
    }
    void walkToTheEnd()
    {
        typeAllPages();
        turnTo(5);
    }
    /// Saves from the last page under a path that is typed.
    void saveAs(const std::string &path)
    {
        typeKeys({"Tab", "space"});
        const std::string window = windowTitled("Save New Photometric file As...");
        ASSERT_NE(window, "");
        ASSERT_TRUE(waitUntil([&] { return std::to_string(display.focus()) == window; }));
        xdotool({"type", "--delay", "1", path});
        typeKeys({"Return"});
        EXPECT_EQ(pop(), "SendNewDataClose,PenwrightPE,7")
            << (tool().hasEnded() ? tool().readAll()
                                  : "the keyboard is with " + xdotool({"getwindowfocus", "getwindowname"}));
    }
    PhotometricRecord storedRecord()
    {
        const ReadRecord read = readRecordTexts(
            [this](std::string_view word) { return store().read("Lumentor_PE", "Sec", recordValueName(word, 1)); });
        EXPECT_EQ(read.problem, "");
        return read.record;
    }

    DisplayQuery display;
    HostProcess host;
};

TEST_F(EmbeddedRun, windowIsTheHostsHiddenChildUntilStart)
{
    startIn();
    ASSERT_NE(wizard(), 0u);
    EXPECT_EQ(caption(), "PenwrightPE");
    EXPECT_FALSE(display.isMapped(wizard()));
    send("START");
    EXPECT_TRUE(waitUntil([this] { return display.isViewable(wizard()); }));
    EXPECT_TRUE(shows(0));
    send("CLOSE");
    expectUnloaded();
    EXPECT_EQ(tool().readAll(), "");
}

TEST_F(EmbeddedRun, isAChildOfTheHostEvenWhenItIsNotToBeEmbedded)
{
    startIn("0");
    EXPECT_NE(wizard(), 0u);
}

TEST_F(EmbeddedRun, movesToExactPixelsAndBackToTheDesignSize)
{
    startWizard();
    send("MOVEWIN,11,23,533,477");
    EXPECT_TRUE(waitUntil([this] { return display.geometryOf(wizard()) == Rectangle{11, 23, 533, 477}; }));
    send("movewin,10,20,0,0");
    EXPECT_TRUE(waitUntil([this] { return display.geometryOf(wizard()) == Rectangle{10, 20, 720, 560}; }));
    send("MOVEWIN,3,4,-1,9");
    EXPECT_TRUE(waitUntil([this] { return display.geometryOf(wizard()) == Rectangle{3, 4, 720, 560}; }));
    send("MOVEWIN,10,20,300");
    send("MOVEWIN,5,6,200,150");
    EXPECT_TRUE(waitUntil([this] { return display.geometryOf(wizard()) == Rectangle{5, 6, 200, 150}; }));
}

TEST_F(EmbeddedRun, placeBeforeStartIsKept)
{
    startIn();
    send("MOVEWIN,11,23,533,477");
    send("START");
    ASSERT_TRUE(waitUntil([this] { return display.isViewable(wizard()); }));
    EXPECT_EQ(display.geometryOf(wizard()), (Rectangle{11, 23, 533, 477}));
}

TEST_F(EmbeddedRun, wholePathFromTheHostsRecordToTheFileHandedOver)
{
    startWizard();
    sendRecord(hostsRecord());
    walkToTheEnd();
    typeKeys({"space"});
    EXPECT_EQ(pop(), "SendNewDataClose*,PenwrightPE,7");
    PhotometricRecord expected = typedRecord();
    expected.Filename = "new_file_4";
    EXPECT_EQ(storedRecord(), expected);
    EXPECT_FALSE(tool().hasEnded());
    send("CLOSE");
    expectUnloaded();
}

TEST_F(EmbeddedRun, halfARecordLeavesWhatWasThere)
{
    startWizard();
    sendRecord(hostsRecord());
    send("NOTHING");  // once it is taken, what came before it has been done
    write("OptionalData1", "half of another");
    write("VertAngles1", "3,0");
    send("DATACHANGED");
    walkToTheEnd();
    typeKeys({"space"});
    EXPECT_EQ(pop(), "SendNewDataClose*,PenwrightPE,7");
    EXPECT_EQ(storedRecord().OptionalData, "free text");
    send("CLOSE");
    expectUnloaded();
}

TEST_F(EmbeddedRun, savedFileIsOnDiskUnderTheTypedName)
{
    startWizard();
    walkToTheEnd();
    const std::string path = fileOfTheUser("lamp.ies");
    saveAs(path);
    EXPECT_EQ(contentOf(path).substr(0, 16), "IESNA:LM-63-2002");
    EXPECT_EQ(readBackFault(contentOf(path), storedRecord()), "");
    EXPECT_EQ(storedRecord().Filename, path);
    send("CLOSE");
    expectUnloaded();
}

TEST_F(EmbeddedRun, whatAKilledToolHeldIsTakenOverByKeysAndReachesTheFile)
{
    startWizard();
    typeAllPages();
    std::this_thread::sleep_for(killCost());  // by then what is typed is kept
    tool().signal(SIGKILL);
    ASSERT_TRUE(tool().waitForEnd());

    startWizard();
    std::this_thread::sleep_for(3s);  // a user's look at the line
    typeKeys({"shift+Tab", "shift+Tab", "space"});
    ASSERT_TRUE(shows(4)) << "the page shown is " << caption();
    turnTo(5);
    const std::string path = fileOfTheUser("lamp.ies");
    saveAs(path);
    PhotometricRecord expected = typedRecord();
    expected.OptionalData = "";
    EXPECT_EQ(contentOf(path), iesFileText(expected));
    send("CLOSE");
    expectUnloaded();
}

TEST_F(EmbeddedRun, escapeAndYesUnload)
{
    startWizard();
    typeKeys({"Escape"});
    ASSERT_TRUE(pressIn("Canceling New File Wizard", {"y"}));
    expectUnloaded();
}

TEST_F(EmbeddedRun, escapeAndNoGoOn)
{
    startWizard();
    typeKeys({"Escape"});
    ASSERT_TRUE(pressIn("Canceling New File Wizard", {"n"}));
    ASSERT_TRUE(waitUntil([this] { return display.focus() == wizard(); }));
    typeGeneralInfo();
    typeKeys({"alt+n"});
    EXPECT_TRUE(shows(2));
    EXPECT_EQ(hostInbox(), "");
}

TEST_F(EmbeddedRun, noEndsAToolThatIsNotEmbeddedUntold)
{
    startIn("0");
    send("START");
    ASSERT_TRUE(waitUntil([this] { return display.focus() == wizard(); }));
    typeKeys({"Escape"});
    ASSERT_TRUE(pressIn("Canceling New File Wizard", {"n"}));
    EXPECT_EQ(tool().waitForEnd(), 0);
    EXPECT_EQ(hostInbox(), "");
}

TEST_F(EmbeddedRun, closeEndsItUnderAMessage)
{
    startWizard();
    typeKeys({"Escape"});
    ASSERT_NE(windowTitled("Canceling New File Wizard"), "");
    send("CLOSE");
    expectUnloaded();
}

TEST_F(EmbeddedRun, helpTakesTheKeyboardAndGoesWithTheTool)
{
    startWizard();
    openHelp();
    send("CLOSE");
    expectUnloaded();
    EXPECT_EQ(tool().readAll(), "");
}

TEST_F(EmbeddedRun, helpStaysUsableWhileTheWizardAsks)
{
    startWizard();
    openHelp();
    pressWizardAboveHelp();
    typeKeys({"Escape"});
    ASSERT_NE(windowTitled("Canceling New File Wizard"), "");
    ASSERT_TRUE(pressIn(kHelpTitle, {"Escape"}));
    EXPECT_TRUE(waitUntil([] { return windowTitled(kHelpTitle, 0ms).empty(); }));
    ASSERT_TRUE(pressIn("Canceling New File Wizard", {"y"}));
    expectUnloaded();
}

TEST_F(EmbeddedRun, closeEndsItUnderTheWarnings)
{
    startWizard();
    typeKeys({"alt+n"});
    ASSERT_NE(windowTitled("Data incomplete!"), "");
    send("CLOSE");
    expectUnloaded();
}

TEST_F(EmbeddedRun, hostThatDiesTakesTheToolWithIt)
{
    startWizard();
    host.kill();
    EXPECT_EQ(tool().waitForEnd(), 0);
    EXPECT_EQ(hostInbox(), "");
}

TEST_F(EmbeddedRun, hostThatDiesBeforeStartTakesTheToolWithIt)
{
    startIn();
    host.obey("destroy");
    EXPECT_EQ(tool().waitForEnd(), 0);
}

}  // namespace
}  // namespace penwright::test
