#include "hostlink/HostOperations.h"

#include <gtest/gtest.h>

#include "support/ToolBench.h"
#include "unit/hostlink/TextModel.h"

namespace penwright::test {
namespace {

PhotometricRecord withFourLamps(const std::string &name)
{
    PhotometricRecord record;
    record.Filename = name;
    record.NumLamps = 4;
    return record;
}

class HostOperationsTest : public testing::Test {
protected:
    /// A host that takes every command at the first turn of the wait.
    HostOperationsTest()
    {
        bench.wait.onTurn = [this] {
            posted += bench.value("HostBox") + ";";
            bench.setValue("HostBox", "");
            if (onTaken)
                onTaken();
        };
    }

    void hostStores(const PhotometricRecord &record)
    {
        for (const auto &[word, text] : TextModel::of(record))
            bench.setValue(word + "1", text);
    }

    ToolBench bench;
    CommandLog log;
    int toldLogs = 0;
    std::function<void()> noteLog = [this] { ++toldLogs; };
    HostOperations operations{bench.state, bench.store, bench.dialogs, bench.wait, log, noteLog};
    std::string posted;
    std::function<void()> onTaken;
};

struct SendCase {
    void (HostOperations::*send)();
    std::string posted;
};

class Send : public HostOperationsTest, public testing::WithParamInterface<SendCase> {};

TEST_P(Send, storesTheWorkingRecordAndPosts)
{
    bench.state.CandelaWorkRecord = {withFourLamps("work.ies"), withFourLamps("second")};
    (operations.*GetParam().send)();
    EXPECT_EQ(posted, GetParam().posted);
    EXPECT_EQ(bench.value("Filename1"), "work.ies");
    EXPECT_EQ(bench.value("Filename2"), "");
    EXPECT_EQ(bench.value("OtherData1"), "4,0,0,0,0,0,0,0,0,0");
    EXPECT_EQ(bench.state.PhotFiles(1), withFourLamps("work.ies"));
    EXPECT_EQ(bench.dialogs.transcript, "");
}

TEST_P(Send, noRecordToStoreIsOneMessageAndNoPost)
{
    (operations.*GetParam().send)();
    EXPECT_EQ(posted, "");
    EXPECT_EQ(bench.dialogs.transcript, "[Send Data|4144] No photometric data loaded.\n");
    bench.dialogs.transcript.clear();
    bench.state.CandelaWorkRecord = {withFourLamps("work.ies")};
    bench.state.PhotFiles.clear();
    (operations.*GetParam().send)();
    EXPECT_EQ(posted, "");
    EXPECT_EQ(bench.dialogs.transcript, "[Send Data|4144] No photometric data loaded.\n");
}

TEST_P(Send, storeThatCannotBeWrittenIsAnErrorAndNoPost)
{
    bench.state.CandelaWorkRecord = {withFourLamps("work.ies")};
    HostOperations broken(bench.state, bench.fullStore, bench.dialogs, bench.wait, log, noteLog);
    EXPECT_THROW((broken.*GetParam().send)(), RunTimeError);
    EXPECT_EQ(posted, "");
}

INSTANTIATE_TEST_SUITE_P(Words, Send,
                         testing::Values(SendCase{&HostOperations::sendUpdated, "SendUpdatedDataClose,PenwrightPE,7;"},
                                         SendCase{&HostOperations::sendSaved, "SendSavedDataClose,PenwrightPE,7;"}));

TEST_F(HostOperationsTest, refreshAsksTheHostAndLoadsIntoTheWorkingRecords)
{
    onTaken = [this] { hostStores(withFourLamps("fresh.ies")); };
    operations.refresh();
    EXPECT_EQ(posted, "RefreshData;");
    EXPECT_EQ(bench.state.CandelaWorkRecord, OneBased<PhotometricRecord>{withFourLamps("fresh.ies")});
    EXPECT_EQ(log.txtCmds(), "");
    EXPECT_EQ(toldLogs, 0);
}

TEST_F(HostOperationsTest, refreshWithoutARecordLogsItAndChangesNothing)
{
    bench.state.PhotFiles(1) = withFourLamps("mine");
    bench.state.CandelaWorkRecord = {withFourLamps("work")};
    operations.refresh();
    EXPECT_EQ(log.txtCmds(), "No data error: no file\r\n");
    EXPECT_EQ(toldLogs, 1);
    EXPECT_EQ(bench.state.PhotFiles(1), withFourLamps("mine"));
    EXPECT_EQ(bench.state.CandelaWorkRecord(1), withFourLamps("work"));
}

TEST_F(HostOperationsTest, refreshNamesTheProblemOfARecordThatDoesNotParse)
{
    hostStores(withFourLamps("fresh.ies"));
    bench.setValue("OtherData1", "1");
    operations.refresh();
    EXPECT_EQ(log.txtCmds(), "No data error: Problem parsing other data\r\n");
}

TEST_F(HostOperationsTest, refreshOverAStoreThatFailsLogsTheReason)
{
    HostOperations broken(bench.state, bench.fullStore, bench.dialogs, bench.wait, log, noteLog);
    broken.refresh();
    EXPECT_EQ(log.txtCmds(), "General error: /the/store: database or disk is full\r\n");
    EXPECT_EQ(toldLogs, 1);
}

TEST_F(HostOperationsTest, refreshGoesNoFurtherOnceUnloadingBegins)
{
    onTaken = [this] {
        hostStores(withFourLamps("fresh.ies"));
        bench.wait.cancelled = true;
    };
    bench.wait.onTurn = [this] { onTaken(); };
    operations.refresh();
    EXPECT_TRUE(bench.state.CandelaWorkRecord.empty());
}

}  // namespace
}  // namespace penwright::test
