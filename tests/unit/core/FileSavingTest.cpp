#include "core/FileSaving.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "platform/RunTimeError.h"
#include "support/AllocationLimit.h"
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
        return saveFile(path, make, "\r\n", files, dialogs);
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

/// A text that needs more memory than there is.
class Narrow : public FileSaving {
protected:
    Narrow()
    {
        second.assign(100'000, 'x');
        limit.emplace(50'000);
    }

    static constexpr const char *kOutOfMemory =
        "[Error saving small.any|1] Out of memory (RAM). Please close some other applications and try again.\r\n"
        "OK to Retry, Cancel to quit.\n";
    std::optional<test::AllocationLimit> limit;
};

TEST_F(Narrow, lackOfMemoryWhileMakingIsTold)
{
    dialogs.answers = {Answer::Cancel};
    EXPECT_FALSE(save());
    EXPECT_TRUE(files.written.empty());
    EXPECT_EQ(dialogs.transcript, kOutOfMemory);
}

TEST_F(Narrow, retryWritesThePartialText)
{
    dialogs.onShow = [this](const MessageBox &) { limit.reset(); };
    EXPECT_TRUE(save());
    ASSERT_EQ(files.written.size(), 1u);
    EXPECT_EQ(files.written[0].second, "first\r\n\r\n");
}

TEST_F(Narrow, lackOfMemoryForTheLastLineEndIsToldAndMendedByTheRetry)
{
    const auto make = [](std::string &text) {
        text.reserve(40'000);
        text.assign(text.capacity(), 'x');
    };
    dialogs.onShow = [this](const MessageBox &) { limit.reset(); };
    EXPECT_TRUE(saveFile(path, make, "\r\n", files, dialogs));
    ASSERT_EQ(files.written.size(), 1u);
    EXPECT_EQ(files.written[0].second, std::string(40'000, 'x') + "\r\n");
    EXPECT_EQ(dialogs.transcript, kOutOfMemory);
}

TEST_F(Narrow, lackOfMemoryOnTheRetryReachesTheCaller)
{
    const auto make = [](std::string &text) {
        text.reserve(40'000);
        text.assign(text.capacity(), 'x');
    };
    dialogs.answers = {Answer::Ok};
    try {
        saveFile(path, make, "\r\n", files, dialogs);
        ADD_FAILURE() << "no error";
    } catch (const RunTimeError &error) {
        EXPECT_EQ(error.number(), 31001);
    }
    EXPECT_TRUE(files.written.empty());
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
