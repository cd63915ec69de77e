#include "hostlib/ToolLink.h"

#include <gtest/gtest.h>

#include "hostbench/SampleLuminaire.h"
#include "platform/sqlite/SqliteSettingsStore.h"
#include "support/TempFolder.h"

namespace penwright {
namespace {

constexpr std::string_view kApplication = "Lumentor_PE";

/// The record with its candelas narrowed to singles: the store keeps 15 digits of what was once a single.
PhotometricRecord narrowed(PhotometricRecord record)
{
    for (int h = 1; h <= record.Candela.rows(); ++h)
        for (int v = 1; v <= record.Candela.columns(); ++v)
            record.Candela(h, v) = static_cast<float>(record.Candela(h, v));
    return record;
}

/// A host and a tool over one database file, each with a connection of its own.
class ToolLinkTest : public testing::Test {
protected:
    static ToolAddress address(const std::string &tag)
    {
        return {
            .window = 123, .embedded = true, .inbox = "HostBox", .tag = tag, .openFiles = 4, .section = "Sec" + tag};
    }

    std::string atTool(std::string_view section, std::string_view name)
    {
        return m_toolStore.read(kApplication, section, name, "nothing there");
    }

    test::TempFolder m_folder;
    SqliteSettingsStore m_hostStore{m_folder.file("settings.sqlite3")};
    SqliteSettingsStore m_toolStore{m_folder.file("settings.sqlite3")};
    ToolLink m_link{m_hostStore, address("7")};
};

TEST_F(ToolLinkTest, commandLineHasTheSixFields)
{
    EXPECT_EQ(m_link.commandLine(), "123,1,HostBox,7,4,Sec7");
    EXPECT_EQ(
        ToolLink(m_hostStore, {.window = 4294967295U, .embedded = false, .inbox = "In", .tag = "b", .section = "S"})
            .commandLine(),
        "4294967295,0,In,b,0,S");
}

TEST_F(ToolLinkTest, commandsReachTheToolOneAtATimeInTheirOrder)
{
    m_link.sendStart();
    m_link.sendDeleteFile("C:\\a,b.ies");
    EXPECT_FALSE(m_link.isAllTaken());
    EXPECT_EQ(m_link.deliver(), "START");
    EXPECT_EQ(m_link.deliver(), "");
    EXPECT_EQ(m_toolStore.pop(kApplication, "Sec7", "PenwrightPE|7"), "START");
    EXPECT_EQ(m_link.deliver(), "DELETEFILE,C:\\a,b.ies");
    EXPECT_FALSE(m_link.isAllTaken());
    EXPECT_EQ(m_toolStore.pop(kApplication, "Sec7", "PenwrightPE|7"), "DELETEFILE,C:\\a,b.ies");
    EXPECT_TRUE(m_link.isAllTaken());
    EXPECT_EQ(m_link.deliver(), "");
}

TEST_F(ToolLinkTest, onlyTheLastOfMovesInARowIsDelivered)
{
    m_link.sendMoveWindow(0, 0, 300, 200);
    m_link.sendMoveWindow(0, 0, 301, 201);
    m_link.sendDataChanged();
    m_link.sendMoveWindow(1, -2, 302, 202);
    m_link.sendClose();
    std::vector<std::string> delivered;
    while (!m_link.isAllTaken()) {
        delivered.push_back(m_link.deliver());
        m_toolStore.pop(kApplication, "Sec7", "PenwrightPE|7");
    }
    EXPECT_EQ(delivered,
              (std::vector<std::string>{"MOVEWIN,0,0,301,201", "DATACHANGED", "MOVEWIN,1,-2,302,202", "CLOSE"}));
}

TEST_F(ToolLinkTest, takingEmptiesTheHostsInbox)
{
    EXPECT_EQ(m_link.pop(), "");
    m_toolStore.write(kApplication, "Sec7", "HostBox", "CloseRemove,PenwrightPE,7");
    EXPECT_EQ(m_link.waiting(), "CloseRemove,PenwrightPE,7");
    EXPECT_EQ(m_link.pop(), "CloseRemove,PenwrightPE,7");
    EXPECT_EQ(atTool("Sec7", "HostBox"), "");
    EXPECT_EQ(m_link.pop(), "");
}

TEST_F(ToolLinkTest, twoToolsDoNotHearEachOther)
{
    ToolLink other(m_hostStore, address("8"));
    m_link.sendStart();
    other.sendClose();
    m_link.deliver();
    other.deliver();
    EXPECT_EQ(atTool("Sec7", "PenwrightPE|7"), "START");
    EXPECT_EQ(atTool("Sec8", "PenwrightPE|8"), "CLOSE");

    m_toolStore.write(kApplication, "Sec8", "HostBox", "CloseRemove,PenwrightPE,8");
    EXPECT_EQ(m_link.pop(), "");
    EXPECT_EQ(other.pop(), "CloseRemove,PenwrightPE,8");

    other.storeRecords({sampleLuminaire()});
    EXPECT_TRUE(m_link.loadRecords().empty());
}

TEST_F(ToolLinkTest, recordsComeBackAsTheyWereStored)
{
    PhotometricRecord second = sampleLuminaire();
    second.Filename = "second";
    second.TiltIncl = false;
    second.NumTiltAngles = 0;
    second.TiltAngles.clear();
    second.TiltMultipliers.clear();
    second.LampToLuminaireGeometry = 0;
    m_link.storeRecords({sampleLuminaire(), second});
    const std::vector<ReadRecord> loaded = m_link.loadRecords();
    ASSERT_EQ(loaded.size(), 2U);
    EXPECT_EQ(loaded[0].problem + loaded[1].problem, "");
    EXPECT_EQ(narrowed(loaded[0].record), sampleLuminaire());
    EXPECT_EQ(narrowed(loaded[1].record), second);
}

TEST_F(ToolLinkTest, storingRecordsTakesAwayWhatWasThere)
{
    m_link.storeRecords({sampleLuminaire(), sampleLuminaire()});
    m_link.storeRecords({});
    EXPECT_TRUE(m_link.loadRecords().empty());
    EXPECT_EQ(atTool("Sec7", "Candela2"), "");
}

TEST_F(ToolLinkTest, twentyFiveRecordsAreTheMost)
{
    m_link.storeRecords(std::vector<PhotometricRecord>(26, sampleLuminaire()));
    EXPECT_EQ(m_link.loadRecords().size(), 25U);
    EXPECT_EQ(atTool("Sec7", "Filename26"), "nothing there");
}

TEST_F(ToolLinkTest, aRecordThatDoesNotStoreLeavesTheStoreAsItWas)
{
    m_link.storeRecords({sampleLuminaire()});
    PhotometricRecord torn = sampleLuminaire();
    torn.NumVertAngles = 40;
    EXPECT_THROW(m_link.storeRecords({torn}), RunTimeError);
    ASSERT_EQ(m_link.loadRecords().size(), 1U);
    EXPECT_EQ(narrowed(m_link.loadRecords()[0].record), sampleLuminaire());
}

TEST_F(ToolLinkTest, aRecordThatDoesNotParseNamesItsProblem)
{
    m_link.storeRecords({sampleLuminaire()});
    m_toolStore.write(kApplication, "Sec7", "VertAngles1", "3,0,90");
    ASSERT_EQ(m_link.loadRecords().size(), 1U);
    EXPECT_EQ(m_link.loadRecords()[0].problem, "Problem parsing vertical angles");
}

TEST_F(ToolLinkTest, forgettingRemovesTheSectionAndNoOther)
{
    ToolLink other(m_hostStore, address("8"));
    m_link.storeRecords({sampleLuminaire()});
    other.storeRecords({sampleLuminaire()});
    m_link.forget();
    EXPECT_TRUE(m_toolStore.readAll(kApplication, "Sec7").empty());
    EXPECT_EQ(other.loadRecords().size(), 1U);
}

}  // namespace
}  // namespace penwright
