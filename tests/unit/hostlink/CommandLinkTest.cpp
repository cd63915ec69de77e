#include "unit/hostlink/LinkBench.h"

namespace penwright::test {
namespace {

TEST_F(LinkTest, inboxIsNamedByToolAndTag)
{
    EXPECT_EQ(link.inboxName(), "PenwrightPE|7");
}

TEST_F(LinkTest, pollTakesAndEmptiesAndExecutesNothing)
{
    bench.setValue("PenwrightPE|7", "START");
    EXPECT_TRUE(link.poll());
    EXPECT_EQ(bench.value("PenwrightPE|7"), "");
    EXPECT_EQ(window.transcript, "");
    EXPECT_EQ(logged(), "");
    link.obeyNext();
    EXPECT_EQ(window.transcript, "death timer stopped\nstarted\n");
    EXPECT_EQ(logged(), "START\r\n");
    EXPECT_EQ(window.shownLogs, 1);
}

TEST_F(LinkTest, pollOfAnEmptyInboxTakesNothing)
{
    EXPECT_FALSE(link.poll());
    bench.setValue("PenwrightPE|7", "");
    EXPECT_FALSE(link.poll());
    link.obeyNext();
    EXPECT_EQ(window.shownLogs, 0);
}

TEST_F(LinkTest, takenCommandsAreExecutedInTheirOrder)
{
    for (const char *command : {"START", "CLOSE"}) {
        bench.setValue("PenwrightPE|7", command);
        EXPECT_TRUE(link.poll());
    }
    link.obeyNext();
    EXPECT_EQ(window.transcript, "death timer stopped\nstarted\n");
    link.obeyNext();
    EXPECT_EQ(window.transcript, "death timer stopped\nstarted\nunload\n");
}

struct WordCase {
    std::string command;
    std::string done;
};

class CommandWord : public LinkTest, public testing::WithParamInterface<WordCase> {};

TEST_P(CommandWord, isTheFirstFieldTrimmedInUpperCase)
{
    link.msbCmd(GetParam().command);
    EXPECT_EQ(window.transcript, GetParam().done);
    EXPECT_EQ(logged(), GetParam().command + "\r\n");
    EXPECT_EQ(bench.dialogs.transcript, "");
    EXPECT_EQ(window.shownLogs, 1);
}

INSTANTIATE_TEST_SUITE_P(Words, CommandWord,
                         testing::ValuesIn(std::vector<WordCase>{
                             {"START", "death timer stopped\nstarted\n"},
                             {" start ,x", "death timer stopped\nstarted\n"},
                             {"\r\nSTART\r\n", "death timer stopped\nstarted\n"},
                             {"START\r\nCLOSE", "death timer stopped\nstarted\n"},
                             {"Close", "unload\n"},
                             {"CLOSE,,,", "unload\n"},
                             {"CLOSED", ""},
                             {"\tCLOSE", ""},
                             {"REFRESH", ""},
                             {",CLOSE", ""},
                             {" ", ""},
                             {"\r\n\r\n", ""},
                             {"\n", ""},
                             {std::string("\0\x01\xff\xfe", 4), ""},
                         }));

TEST_F(LinkTest, secondStartDoesWhatTheFirstDid)
{
    link.msbCmd("START");
    link.msbCmd("START");
    EXPECT_EQ(window.transcript, "death timer stopped\nstarted\ndeath timer stopped\nstarted\n");
}

TEST_F(LinkTest, commandsAreLoggedAndIgnoredWhileTheWindowUnloads)
{
    link.msbCmd("CLOSE");
    for (const char *command : {"START", "MOVEWIN,1,2,3,4", "CLOSE", "DELETEFILE,", "DATACHANGED"})
        link.msbCmd(command);
    EXPECT_EQ(window.transcript, "unload\n");
    EXPECT_EQ(bench.embedding.transcript, "");
    EXPECT_EQ(logged(), "CLOSE\r\nSTART\r\nMOVEWIN,1,2,3,4\r\nCLOSE\r\nDELETEFILE,\r\nDATACHANGED\r\n");
}

TEST_F(LinkTest, errorInACommandIsOneMessageBox)
{
    window.startFails = true;
    link.msbCmd("START");
    EXPECT_EQ(bench.dialogs.transcript, "[PenwrightPE|0] err in linkExectue.\n");
    EXPECT_EQ(window.shownLogs, 1);
}

// The box runs an event loop of its own, in which commands go on: a rude host must not stack box upon box.
TEST_F(LinkTest, openErrorBoxStandsForTheErrorsOfLaterCommands)
{
    bench.dialogs.onShow = [this](const MessageBox &) { link.msbCmd("MOVEWIN,1E99,0,0,0"); };
    link.msbCmd("MOVEWIN,1E400,0,0,0");
    EXPECT_EQ(bench.dialogs.transcript, "[PenwrightPE|0] err in linkExectue.\n");
    EXPECT_EQ(logged(), "MOVEWIN,1E400,0,0,0\r\nMOVEWIN,1E99,0,0,0\r\n");
    bench.dialogs.onShow = nullptr;
    link.msbCmd("MOVEWIN,0,1E99,0,0");
    EXPECT_EQ(bench.dialogs.transcript, "[PenwrightPE|0] err in linkExectue.\n[PenwrightPE|0] err in linkExectue.\n");
}

TEST_F(LinkTest, megabytesOfTextAreTakenAndLoggedInPart)
{
    bench.setValue("PenwrightPE|7", std::string(10'000'000, ','));
    EXPECT_TRUE(link.poll());
    link.obeyNext();
    EXPECT_EQ(logged().size(), 8192U + 2);
    EXPECT_EQ(window.transcript, "");
}

struct DeleteCase {
    std::string command;
    std::string received;
    bool closes;
};

class DeleteFile : public LinkTest, public testing::WithParamInterface<DeleteCase> {};

TEST_P(DeleteFile, closesWhenAReceivedRecordHasThatName)
{
    bench.state.CandelaWorkRecord = {named("first.ies"), named(GetParam().received)};
    link.msbCmd(GetParam().command);
    EXPECT_EQ(window.transcript, GetParam().closes ? "unload\n" : "");
}

INSTANTIATE_TEST_SUITE_P(Names, DeleteFile,
                         testing::ValuesIn(std::vector<DeleteCase>{
                             {"DELETEFILE,c:\\A.IES", "C:\\a.ies", true},
                             {"deletefile,c:\\A.IES", " C:\\a.ies ", true},
                             {"DELETEFILE,  c:\\a.ies  ", "C:\\A.IES", true},
                             {"DELETEFILE,a,b.ies", "A,B.IES", true},
                             {"DELETEFILE,FIRST.IES", "other", true},
                             {"DELETEFILE,c:\\b.ies", "C:\\a.ies", false},
                             {"DELETEFILE,\xc3\xa4.ies", "\xc3\xa4.IES", true},
                             {"DELETEFILE,\xc3\x84.ies", "\xc3\xa4.IES", false},
                             // The name begins at the twelfth character, wherever the comma stands.
                             {" DELETEFILE,a.ies", ",a.ies", true},
                             {" DELETEFILE,a.ies", "a.ies", false},
                             {"DELETEFILE", "", true},
                             {"DELETEFILE", "a.ies", false},
                         }));

TEST_F(LinkTest, deleteFileLooksAtReceivedRecordsOnly)
{
    bench.state.PhotFiles(1).Filename = "a.ies";
    link.msbCmd("DELETEFILE,a.ies");
    EXPECT_EQ(window.transcript, "");
}

TEST(JoinedByAddition, isTheSumWhenTheTextReadsAsANumber)
{
    EXPECT_EQ(joinedByAddition("12", 3), "15");
    EXPECT_EQ(joinedByAddition(" -0.5 ", 1), "0.5");
}

TEST(JoinedByAddition, isATypeMismatchOtherwise)
{
    for (const char *text : {"", "12\r\nLinkError ", "LinkError ", "12 x"}) {
        try {
            joinedByAddition(text, 3);
            ADD_FAILURE() << text;
        } catch (const RunTimeError &error) {
            EXPECT_EQ(error.number(), 13) << text;
        }
    }
}

TEST_F(LinkTest, linkErrorLeavesTheLogAsItIs)
{
    link.linkError(11);
    EXPECT_EQ(logged(), "");
    link.msbCmd("12");
    link.linkError(11);
    EXPECT_EQ(logged(), "12\r\n");
    EXPECT_EQ(bench.dialogs.transcript, "");
}

}  // namespace
}  // namespace penwright::test
