#include "hostlink/ExchangeStore.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "hostlink/RecordText.h"
#include "support/RandomRecord.h"
#include "support/ToolBench.h"
#include "unit/hostlink/TextModel.h"

namespace penwright {

/// How a failed comparison of a whole section is printed.
inline void PrintTo(const Setting &setting, std::ostream *out)
{
    *out << setting.name << "=" << setting.data;
}

namespace test {
namespace {

/// The section as clearing leaves it: eleven empty values for each of 25 file numbers, in the order of the table.
std::vector<Setting> clearedSection()
{
    std::vector<Setting> settings;
    for (int file = 1; file <= 25; ++file)
        for (const char *word : {"Filename", "Keywords", "KeywordData", "TiltIncl", "TiltData", "OtherData",
                                 "HorAngles", "VertAngles", "Candela", "OptionalData", "PictureFilename"})
            settings.push_back({word + std::to_string(file), ""});
    return settings;
}

void putInto(std::vector<Setting> &settings, int file, const PhotometricRecord &record)
{
    for (const auto &[word, text] : TextModel::of(record))
        for (Setting &setting : settings)
            if (setting.name == word + std::to_string(file))
                setting.data = text;
}

PhotometricRecord named(const std::string &name)
{
    PhotometricRecord record;
    record.Filename = name;
    return record;
}

class ExchangeStoreTest : public testing::Test {
protected:
    std::vector<Setting> section() { return bench.store.readAll("Lumentor_PE", "Sec"); }

    /// Fills the store as a host does, file by file.
    void hostStores(const OneBased<PhotometricRecord> &records)
    {
        for (int file = 1; file <= records.size(); ++file)
            for (const auto &[word, text] : TextModel::of(records(file)))
                bench.setValue(word + std::to_string(file), text);
    }

    std::string filenames() const
    {
        std::string names;
        for (const PhotometricRecord &record : bench.state.PhotFiles)
            names += record.Filename + ";";
        return names;
    }

