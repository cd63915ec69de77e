#include <fstream>
#include <sstream>

#include "a11y/AccessibilityBus.h"
#include "a11y/AccessibleText.h"
#include "run/Desktop.h"
#include "run/RunTest.h"
#include "support/Captions.h"
#include "x11/DisplayQuery.h"
#include "x11/HostProcess.h"

namespace penwright::test {
namespace {

/// The text kept for a window as it must be read.
std::string expected(const std::string &file)
{
    std::ifstream in(std::string(EXPECTED_FOLDER) + "/" + file + ".txt");
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

/// The tool in the window of a host process, with a screen reader beside it.
class ReadRun : public RunTest {
protected:
    void SetUp() override
    {
        start({std::to_string(host.window()) + ",1,HostBox,7,3,Sec"}, "xcb");
        send("START");
        ASSERT_TRUE(waitUntil([this] {
            const auto children = display.childrenOf(host.window());
            return children.size() == 1 && display.focus() == children[0];
        }));
    }

    /// Whether the window with a title comes to read as the text kept in a file, with what is typed so far.
    testing::AssertionResult reads(const std::string &title, const std::string &file)
    {
        const std::string wanted = expected(file);
        std::string found;
        waitUntil([&] { return (found = readNow(title)) == wanted; }, 60s);
        if (found == wanted)
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "not as in tests/data/accessibility/" << file << ".txt but:\n" << found;
    }

    /// What the window reads like; "" where it changes while it is being read.
    std::string readNow(const std::string &title) const
    {
        try {
            return accessibleWindow(bus.desktop(), title);
        } catch (const std::runtime_error &) {
            return {};
        }
    }

    /// Whether this comes to be told as what has the focus.
    testing::AssertionResult tells(const std::string &wanted)
    {
        std::string found;
        if (waitUntil([&] { return (found = bus.focus()) == wanted; }, 60s))
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "but " << found;
    }

    static void type(const std::string &text) { xdotool({"type", "--delay", "1", text}); }

    AccessibilityBus bus;
    DisplayQuery display;
    HostProcess host;
};

TEST_F(ReadRun, everyPageReadsAsItLooks)
{
    type("1\t1000\t1\t1\t42\t");
    typeKeys({"Down", "Down", "Down"});
    type("\t0.5\t0.7\t0\t");
    typeKeys({"Right", "Tab", "space"});
    EXPECT_TRUE(reads(kCaptions[0], "page-1"));

    typeKeys({"alt+n"});
    type("2\t");
    typeKeys({"space", "Tab"});
    type("0\t90\r");
    EXPECT_TRUE(reads(kCaptions[1], "page-2"));

    typeKeys({"alt+n", "Down", "Right"});
    type("Report 7\r");
    EXPECT_TRUE(reads(kCaptions[2], "page-3"));

    typeKeys({"alt+n"});
    EXPECT_TRUE(reads(kCaptions[3], "page-4-untouched"));
    type(" \t3\t0\t45\t90\t2\t0\t90");
    typeKeys({"Return"});
    EXPECT_TRUE(reads(kCaptions[3], "page-4"));

    typeKeys({"alt+n"});
    EXPECT_TRUE(reads(kCaptions[4], "page-5-untouched"));
    type("100\r80\r0\r");
    typeKeys({"Right", "Up", "Up"});
    type("100\r60\r");
    EXPECT_TRUE(reads(kCaptions[4], "page-5"));
    type("5\r");

    typeKeys({"ctrl+c", "ctrl+shift+v"});
    EXPECT_TRUE(reads("Paste Table", "paste-table"));
    typeKeys({"Escape"});

    typeKeys({"alt+n"});
    EXPECT_TRUE(reads(kCaptions[5], "page-6"));
    send("CLOSE");
    expectUnloaded();
}

/// A step of a walk: the keys pressed and what is told of it.
struct Step {
    std::vector<std::string> keys;
    std::string told;
};

/// The steps kept in a file: a line "> " with keys, and below it what is told.
std::vector<Step> stepsOf(const std::string &file)
{
    std::vector<Step> steps;
    std::istringstream lines(expected(file));
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("> ")) {
            if (!steps.empty())
                steps.back().told += line + "\n";
            continue;
        }
        std::istringstream words(line.substr(2));
        steps.emplace_back();
        for (std::string key; words >> key;)
            steps.back().keys.push_back(key);
    }
    return steps;
}

TEST_F(ReadRun, aWalkOverAllPagesIsToldAsItIsKept)
{
    ASSERT_TRUE(tells("text \"Number Of Lamps\" = \"\""));
    const std::vector<Step> steps = stepsOf("walk");
    ASSERT_GT(steps.size(), 50U);
    for (const Step &step : steps) {
        bus.beginToTell();
        typeKeys(step.keys);
        waitUntil([&] { return bus.told() == step.told; }, 60s);
        ASSERT_EQ(bus.told(), step.told) << "at " << testing::PrintToString(step.keys);
    }
    send("CLOSE");
    expectUnloaded();
}

// A reader that hears of a text first takes the box for known and never says its name.
TEST_F(ReadRun, aBoxIsToldBeforeItsText)
{
    ASSERT_TRUE(tells("text \"Number Of Lamps\" = \"\""));
    const int before = bus.textsBeforeFocus();
    for (const std::string name : {"Lumens Per Lamp", "Candela Multiplier", "Ballast Factor", "Input Watts"}) {
        typeKeys({"Tab"});
        ASSERT_TRUE(waitUntil([&] { return bus.focus().find(name) != std::string::npos; }, 60s)) << bus.focus();
    }
    EXPECT_EQ(bus.textsBeforeFocus(), before);
    send("CLOSE");
    expectUnloaded();
}

// The host's window is told as active when a list closes, and would have the last word.
TEST_F(ReadRun, aFieldIsToldOnceMoreWhenItsListHasClosed)
{
    constexpr const char *kShapes = "combo box \"Rectangle\" (Rectangle)";
    ASSERT_TRUE(tells("text \"Number Of Lamps\" = \"\""));
    type("1\t1\t1\t1\t1\t");
    ASSERT_TRUE(tells("combo box \"Luminous shape\""));
    typeKeys({"alt+Down", "Down"});
    ASSERT_TRUE(tells("list item \"Rectangle\""));
    const int before = bus.timesFocused();
    typeKeys({"Return"});
    EXPECT_TRUE(waitUntil([&] { return bus.timesFocused() >= before + 2; }, 60s));
    EXPECT_TRUE(tells(kShapes));
    send("CLOSE");
    expectUnloaded();
}

TEST_F(ReadRun, focusIsToldWhereverItGoes)
{
    EXPECT_TRUE(tells("text \"Number Of Lamps\" = \"\""));
    type("1\t1\t1\t1\t1\t");
    EXPECT_TRUE(tells("combo box \"Luminous shape\""));
    typeKeys({"alt+Down"});
    EXPECT_TRUE(tells("list item \"Point\""));
    typeKeys({"Down", "Down"});
    EXPECT_TRUE(tells("list item \"Rectangle w/ Luminous Sides\""));
    EXPECT_TRUE(reads(kCaptions[0], "page-1-shapes"));
    typeKeys({"Return"});
    EXPECT_TRUE(tells("combo box \"Rectangle w/ Luminous Sides\" (Rectangle w/ Luminous Sides)"));
    type("\t1\t1\t1");
    typeKeys({"alt+n"});
    EXPECT_TRUE(tells("cell \"IESNA:LM-63-2002\""));
    typeKeys({"Down"});
    EXPECT_TRUE(tells("cell \"[TEST]\""));
    typeKeys({"F4"});
    EXPECT_TRUE(tells("list item \"[TEST]\" (Test report number)"));
    typeKeys({"Escape"});
    EXPECT_TRUE(tells("combo box \"[TEST]\" (Row 2, Keyword)"));
    typeKeys({"Escape"});
    EXPECT_TRUE(tells("cell \"[TEST]\""));
    typeKeys({"Right"});
    EXPECT_TRUE(tells("cell \"blank\""));
    const int before = bus.changedDescriptions();
    type("Report 7");
    EXPECT_TRUE(tells("text \"Row 2, Description\" = \"Report 7\""));
    EXPECT_EQ(bus.changedDescriptions(), before);
    typeKeys({"Return"});
    EXPECT_TRUE(tells("cell \"blank\""));
    EXPECT_TRUE(waitUntil([&] { return bus.changedDescriptions() == before + 1; }));  // told behind the cell
    typeKeys({"Up"});
    EXPECT_TRUE(tells("cell \"Report 7\""));
    EXPECT_TRUE(waitUntil([&] { return bus.changedDescriptions() == before + 2; }));
    send("CLOSE");
    expectUnloaded();
    EXPECT_EQ(bus.changedDescriptions(), before + 2);
}

TEST_F(ReadRun, dialogsReadAsTheyLook)
{
    typeKeys({"alt+n"});
    EXPECT_TRUE(reads("Data incomplete!", "warnings"));
    typeKeys({"Return", "Escape"});
    EXPECT_TRUE(reads("Canceling New File Wizard", "cancel"));
    send("CLOSE");
    expectUnloaded();
}

}  // namespace
}  // namespace penwright::test
