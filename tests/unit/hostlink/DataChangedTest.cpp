#include "support/RandomRecord.h"
#include "unit/hostlink/LinkBench.h"
#include "unit/hostlink/TextModel.h"

namespace penwright::test {
namespace {

class DataChanged : public LinkTest {
protected:
    void hostStores(int file, const PhotometricRecord &record)
    {
        for (const auto &[word, text] : TextModel::of(record))
            bench.setValue(word + std::to_string(file), text);
    }
};

TEST_F(DataChanged, recordOfTheSameNameTakesTheDataOver)
{
    RandomRecord random(3);
    PhotometricRecord fresh = random.make();
    fresh.Filename = "a.ies";
    hostStores(1, fresh);
    bench.state.CandelaWorkRecord = {named("other"), named("a.ies")};
    link.msbCmd("DATACHANGED");
    EXPECT_EQ(TextModel::of(bench.state.CandelaWorkRecord(2)), TextModel::of(fresh));
    EXPECT_EQ(bench.state.CandelaWorkRecord(1), named("other"));
    EXPECT_EQ(TextModel::of(bench.state.PhotFiles(1)), TextModel::of(fresh));
    EXPECT_EQ(logged(), "DATACHANGED\r\nUpdated data received and used\r\n");
    EXPECT_EQ(link.log().txtFiles(), "a.ies\r\n");
    EXPECT_EQ(window.transcript, "record followed\n");
}

TEST_F(DataChanged, usedNamesAreListedWorkingRecordByWorkingRecord)
{
    bench.state.start.LoadLimit = 3;
    hostStores(1, named("a"));
    hostStores(2, named("b"));
    hostStores(3, named("c"));
    bench.state.CandelaWorkRecord = {named("c"), named("x"), named("a"), named("c")};
    link.log().setTxtFiles("before\r\n");
    link.msbCmd("DATACHANGED");
    EXPECT_EQ(link.log().txtFiles(), "c\r\na\r\nc\r\n");
}

TEST_F(DataChanged, namesCompareExactly)
{
    hostStores(1, named("A.ies"));
    bench.state.CandelaWorkRecord = {named("a.ies"), named("A.ies ")};
    link.log().setTxtFiles("before\r\n");
    link.msbCmd("DATACHANGED");
    EXPECT_EQ(logged(), "DATACHANGED\r\nData received but not used\r\n");
    EXPECT_EQ(link.log().txtFiles(), "before\r\n");
    EXPECT_EQ(bench.state.PhotFiles(1), [] {
        PhotometricRecord loaded = named("A.ies");
        return loaded;
    }());
}

TEST_F(DataChanged, noWorkingRecordUsesNothing)
{
    hostStores(1, named("a"));
    link.msbCmd("DATACHANGED");
    EXPECT_EQ(logged(), "DATACHANGED\r\nData received but not used\r\n");
    EXPECT_EQ(window.transcript, "record followed\n");
}

TEST_F(DataChanged, nothingStoredKeepsWhatTheUserEntered)
{
    RandomRecord random(4);
    const PhotometricRecord entered = random.make();
    bench.state.PhotFiles(1) = entered;
    link.msbCmd("DATACHANGED");
    EXPECT_EQ(bench.state.PhotFiles, OneBased<PhotometricRecord>{entered});
    EXPECT_EQ(logged(), "DATACHANGED\r\nNo data or error -1\r\n");
    EXPECT_EQ(window.transcript, "");
}

TEST_F(DataChanged, recordThatDoesNotParseKeepsWhatTheUserEnteredAndNamesTheProblem)
{
    hostStores(1, named("a"));
    bench.setValue("VertAngles1", "3,1");
    bench.state.PhotFiles(1) = named("mine");
    bench.state.CandelaWorkRecord = {named("a")};
    link.msbCmd("DATACHANGED");
    EXPECT_EQ(bench.state.PhotFiles(1), named("mine"));
    EXPECT_EQ(bench.state.CandelaWorkRecord(1), named("a"));
    EXPECT_EQ(logged(), "DATACHANGED\r\nNo data or error -1 Problem parsing vertical angles\r\n");
}

TEST_F(DataChanged, storeThatCannotBeReadIsOneMessageAndKeepsWhatTheUserEntered)
{
    bench.state.PhotFiles(1) = named("mine");
    CommandLink broken(bench.state, bench.fullStore, bench.dialogs, bench.embedding, window);
    broken.msbCmd("DATACHANGED");
    EXPECT_EQ(bench.state.PhotFiles(1), named("mine"));
    EXPECT_EQ(bench.dialogs.transcript, "[PenwrightPE|0] err in linkExectue.\n");
}

}  // namespace
}  // namespace penwright::test
