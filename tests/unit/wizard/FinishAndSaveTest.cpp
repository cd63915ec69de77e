#include "wizard/FinishAndSave.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "support/SampleRecords.h"
#include "support/ToolBench.h"

namespace penwright::test {
namespace {

constexpr const char *kCaption = "(6 of 6) Complete!";
constexpr const char *kQuestion = "[save|Save New Photometric file As...|IES files (*.ies)|*.ies;*.IES|ies]\n";
constexpr const char *kFullQuestion =
    "Disk is full. Free up space on this disk or choose another.\r\nOK to Retry, Cancel to quit.\n";
constexpr const char *kReadOnlyQuestion = "File is Read-Only. Cannot save.\r\nOK to Retry, Cancel to quit.\n";

class FinishAndSaveTest : public testing::Test {
protected:
    /// A host that takes every command at the first turn of the wait.
    FinishAndSaveTest()
    {
        PhotometricRecord &record = bench.state.PhotFiles(1);
        record = smallRecord();
        record.Filename = "";
        record.NumLamps = 2;
        bench.wait.onTurn = [this] {
            posted += bench.value("HostBox") + ";";
            bench.setValue("HostBox", "");
        };
    }

    FinishEnd finish(bool saveAs) { return finishAndSave.SaveNewFile(saveAs, kCaption); }
    const PhotometricRecord &record() const { return bench.state.PhotFiles(1); }

    /// Where the file was named last, as the record and the store tell it.
    std::string stored() { return bench.value("Filename1") + " in " + record().Directory; }

    std::string writtenPaths() const
    {
        std::string paths;
        for (const auto &[path, text] : bench.files.written)
            paths += path + ";";
        return paths;
    }

