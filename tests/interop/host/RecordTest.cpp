#include <penwright_host/HostedTool.h>

#include <map>

#include "hostlib/RecordBridge.h"
#include "interop/host/Guide.h"
#include "platform/sqlite/SqliteSettingsStore.h"
#include "support/RandomRecord.h"

namespace penwright::test {
namespace {

HostRecord recordOfThePage()
{
    HostRecord record;
    record.filename = "/home/me/pendant, two lamps.ies";
    record.keywords = {"IESNA:LM-63-2002", "[TEST] 2214-07", "[MANUFAC] Müller & Sons"};
    record.tiltIncluded = true;
    record.tiltGeometry = 1;
    record.tiltAngles = {0, 45, 90};
    record.tiltFactors = {1, 0.94F, 0.9F};
    record.lamps = 2;
    record.lumensPerLamp = 4450;
    record.candelaMultiplier = 1;
    record.photometricType = 1;
    record.units = 2;
    record.width = 0.18F;
    record.length = 1.183F;
    record.height = 0.06F;
    record.ballastFactor = 0.95F;
    record.inputWatts = 117.4F;
    record.horizontalAngles = {0, 90};
    record.verticalAngles = {0, 45, 90};
    record.candela = {2480.4, 1424.6, 0, 2480.4, 1723.8, 0.5};
    record.optionalData = "comes back as it is";
    record.pictureFilename = "pendant.png";
    return record;
}

class GuideRecord : public Guide {
protected:
    /// The values of the section that are not empty.
    static std::map<std::string, std::string> values()
    {
        std::map<std::string, std::string> values;
        SqliteSettingsStore settings(HostStore::userPath());
        for (const Setting &setting : settings.readAll("Lumentor_PE", "Host_4711_7"))
            if (!setting.data.empty())
                values[setting.name] = setting.data;
        return values;
    }

    void runRecordSql()
    {
        Process sql({"sqlite3", HostStore::userPath(), ".read " + extract("record.sql")}, {}, Process::Errors::Joined);
        EXPECT_EQ(sql.readAll(), "");
        EXPECT_EQ(sql.waitForEnd(), 0);
    }

    HostStore m_store;
    HostedTool m_tool{m_store, {.window = 1, .section = "Host_4711_7"}};
};

TEST_F(GuideRecord, theRecordOfThePageIsReadAsItSays)
{
    runRecordSql();
    ASSERT_EQ(m_tool.loadRecords().size(), 1U);
    EXPECT_EQ(m_tool.loadRecords()[0].problem, "");
    EXPECT_EQ(m_tool.loadRecords()[0].record, recordOfThePage());
}

TEST_F(GuideRecord, theRecordOfThePageIsWhatIsWrittenToTheLetter)
{
    runRecordSql();
    const auto ofThePage = values();
    m_tool.storeRecords({recordOfThePage()});
    EXPECT_EQ(values(), ofThePage);
    EXPECT_EQ(ofThePage.size(), 11U);
}

std::string withCarriageReturns(const std::string &text)
{
    std::string lines;
    for (const char letter : text)
        lines += letter == '\n' ? "\r\n" : std::string(1, letter);
    return lines;
}

TEST_F(GuideRecord, theFileOfThePageIsWhatIsWrittenToTheByte)
{
    const std::string file = withCarriageReturns(guideBlock("pendant.ies"));
    EXPECT_EQ(file, iesText(recordOfThePage()));
    EXPECT_NE(contentOf(GUIDE).find("these " + std::to_string(file.size()) + " bytes"), std::string::npos);
}

class GuideFile : public GuideRecord {
protected:
    /// What the page's program makes of a record in the section.
    std::string fileOf(const HostRecord &record)
    {
        m_tool.storeRecords({record});
        Process program({"python3", extract("ies.py"), "Host_4711_7"}, {}, Process::Errors::Joined);
        return program.readAll();
    }
};

TEST_F(GuideFile, programOfThePageWritesTheFileOfThePage)
{
    EXPECT_EQ(fileOf(recordOfThePage()), withCarriageReturns(guideBlock("pendant.ies")));
}

TEST_F(GuideFile, programOfThePageWritesNoLineForTiltDataWithoutAngles)
{
    HostRecord record = recordOfThePage();
    record.tiltAngles.clear();
    record.tiltFactors.clear();
    EXPECT_EQ(fileOf(record), iesText(record));
}

TEST_F(GuideFile, programOfThePageFoldsAsTheFormatLineSays)
{
    HostRecord record = hostRecord(sampleLuminaire());
    for (const std::string line : {"IESNA:LM-63-2002", "IESNA:LM-63-2002 ", "IESNA:LM-63-1995", ""}) {
        record.keywords.front() = line;
        EXPECT_EQ(fileOf(record), iesText(record)) << line;
    }
}

/// Numbers of one letter each: a row of them meets the limit with a blank at every other length before it.
TEST_F(GuideFile, programOfThePageFoldsBlanksToo)
{
    for (const float first : {1.0F, 10.0F}) {
        HostRecord record = recordOfThePage();
        record.tiltAngles.assign(200, 1);
        record.tiltAngles.front() = first;
        record.tiltFactors.assign(200, 0);
        for (const std::string line : {"IESNA91", "IESNA:LM-63-2002"}) {
            record.keywords.front() = line;
            EXPECT_EQ(fileOf(record), iesText(record)) << line;
        }
    }
}

TEST_F(GuideFile, programOfThePageWritesAnyRecord)
{
    constexpr int kRecords = 12;
    RandomRecord random(63);
    for (int compared = 0; compared < kRecords;) {
        const HostRecord record = hostRecord(random.make());
        if (record.keywords.empty() || record.candela.empty())
            continue;  // no file has none
        EXPECT_EQ(fileOf(record), iesText(record));
        ++compared;
    }
}

}  // namespace
}  // namespace penwright::test
