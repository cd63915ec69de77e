// One luminaire as an engineer makes it, by the keyboard alone: what it takes, and what is left of it by a crash.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

#include "core/IesReader.h"
#include "core/IesText.h"
#include "run/Desktop.h"
#include "run/RunTest.h"
#include "support/Captions.h"
#include "support/RecordAngles.h"

namespace penwright::test {
namespace {

/// A laboratory's table as a German spreadsheet copies it: 19 vertical angles, 5 planes, an average, and its unit.
constexpr int kVertical = 19;
constexpr int kHorizontal = 5;

float angleOf(int place, float step)
{
    return static_cast<float>(place - 1) * step;
}

/// Candela with one decimal, 2,400 straight down and dark at 90 degrees, wider across than along.
double candelaAt(int h, int v)
{
    const double down = (90.0 - angleOf(v, 5)) / 90.0;
    const double across = v == 1 ? 0 : 30.0 * (h - 1);
    return static_cast<double>(static_cast<long>((2400 * down * down + across * down) * 10)) / 10;
}

std::string germanText(double value)
{
    const long tenths = static_cast<long>(value * 10 + 0.5);
    std::string whole = std::to_string(tenths / 10);
    if (whole.size() > 3)
        whole.insert(whole.size() - 3, ".");
    return whole + "," + std::to_string(tenths % 10);
}

std::string laboratoryTable()
{
    std::ostringstream text;
    text << "Messung 4711\r\n\r\nGamma";
    for (int h = 1; h <= kHorizontal; ++h)
        text << "\tC" << angleOf(h, 22.5F);
    text << "\tMittel\r\n\xC2\xB0\tcd\tcd\tcd\tcd\tcd\tcd\r\n";
    std::string table = text.str();
    std::replace(table.begin(), table.end(), '.', ',');
    for (int v = 1; v <= kVertical; ++v) {
        table += std::to_string(5 * (v - 1));
        for (int h = 1; h <= kHorizontal; ++h)
            table += "\t" + germanText(candelaAt(h, v));
        table += "\t" + germanText(candelaAt(3, v)) + "\r\n";
    }
    return table;
}

/// The executable as a window of its own, typed into by real keys, each of which is counted.
class EngineerRun : public RunTest {
protected:
    void SetUp() override
    {
        std::ofstream(fileOfTheUser("table.txt")) << laboratoryTable();
        ASSERT_EQ(m_spreadsheet
                      .emplace(std::vector<std::string>{CLIPBOARD_OWNER, fileOfTheUser("table.txt")},
                               Process::Environment{{"QT_QPA_PLATFORM", "xcb"}})
                      .readLine(),
                  "copied");
    }

    void startAndShow()
    {
        start({"123,1,HostBox,7,3,Sec"}, "xcb");
        send("START");
        turnTo(kCaptions[0]);
    }

    /// Waits for a window and gives it the keyboard, as a window manager does.
    void turnTo(const std::string &title)
    {
        const std::string window = windowTitled(title);
        ASSERT_NE(window, "") << title;
        xdotool({"windowfocus", "--sync", window});
    }

    void press(const std::vector<std::string> &keys)
    {
        typeKeys(keys);
        m_keys += static_cast<int>(keys.size());
    }

    void type(const std::string &text)
    {
        xdotool({"type", "--delay", "1", text});
        m_keys += static_cast<int>(text.size());
    }

    void next(int page)
    {
        press({"alt+n"});
        turnTo(kCaptions.at(static_cast<std::size_t>(page)));
    }

    /// Waits until a draft has been written and nothing more for longer than typing waits to be kept.
    bool isKept() const
    {
        return waitUntil(
            [this] {
                const auto last = lastWriting();
                return last && std::filesystem::file_time_type::clock::now() - *last > 8s;
            },
            60s);
    }

    int keys() const { return m_keys; }

private:
    std::optional<std::filesystem::file_time_type> lastWriting() const
    {
        std::optional<std::filesystem::file_time_type> last;
        std::error_code none;
        for (const auto &file : std::filesystem::directory_iterator(stateFolder() + "/Lumentor/drafts", none))
            if (const auto time = file.last_write_time(none); !none && (!last || time > *last))
                last = time;
        return last;
    }

    std::optional<Process> m_spreadsheet;
    int m_keys = 0;
};

/// The record that the file is to hold.
PhotometricRecord measuredRecord()
{
    PhotometricRecord record;
    record.Keywords = {"IESNA:LM-63-2002 ",
                       "[TEST] 4711",
                       "[TESTLAB] Lab 7",
                       "[ISSUEDATE] 14-MAY-2026",
                       "[MANUFAC] Example",
                       "[LUMCAT] ",
                       "[LUMINAIRE] ",
                       "[LAMPCAT] ",
                       "[LAMP] "};
    record.NumLamps = 1;
    record.LumensPerLamp = 8900;
    record.CandelaMultiplier = 1;
    record.BallastFactor = 1;
    record.InputWatts = 78.5F;
    record.Width = 0.6F;
    record.Length = 1.2F;
    record.Height = 0.1F;
    record.UnitsType = kMeters;
    std::vector<float> planes;
    for (int h = 1; h <= kHorizontal; ++h)
        planes.push_back(angleOf(h, 22.5F));
    setAngles(record, kTypeC, planes, evenAngles(kVertical, 90));
    setCandela(record, [](int h, int v) { return double{static_cast<float>(candelaAt(h, v))}; });
    return record;
}

TEST_F(EngineerRun, tableFromTheClipboardThreeSlipsACrashAndARemarkMakeTheFile)
{
    startAndShow();
    type("1\t8900\t1\t1\t78.5\t\t0.6\t1.2\t0.1\t");
    press({"Right"});  // meters
    next(2);
    next(3);
    press({"space", "Tab", "Tab", "ctrl+shift+v"});
    turnTo("Paste Table");
    press({"Return"});
    ASSERT_TRUE(waitUntil([] { return windowTitled("Paste Table", 0ms).empty(); }));
    turnTo(kCaptions[3]);
    next(4);

    press({"Down", "Down", "9", "Return", "ctrl+z"});
    press({"ctrl+a", "Delete", "ctrl+z"});
    press({"Right", "7", "7", "Return", "ctrl+z"});
    ASSERT_TRUE(isKept());
    tool().signal(SIGKILL);
    ASSERT_TRUE(tool().waitForEnd());

    startAndShow();
    std::this_thread::sleep_for(3s);             // a user's look at the line
    press({"shift+Tab", "shift+Tab", "space"});  // takes the draft over
    turnTo(kCaptions[4]);
    next(5);
    press({"Tab", "Tab", "Return"});  // the first remark: [TEST] is empty
    turnTo(kCaptions[2]);
    type("4711\rLab 7\r14-MAY-2026\rExample\r");
    next(3);
    next(4);
    next(5);
    press({"Tab", "space"});
    turnTo("Save New Photometric file As...");
    type(fileOfTheUser("a.ies"));
    press({"Return"});
    EXPECT_EQ(pop(), "SendNewDataClose,PenwrightPE,7");

    const auto read = readIesFile(contentOf(fileOfTheUser("a.ies")));
    ASSERT_TRUE(std::holds_alternative<IesContent>(read)) << std::get<IesFault>(read).text;
    EXPECT_EQ(iesFileText(std::get<IesContent>(read).record), iesFileText(measuredRecord()));
    const int pathKeys = static_cast<int>(fileOfTheUser("a.ies").size());
    EXPECT_EQ(keys() - pathKeys, 95) << "keys, without those of the path";
    send("CLOSE");
    expectUnloaded();
}

}  // namespace
}  // namespace penwright::test
