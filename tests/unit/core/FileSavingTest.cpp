#include "core/FileSaving.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "platform/RunTimeError.h"
#include "support/FakeDialogs.h"
#include "support/FakeTextFiles.h"

namespace penwright {
namespace {

/// A text of two lines in any format; making it may fail behind the first.
class FileSaving : public testing::Test {
protected:
    bool save()
    {
        const auto make = [this](std::string &text) {
            text += "first\r\n";
            if (makingError)
                throw *makingError;
            text += second;
        };
        return saveFile(path, make, files, dialogs);
    }

    test::FakeTextFiles files;
    test::FakeDialogs dialogs;
    std::string path = "small.any";
    std::string second = "second";
    std::optional<RunTimeError> makingError;
};

TEST_F(FileSaving, textIsWrittenWithALineEndBehindIt)
{
    EXPECT_TRUE(save());
    ASSERT_EQ(files.written.size(), 1u);
    EXPECT_EQ(files.written[0].first, "small.any");
    EXPECT_EQ(files.written[0].second, "first\r\nsecond\r\n");
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(FileSaving, errorWhileMakingIsToldByItsNumber)
{
    makingError = subscriptOutOfRange();
    dialogs.answers = {Answer::Cancel};
    EXPECT_FALSE(save());
    EXPECT_TRUE(files.written.empty());
    EXPECT_EQ(dialogs.transcript,
              "[Error saving small.any|1] Windows Error 9 Subscript out of range PenwrightPE\r\n"
              "OK to Retry, Cancel to quit.\n");
}

TEST_F(FileSaving, errorWithATextOfItsOwnIsToldByThat)
{
    makingError = overflow();
    dialogs.answers = {Answer::Cancel};
    EXPECT_FALSE(save());
    EXPECT_EQ(dialogs.transcript, "[Error saving small.any|1] Calculation Overflow\r\nOK to Retry, Cancel to quit.\n");
}

TEST_F(FileSaving, retryWritesThePartialTextAndDoesNotMakeItAgain)
{
    makingError = subscriptOutOfRange();
    dialogs.onShow = [this](const MessageBox &) { makingError.reset(); };
    EXPECT_TRUE(save());
    ASSERT_EQ(files.written.size(), 1u);
    EXPECT_EQ(files.written[0].second, "first\r\n\r\n");
}

TEST_F(FileSaving, retryWritesTheSameTextAgain)
{
    files.failures = {ENOSPC};
    dialogs.answers = {Answer::Ok};
    EXPECT_TRUE(save());
    ASSERT_EQ(files.written.size(), 2u);
    EXPECT_EQ(files.written[1].second, "first\r\nsecond\r\n");
    EXPECT_EQ(dialogs.transcript,
              "[Error saving small.any|1] Disk is full. Free up space on this disk or choose another.\r\n"
              "OK to Retry, Cancel to quit.\n");
}

// A host command that arrives meanwhile may put other records in the place of the one that is saved.
TEST_F(FileSaving, retryLooksNeitherAtThePathNorAtTheValuesAgain)
{
    files.failures = {ENOSPC};
    dialogs.onShow = [this](const MessageBox &) { path = second = "other"; };
    EXPECT_TRUE(save());
    ASSERT_EQ(files.written.size(), 2u);
    EXPECT_EQ(files.written[1].first, "small.any");
    EXPECT_EQ(files.written[1].second, "first\r\nsecond\r\n");
}

TEST_F(FileSaving, cancelAndDismissalWriteNothingMore)
{
    for (const Answer answer : {Answer::Cancel, Answer::Dismissed}) {
        files.failures = {ENOENT};
        files.written.clear();
        dialogs.answers = {answer};
        EXPECT_FALSE(save());
        EXPECT_EQ(files.written.size(), 1u);
    }
}

TEST_F(FileSaving, errorOnTheRetryReachesTheCaller)
{
    files.failures = {ENOENT, EACCES};
    dialogs.answers = {Answer::Ok};
    try {
        save();
        ADD_FAILURE() << "no error";
    } catch (const RunTimeError &error) {
        EXPECT_EQ(error.number(), 70);
    }
    EXPECT_EQ(files.written.size(), 2u);
}

}  // namespace
}  // namespace penwright