    ToolBench bench;
    ExchangeStore exchange{bench.state, bench.store, bench.dialogs};
};

TEST_F(ExchangeStoreTest, savingOneRecordWritesTheWholeSection)
{
    RandomRecord random(5);
    for (int i = 0; i < 60; ++i) {
        bench.state.PhotFiles(1) = random.make();
        ASSERT_EQ(exchange.SaveRecordsToStore(1, 1, 1), 1);
        std::vector<Setting> expected = clearedSection();
        putInto(expected, 1, bench.state.PhotFiles(1));
        ASSERT_EQ(section(), expected) << "record " << i;
    }
}

TEST_F(ExchangeStoreTest, tiltOffWritesNoTiltDataAndClearsWhatWasThere)
{
    bench.state.PhotFiles(1).TiltIncl = true;
    exchange.SaveRecordsToStore(1, 1, 1);
    EXPECT_EQ(bench.value("TiltIncl1"), "-1");
    EXPECT_EQ(bench.value("TiltData1"), "0,0");
    bench.state.PhotFiles(1).TiltIncl = false;
    exchange.SaveRecordsToStore(1, 1, 1);
    EXPECT_EQ(bench.value("TiltIncl1"), "0");
    EXPECT_EQ(bench.value("TiltData1"), "");
}

TEST_F(ExchangeStoreTest, valuesOfOthersInTheSectionAreLeftAlone)
{
    bench.setValue("PenwrightPE|7", "START");
    bench.setValue("Filename26", "not ours");
    exchange.SaveRecordsToStore(1, 1, 1);
    EXPECT_EQ(bench.value("PenwrightPE|7"), "START");
    EXPECT_EQ(bench.value("Filename26"), "not ours");
}

TEST_F(ExchangeStoreTest, clearBlanksAllValuesOf25FileNumbers)
{
    hostStores(OneBased<PhotometricRecord>{named("a"), named("b")});
    bench.setValue("Candela25", "1");
    exchange.ClearStore();
    std::vector<Setting> settings = section(), expected = clearedSection();
    const auto byName = [](const Setting &a, const Setting &b) { return a.name < b.name; };
    std::sort(settings.begin(), settings.end(), byName);
    std::sort(expected.begin(), expected.end(), byName);
    EXPECT_EQ(settings, expected);
}

TEST_F(ExchangeStoreTest, noRecordsClearTheStoreAndReportNone)
{
    hostStores(OneBased<PhotometricRecord>{named("old")});
    bench.state.PhotFiles.clear();
    EXPECT_EQ(exchange.SaveRecordsToStore(1, 1, 1), 0);
    EXPECT_EQ(bench.value("Filename1"), "");
    EXPECT_EQ(section().size(), 275U);
}

struct LoopCase {
    int slots, first, last, start;
    int written;
    std::string filenames;  ///< what stands under "Filename1" to "Filename6" and "Filename27"
    bool tooMany;
};

class SaveLoop : public ExchangeStoreTest, public testing::WithParamInterface<LoopCase> {};

// The slot is the file number, not the index, and only the index is held against the limit of 25.
TEST_P(SaveLoop, writesTheSlotOfTheFileNumber)
{
    const LoopCase &c = GetParam();
    bench.state.PhotFiles.clear();
    for (int slot = 1; slot <= c.slots; ++slot)
        bench.state.PhotFiles.append(named("s" + std::to_string(slot)));
    EXPECT_EQ(exchange.SaveRecordsToStore(c.first, c.last, c.start), c.written);
    std::string filenames;
    for (const char *name : {"Filename1", "Filename2", "Filename3", "Filename4", "Filename5", "Filename6"})
        filenames += bench.value(name) + ";";
    EXPECT_EQ(filenames + bench.value("Filename27"), c.filenames);
    EXPECT_EQ(bench.dialogs.transcript,
              c.tooMany ? "[Load Data|4176] You have reached the maximum number of files allowed to load at one time "
                          "(25).\n"
                        : "");
}

INSTANTIATE_TEST_SUITE_P(Loops, SaveLoop,
                         testing::ValuesIn(std::vector<LoopCase>{
                             {1, 1, 1, 1, 1, "s1;;;;;;(none)", false},
                             {3, 1, 3, 1, 3, "s1;s2;s3;;;;(none)", false},
                             {3, 1, 2, 2, 2, ";s2;s3;;;;(none)", false},
                             {3, 2, 3, 1, 2, "s1;s2;;;;;(none)", false},
                             {2, 1, 4, 1, 2, "s1;s2;;;;;(none)", false},
                             {3, 2, 1, 1, 0, ";;;;;;(none)", false},
                             {3, 25, 26, 1, 1, "s1;;;;;;(none)", true},
                             {3, 26, 26, 1, 0, ";;;;;;(none)", true},
                             {1, 26, 28, 25, 0, ";;;;;;", false},
                             {30, 1, 30, 1, 25, "s1;s2;s3;s4;s5;s6;(none)", true},
                             {27, 25, 25, 27, 1, ";;;;;;s27", false},
                         }));

// Another process must be able to read while the message is open, and the answer must not undo what was stored.
TEST_F(ExchangeStoreTest, maximumMessageIsShownWhenTheStoreIsFree)
{
    bench.state.PhotFiles.reset(26);
    std::string seen;
    bench.dialogs.onShow = [&](const MessageBox &) {
        SqliteSettingsStore host(bench.folder.file("Lumentor/settings.sqlite3"));
        seen = host.read("Lumentor_PE", "Sec", "OtherData25", "(none)");
        host.write("Lumentor_PE", "Sec", "Inbox", "written");
    };
    exchange.SaveRecordsToStore(1, 26, 1);
    EXPECT_EQ(seen, "0,0,0,0,0,0,0,0,0,0");
    EXPECT_EQ(bench.value("Inbox"), "written");
}

TEST_F(ExchangeStoreTest, saveThatFailsHalfwayLeavesTheFormerRecord)
{
    bench.state.PhotFiles(1) = named("whole");
    exchange.SaveRecordsToStore(1, 1, 1);
    const std::vector<Setting> before = section();
    bench.state.PhotFiles(1) = named("half");
    bench.state.PhotFiles(1).NumVertAngles = 4;
    EXPECT_THROW(exchange.SaveRecordsToStore(1, 1, 1), RunTimeError);
    EXPECT_EQ(section(), before);
}

TEST_F(ExchangeStoreTest, storeThatCannotBeWrittenIsAnErrorNotNoRecord)
{
    ExchangeStore full(bench.state, bench.fullStore, bench.dialogs);
    EXPECT_THROW(full.SaveRecordsToStore(1, 1, 1), RunTimeError);
}

TEST_F(ExchangeStoreTest, loadsWhatTheHostStored)
{
    RandomRecord random(11);
    const PhotometricRecord record = random.make();
    hostStores(OneBased<PhotometricRecord>{record});
    EXPECT_EQ(exchange.loadRecords(), std::nullopt);
    ASSERT_EQ(bench.state.PhotFiles.size(), 1);
    EXPECT_EQ(TextModel::of(bench.state.PhotFiles(1)), TextModel::of(record));
}

TEST_F(ExchangeStoreTest, loadLimit1ReadsOnlyTheFirstFileNumber)
{
    hostStores(OneBased<PhotometricRecord>{named(""), named("second")});
    EXPECT_EQ(exchange.loadRecords(), "");
    EXPECT_EQ(filenames(), "");
}

TEST_F(ExchangeStoreTest, emptyFilenamesAreSkippedAndSlotsCloseUp)
{
    hostStores(OneBased<PhotometricRecord>{named("a"), named(""), named("c"), named("d")});
    bench.state.start.LoadLimit = 3;
    EXPECT_EQ(exchange.loadRecords(), std::nullopt);
    EXPECT_EQ(filenames(), "a;c;");
}

TEST_F(ExchangeStoreTest, loadLimitIsCutTo25)
{
    OneBased<PhotometricRecord> records;
    for (int i = 1; i <= 26; ++i)
        records.append(named("f"));
    hostStores(records);
    bench.state.start.LoadLimit = 300;
    EXPECT_EQ(exchange.loadRecords(), std::nullopt);
    EXPECT_EQ(bench.state.PhotFiles.size(), 25);
    EXPECT_EQ(bench.state.start.LoadLimit, 25);
}

TEST_F(ExchangeStoreTest, emptyStoreLoadsNothingAndEmptiesTheArray)
{
    bench.state.PhotFiles(1) = named("mine");
    EXPECT_EQ(exchange.loadRecords(), "");
    EXPECT_EQ(filenames(), "");
}

TEST_F(ExchangeStoreTest, problemEndsLoading)
{
    hostStores(OneBased<PhotometricRecord>{named("a"), named("b"), named("c")});
    bench.state.start.LoadLimit = 3;
    bench.setValue("TiltIncl2", "-1");
    bench.setValue("TiltData2", "rubbish");
    EXPECT_EQ(exchange.loadRecords(), "Problem parsing tilt data");
    EXPECT_EQ(filenames(), "a;b;");
    bench.setValue("TiltIncl2", "0");
    EXPECT_EQ(exchange.loadRecords(), std::nullopt);
}

TEST_F(ExchangeStoreTest, loadThatFailsPutsThePreviousRecordsBackWhenAsked)
{
    bench.state.PhotFiles(1) = named("mine");
    EXPECT_EQ(exchange.loadOrKeepRecords(), "");
    EXPECT_EQ(filenames(), "mine;");
    hostStores(OneBased<PhotometricRecord>{named("fresh")});
    EXPECT_EQ(exchange.loadOrKeepRecords(), std::nullopt);
    EXPECT_EQ(filenames(), "fresh;");
}

TEST_F(ExchangeStoreTest, storeThatCannotBeReadReplacesNothing)
{
    bench.state.PhotFiles(1) = named("mine");
    ExchangeStore full(bench.state, bench.fullStore, bench.dialogs);
    EXPECT_THROW(full.loadRecords(), RunTimeError);
    EXPECT_EQ(filenames(), "mine;");
}

TEST_F(ExchangeStoreTest, theFixedLoaderIsTrueWhenNothingWasLoaded)
{
    EXPECT_TRUE(exchange.LoadRecordsFromStore());
    hostStores(OneBased<PhotometricRecord>{named("fresh")});
    EXPECT_FALSE(exchange.LoadRecordsFromStore());
    EXPECT_EQ(filenames(), "fresh;");
}

TEST_F(ExchangeStoreTest, everySectionIsItsOwn)
{
    hostStores(OneBased<PhotometricRecord>{named("sec")});
    bench.state.start.ExchangeSection = "sec";
    EXPECT_EQ(exchange.loadRecords(), "");
    bench.state.start.ExchangeSection = "Sec";
    EXPECT_EQ(exchange.loadRecords(), std::nullopt);
}

}  // namespace
}  // namespace test
}  // namespace penwright
