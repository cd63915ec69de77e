#include "draft/DraftWords.h"

#include <gtest/gtest.h>

namespace penwright::test {
namespace {

std::tm moment(int day, int month, int hour, int minute)
{
    std::tm time{};
    time.tm_mday = day;
    time.tm_mon = month - 1;
    time.tm_hour = hour;
    time.tm_min = minute;
    return time;
}

TEST(DraftWords, draftSaysWhatItIsAboutItsPageDayAndHour)
{
    EXPECT_EQ(draftOffer({0, 4, "EL-2054"}, moment(14, 5, 10, 32)), "Draft of EL-2054, page 5, 14 May 10:32");
    EXPECT_EQ(draftOffer({0, 0, "EL-2054"}, moment(1, 12, 0, 5)), "Draft of EL-2054, page 1, 1 December 00:05");
}

TEST(DraftWords, draftOfNothingNamedHasItsPageAlone)
{
    EXPECT_EQ(draftOffer({0, 1, ""}, moment(14, 5, 10, 32)), "Draft, page 2, 14 May 10:32");
}

TEST(DraftWords, lastFileIsAStart)
{
    EXPECT_EQ(lastFileOffer({0, 5, "EL-2054"}, moment(14, 5, 10, 32)), "Start from EL-2054, 14 May 10:32");
    EXPECT_EQ(lastFileOffer({0, 5, ""}, moment(14, 5, 10, 32)), "Start from the last file, 14 May 10:32");
}

TEST(DraftWords, whateverWasTypedMakesOneShortLine)
{
    const std::string about = "A\nB\tC" + std::string(100, 'x');
    EXPECT_EQ(draftOffer({0, 0, about}, moment(14, 5, 10, 32)),
              "Draft of A B C" + std::string(55, 'x') + "..., page 1, 14 May 10:32");
}

TEST(DraftWords, longNameIsCutBetweenCharacters)
{
    std::string about(59, 'x');
    about += "\u00e9";
    EXPECT_EQ(lastFileOffer({0, 0, about}, moment(14, 5, 10, 32)),
              "Start from " + std::string(59, 'x') + "..., 14 May 10:32");
}

TEST(DraftWords, filesPutAsideAreCounted)
{
    EXPECT_EQ(putAsideText(0), "");
    EXPECT_EQ(putAsideText(1), "A draft could not be read and was put aside.");
    EXPECT_EQ(putAsideText(3), "3 drafts could not be read and were put aside.");
}

TEST(DraftWords, everyEndButTakenHasItsWords)
{
    EXPECT_EQ(takeEndText(TakeEnd::Taken), "");
    EXPECT_EQ(takeEndText(TakeEnd::InUse), "Another wizard has taken this draft over.");
    EXPECT_EQ(takeEndText(TakeEnd::Gone), "This draft is not there any more.");
    EXPECT_EQ(takeEndText(TakeEnd::Damaged), "This draft could not be read and was put aside.");
    EXPECT_EQ(takeEndText(TakeEnd::Failed), "This draft cannot be read at the moment.");
}

TEST(DraftWords, reasonStandsBehindWhatIsNotKept)
{
    EXPECT_EQ(notKeptText("/f: disk is full"), "What you type is not kept as a draft: /f: disk is full");
}

}  // namespace
}  // namespace penwright::test
