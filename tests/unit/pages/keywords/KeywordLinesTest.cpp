#include "pages/keywords/KeywordLines.h"

#include <gtest/gtest.h>

namespace penwright::test {
namespace {

const OneBased<KeywordRow> kRows{{"IESNA:LM-63-2002", ""}, {"[TEST]", "1 2"}, {"", ""}, {"", "lost"}, {"[MORE]", ""}};

PhotometricRecord recordWithOldLines()
{
    PhotometricRecord record;
    record.Keywords = {"a", "b", "c", "d", "e", "f", "g"};
    record.NumLamps = 3;
    return record;
}

TEST(KeywordLines, storedLineIsKeyBlankValueAndEmptyWithoutAKey)
{
    PhotometricRecord expected;
    expected.NumLamps = 3;
    expected.Keywords = {"IESNA:LM-63-2002 ", "[TEST] 1 2", "", "", "[MORE] "};
    PhotometricRecord record = recordWithOldLines();
    storeKeywordLines(kRows, record);
    EXPECT_EQ(record, expected);
}

TEST(KeywordLines, pulledLineHasItsBlankInAnyCase)
{
    PhotometricRecord expected;
    expected.NumLamps = 3;
    expected.Keywords = {"IESNA:LM-63-2002 ", "[TEST] 1 2", " ", " lost", "[MORE] "};
    PhotometricRecord record = recordWithOldLines();
    EXPECT_EQ(gfnKeyPull(kRows, record), "");
    EXPECT_EQ(record, expected);
}

TEST(KeywordLines, noRowsAreNoLines)
{
    PhotometricRecord record = recordWithOldLines();
    storeKeywordLines({}, record);
    EXPECT_TRUE(record.Keywords.empty());
    record = recordWithOldLines();
    gfnKeyPull({}, record);
    EXPECT_TRUE(record.Keywords.empty());
}

}  // namespace
}  // namespace penwright::test
