#include <penwright_host/ToolCommand.h>

#include <gtest/gtest.h>

namespace penwright {
namespace {

struct WordCase {
    std::string text;
    ToolCommand command;
    bool bringsRecord;
    bool isSaved;
    bool expectsClose;
};

void PrintTo(const WordCase &row, std::ostream *out)
{
    *out << row.text;
}

class ToolWords : public testing::TestWithParam<WordCase> {};

TEST_P(ToolWords, areReadWithWhatTheyAskOfTheHost)
{
    const WordCase &row = GetParam();
    EXPECT_EQ(parseToolCommand(row.text), row.command);
    EXPECT_EQ(bringsRecord(row.command.word), row.bringsRecord);
    EXPECT_EQ(isSavedOnDisk(row.command.word), row.isSaved);
    EXPECT_EQ(expectsClose(row.command.word), row.expectsClose);
}

INSTANTIATE_TEST_SUITE_P(
    All, ToolWords,
    testing::ValuesIn(std::vector<WordCase>{
        {"ReturnClose,PenwrightPE,7", {ToolWord::ReturnClose, "PenwrightPE", "7"}, false, false, true},
        {"SendNewDataClose,PenwrightPE,7", {ToolWord::SendNewDataClose, "PenwrightPE", "7"}, true, true, true},
        {"SendNewDataClose*,PenwrightPE,7", {ToolWord::SendNewDataCloseUnnamed, "PenwrightPE", "7"}, true, false, true},
        {"SendUpdatedDataClose,PenwrightPE,7", {ToolWord::SendUpdatedDataClose, "PenwrightPE", "7"}, true, false, true},
        {"SendSavedDataClose,PenwrightPE,7", {ToolWord::SendSavedDataClose, "PenwrightPE", "7"}, true, true, true},
        {"CloseRemove,PenwrightPE,7", {ToolWord::CloseRemove, "PenwrightPE", "7"}, false, false, false},
        {"RefreshData", {ToolWord::RefreshData, "", ""}, false, false, false},
    }));

class NoToolWords : public testing::TestWithParam<std::string> {};

TEST_P(NoToolWords, areNoCommand)
{
    EXPECT_EQ(parseToolCommand(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(All, NoToolWords,
                         testing::Values("", "START", "SendNewDataClose", "sendnewdataclose,PenwrightPE,7",
                                         "SendNewDataClose*,PenwrightPE", "CloseRemove,PenwrightPE,7,8",
                                         "RefreshData,PenwrightPE,7",
                                         "CloseRemove,PenwrightPE,7\r\nCloseRemove,PenwrightPE,8",
                                         std::string("\0\xff\xfe,,", 5)));

}  // namespace
}  // namespace penwright