    ToolBench bench;
    FinishAndSave finishAndSave{bench.state, bench.store, bench.files, bench.dialogs, bench.wait};
    std::string posted;
};

TEST_F(FinishAndSaveTest, unnamedFileIsNumberedBehindTheHostsFiles)
{
    EXPECT_EQ(finish(false), FinishEnd::Taken);
    EXPECT_EQ(stored(), "new_file_4 in C:\\");
    EXPECT_EQ(posted, "SendNewDataClose*,PenwrightPE,7;");
    EXPECT_EQ(bench.value("OtherData1"), "2,1000,1,1,1,.5,-2,0,.95,150");
    EXPECT_EQ(writtenPaths(), "");
    EXPECT_EQ(bench.dialogs.transcript, "");
}

TEST_F(FinishAndSaveTest, chosenNameIsWrittenStoredAndPosted)
{
    bench.dialogs.names = {"D:\\lum\\a.ies"};
    EXPECT_EQ(finish(true), FinishEnd::Taken);
    EXPECT_EQ(stored(), "D:\\lum\\a.ies in D:\\lum\\");
    EXPECT_EQ(posted, "SendNewDataClose,PenwrightPE,7;");
    EXPECT_EQ(writtenPaths(), "D:\\lum\\a.ies;");
    EXPECT_EQ(bench.files.written[0].second.substr(0, 18), "IESNA:LM-63-2002\r\n");
    EXPECT_EQ(bench.dialogs.transcript, kQuestion);
}

TEST_F(FinishAndSaveTest, cancelledDialogSavesAndPostsNothing)
{
    bench.dialogs.names = {std::nullopt};
    EXPECT_EQ(finish(true), FinishEnd::NotFinished);
    EXPECT_EQ(posted + writtenPaths() + record().Filename, "");
    EXPECT_EQ(bench.value("Filename1"), "(none)");
    EXPECT_EQ(bench.dialogs.transcript, kQuestion);
}

TEST_F(FinishAndSaveTest, recordThatLosesItsAnglesUnderTheDialogIsNotSaved)
{
    bench.dialogs.names = {"/lum/b.ies"};
    bench.dialogs.onAskName = [this] { bench.state.PhotFiles(1).NumHorzAngles = 0; };
    EXPECT_EQ(finish(true), FinishEnd::NotFinished);
    EXPECT_EQ(posted + writtenPaths() + record().Filename, "");
    EXPECT_EQ(bench.dialogs.transcript, kQuestion);
}

TEST_F(FinishAndSaveTest, emptyNameAsksAgain)
{
    bench.dialogs.names = {"", "", "/lum/b.ies"};
    EXPECT_EQ(finish(true), FinishEnd::Taken);
    EXPECT_EQ(bench.dialogs.transcript, std::string(kQuestion) + kQuestion + kQuestion);
    EXPECT_EQ(stored(), "/lum/b.ies in /lum/");
}

TEST_F(FinishAndSaveTest, cancelAtTheWritingErrorAsksForAnotherName)
{
    bench.dialogs.names = {"/full/a.ies", "/free/a.ies"};
    bench.dialogs.answers = {Answer::Cancel};
    bench.files.failures = {ENOSPC};
    EXPECT_EQ(finish(true), FinishEnd::Taken);
    EXPECT_EQ(bench.dialogs.transcript,
              kQuestion + std::string("[Error saving /full/a.ies|1] ") + kFullQuestion + kQuestion);
    EXPECT_EQ(writtenPaths(), "/full/a.ies;/free/a.ies;");
    EXPECT_EQ(stored(), "/free/a.ies in /free/");
    EXPECT_EQ(posted, "SendNewDataClose,PenwrightPE,7;");
}

TEST_F(FinishAndSaveTest, cancelAtTheWritingErrorAndThenAtTheDialogKeepsTheNameSetBeforeWriting)
{
    bench.dialogs.names = {"/full/a.ies", std::nullopt};
    bench.dialogs.answers = {Answer::Cancel};
    bench.files.failures = {ENOSPC};
    EXPECT_EQ(finish(true), FinishEnd::NotFinished);
    EXPECT_EQ(record().Filename + " in " + record().Directory, "/full/a.ies in /full/");
    EXPECT_EQ(posted, "");
}

TEST_F(FinishAndSaveTest, retryThatSucceedsFinishes)
{
    bench.dialogs.names = {"/full/a.ies"};
    bench.files.failures = {ENOSPC};
    EXPECT_EQ(finish(true), FinishEnd::Taken);
    EXPECT_EQ(bench.dialogs.transcript, kQuestion + std::string("[Error saving /full/a.ies|1] ") + kFullQuestion);
    EXPECT_EQ(posted, "SendNewDataClose,PenwrightPE,7;");
}

TEST_F(FinishAndSaveTest, textThatCannotBeMadeIsWrittenOnTheRetryAsFarAsItGot)
{
    bench.state.PhotFiles(1).NumVertAngles = 4;
    bench.dialogs.names = {"a.ies"};
    finish(true);
    ASSERT_EQ(bench.files.written.size(), 1u);
    EXPECT_EQ(bench.files.written[0].second,
              "IESNA:LM-63-2002\r\n[TEST] 1\r\n[MANUFAC] A\r\nTILT=NONE\r\n2 1000 1 4 2 1 1 0.5 -2 0\r\n"
              "0.95 1 150\r\n0 45 90 \r\n");
}

TEST_F(FinishAndSaveTest, secondErrorShowsTheSameTextWithOkAloneAndPostsNothing)
{
    bench.dialogs.names = {"/full/a.ies"};
    bench.files.failures = {ENOSPC, ENOSPC};
    EXPECT_EQ(finish(true), FinishEnd::NotFinished);
    EXPECT_EQ(bench.dialogs.transcript, kQuestion + std::string("[Error saving /full/a.ies|1] ") + kFullQuestion +
                                            "[Error saving /full/a.ies|0] " + kFullQuestion);
    EXPECT_EQ(posted, "");
    EXPECT_EQ(bench.value("Filename1"), "(none)");
    EXPECT_EQ(record().Filename + " in " + record().Directory, "/full/a.ies in /full/");
}

TEST_F(FinishAndSaveTest, secondErrorOfAnotherKindShowsItsOwnText)
{
    bench.dialogs.names = {"/full/a.ies"};
    bench.files.failures = {ENOSPC, EROFS};
    finish(true);
    EXPECT_EQ(bench.dialogs.transcript, kQuestion + std::string("[Error saving /full/a.ies|1] ") + kFullQuestion +
                                            "[Error saving /full/a.ies|0] " + kReadOnlyQuestion);
}

// The host may replace the array while a box is open; the file that was written is the one that is handed over.
TEST_F(FinishAndSaveTest, whatWasWrittenIsHandedOverThoughTheHostSentNewDataMeanwhile)
{
    bench.dialogs.names = {"/full/a.ies"};
    bench.files.failures = {ENOSPC};
    bench.dialogs.onShow = [this](const MessageBox &) {
        PhotometricRecord other;
        other.Filename = "other.ies";
        bench.state.PhotFiles = {other};
    };
    EXPECT_EQ(finish(true), FinishEnd::Taken);
    EXPECT_EQ(writtenPaths(), "/full/a.ies;/full/a.ies;");
    EXPECT_EQ(stored(), "/full/a.ies in /full/");
    EXPECT_EQ(bench.value("OtherData1"), "2,1000,1,1,1,.5,-2,0,.95,150");
}

// What the host sends while the name is asked for is taken over whole: one and the same record is named, written and
// handed over.
TEST_F(FinishAndSaveTest, dataThatTheHostSendsWhileTheNameIsAskedForIsSavedWhole)
{
    bench.dialogs.names = {"/lum/a.ies"};
    bench.dialogs.onAskName = [this] {
        PhotometricRecord other = smallRecord();
        other.Filename = "other.ies";
        other.Keywords = {"IESNA:LM-63-1995"};
        other.NumLamps = 5;
        bench.state.PhotFiles = {other, PhotometricRecord()};
    };
    EXPECT_EQ(finish(true), FinishEnd::Taken);
    EXPECT_EQ(bench.files.written[0].second.substr(0, 18), "IESNA:LM-63-1995\r\n");
    EXPECT_EQ(stored(), "/lum/a.ies in /lum/");
    EXPECT_EQ(bench.value("OtherData1"), "5,1000,1,1,1,.5,-2,0,.95,150");
}

// The record that could not be written is given up with its name: the next name is for what the host has sent.
TEST_F(FinishAndSaveTest, dataThatTheHostSendsWhileTheRetryIsRefusedIsWhatTheNextNameIsFor)
{
    bench.dialogs.names = {"/full/a.ies", "/free/b.ies"};
    bench.dialogs.answers = {Answer::Cancel};
    bench.files.failures = {ENOSPC};
    bench.dialogs.onShow = [this](const MessageBox &) {
        PhotometricRecord other = smallRecord();
        other.Keywords = {"IESNA:LM-63-1995"};
        other.NumLamps = 5;
        bench.state.PhotFiles = {other};
    };
    EXPECT_EQ(finish(true), FinishEnd::Taken);
    EXPECT_EQ(bench.files.written[1].second.substr(0, 18), "IESNA:LM-63-1995\r\n");
    EXPECT_EQ(stored(), "/free/b.ies in /free/");
    EXPECT_EQ(bench.value("OtherData1"), "5,1000,1,1,1,.5,-2,0,.95,150");
}

TEST_F(FinishAndSaveTest, secondErrorIsNamedAfterTheFileThoughTheHostSentNewDataMeanwhile)
{
    bench.dialogs.names = {"/full/a.ies"};
    bench.files.failures = {ENOSPC, ENOSPC};
    bench.dialogs.onShow = [this](const MessageBox &) { bench.state.PhotFiles = {PhotometricRecord()}; };
    finish(true);
    EXPECT_NE(bench.dialogs.transcript.find("[Error saving /full/a.ies|0]"), std::string::npos);
}

TEST_F(FinishAndSaveTest, noHostStoresAndPostsNothing)
{
    bench.state.start.HostWindow = 0;
    EXPECT_EQ(finish(false), FinishEnd::NotFinished);
    EXPECT_EQ(posted, "");
    EXPECT_EQ(bench.value("Filename1"), "(none)");
    EXPECT_EQ(record().Filename, "new_file_4");
    EXPECT_EQ(bench.dialogs.transcript, "");
}

TEST_F(FinishAndSaveTest, hostWindowBelowZeroIsAHost)
{
    bench.state.start.HostWindow = -5;
    EXPECT_EQ(finish(false), FinishEnd::Taken);
}

TEST_F(FinishAndSaveTest, silentHostLeavesTheCommandInPlaceWithoutAMessage)
{
    bench.wait.onTurn = nullptr;
    EXPECT_EQ(finish(false), FinishEnd::NotTaken);
    EXPECT_EQ(bench.value("HostBox"), "SendNewDataClose*,PenwrightPE,7");
    EXPECT_EQ(bench.dialogs.transcript, "");
}

TEST_F(FinishAndSaveTest, unloadingDuringThePostIsNoFinish)
{
    bench.wait.onTurn = [this] { bench.wait.cancelled = true; };
    EXPECT_EQ(finish(false), FinishEnd::NotFinished);
}

TEST_F(FinishAndSaveTest, unloadingWhileTheRecordWasStoredPostsNothing)
{
    bench.wait.cancelled = true;
    EXPECT_EQ(finish(false), FinishEnd::NotFinished);
    EXPECT_EQ(bench.value("HostBox"), "(none)");
}

TEST_F(FinishAndSaveTest, storeThatFailsIsOneMessageWithFileAndReasonAndNoPost)
{
    FinishAndSave broken(bench.state, bench.fullStore, bench.files, bench.dialogs, bench.wait);
    EXPECT_EQ(broken.SaveNewFile(false, kCaption), FinishEnd::NotFinished);
    EXPECT_EQ(bench.dialogs.transcript, "[(6 of 6) Complete!|0] /the/store: database or disk is full\n");
    EXPECT_EQ(posted, "");
    EXPECT_EQ(finish(false), FinishEnd::Taken) << "the button can be pressed again";
}

TEST_F(FinishAndSaveTest, recordThatCannotBeStoredIsOneMessageAndNoPost)
{
    bench.state.PhotFiles(1).NumVertAngles = 4;
    EXPECT_EQ(finish(false), FinishEnd::NotFinished);
    EXPECT_EQ(bench.dialogs.transcript, "[(6 of 6) Complete!|0] Subscript out of range\n");
    EXPECT_EQ(posted, "");
}

// A store that takes everything and keeps nothing: as seen from here, no record was stored.
struct ForgetfulStore : FullStore {
    explicit ForgetfulStore(SettingsStore &behind) : m_behind(behind) {}
    void transact(const std::function<void()> &) override {}
    void write(std::string_view application, std::string_view section, std::string_view name,
               std::string_view data) override
    {
        m_behind.write(application, section, name, data);
    }
    std::optional<std::string> peek(std::string_view application, std::string_view section,
                                    std::string_view name) override
    {
        return m_behind.peek(application, section, name);
    }
    SettingsStore &m_behind;
};

TEST_F(FinishAndSaveTest, noRecordStoredTellsTheHostToCloseTheTool)
{
    ForgetfulStore forgetful(bench.store);
    FinishAndSave finishing(bench.state, forgetful, bench.files, bench.dialogs, bench.wait);
    EXPECT_EQ(finishing.SaveNewFile(false, kCaption), FinishEnd::Taken);
    EXPECT_EQ(posted, "ReturnClose,PenwrightPE,7;");
}

struct DirectoryCase {
    std::string path;
    std::string directory;
};

class DirectoryOf : public testing::TestWithParam<DirectoryCase> {};

TEST_P(DirectoryOf, endsAtTheLastSeparator)
{
    EXPECT_EQ(directoryOf(GetParam().path), GetParam().directory);
}

INSTANTIATE_TEST_SUITE_P(Paths, DirectoryOf,
                         testing::ValuesIn(std::vector<DirectoryCase>{
                             {"D:\\lum\\a.ies", "D:\\lum\\"},
                             {"/home/x/a.ies", "/home/x/"},
                             {"/home\\x/a.ies", "/home\\x/"},
                             {"/home/x\\a.ies", "/home/x\\"},
                             {"a.ies", ""},
                             {"", ""},
                             {"/", "/"},
                             {"/home/", "/home/"},
                         }));

}  // namespace
}  // namespace penwright::test
