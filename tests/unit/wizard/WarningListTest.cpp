#include "wizard/WarningList.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace penwright::test {
namespace {

TEST(WarningList, isCleanUntilSomethingIsAdded)
{
    WarningList list;
    EXPECT_TRUE(list.Clean());
    list.Add("Number of Lamps: must be positive.");
    EXPECT_FALSE(list.Clean());
}

TEST(WarningList, everyEntryEndsWithALineEndInTheOrderOfAdding)
{
    WarningList list;
    list.Add("first");
    list.Add("");
    list.Add("third");
    EXPECT_EQ(list.text(), "first\r\n\r\nthird\r\n");
}

TEST(WarningList, clearMakesItClean)
{
    WarningList list;
    list.Add("first");
    list.Clear();
    EXPECT_TRUE(list.Clean());
    EXPECT_EQ(list.text(), "");
}

TEST(WarningList, emptyEntryIsAnEntry)
{
    WarningList list;
    list.Add("");
    EXPECT_FALSE(list.Clean());
}

TEST(WarningList, firstFaultIsWhereTheFirstEntryWasFound)
{
    WarningList list;
    list.lookAt({1});
    list.lookAt({2, 7, 1});
    EXPECT_FALSE(list.firstFault());
    list.Add("second");
    list.lookAt({3});
    list.Add("third");
    EXPECT_EQ(list.firstFault(), (FaultPlace{2, 7, 1}));
}

TEST(WarningList, placeThatIsLookedAtAgainHasItsLaterLinesToo)
{
    WarningList list;
    for (const int field : {1, 2, 1}) {
        list.lookAt({field});
        list.Add("fault");
    }
    for (const int line : {0, 1, 2})
        EXPECT_EQ(list.placeOfLine(line), (FaultPlace{line == 1 ? 2 : 1})) << line;
}

TEST(WarningList, errorHasNoEntryAndComesBeforeTheEntriesFound)
{
    WarningList list;
    list.lookAt({4});
    list.noteError();
    EXPECT_TRUE(list.Clean());
    EXPECT_EQ(list.firstFault(), (FaultPlace{4}));
    list.Clear();
    list.lookAt({1});
    list.Add("first");
    list.lookAt({2});
    list.noteError();
    EXPECT_EQ(list.firstFault(), (FaultPlace{2}));
}

TEST(WarningList, eachLineHasThePlaceOfItsEntry)
{
    WarningList list;
    list.Add("no place told");
    list.lookAt({1});
    list.Add("one");
    list.Add("one more");
    list.lookAt({2, 7, 1});
    list.Add("two\r\nin two lines");
    list.lookAt({3});
    list.Add("three");
    const std::vector<std::optional<FaultPlace>> expected{std::nullopt,        FaultPlace{1},       FaultPlace{1},
                                                          FaultPlace{2, 7, 1}, FaultPlace{2, 7, 1}, FaultPlace{3}};
    for (int line = 0; line < 6; ++line)
        EXPECT_EQ(list.placeOfLine(line), expected[static_cast<std::size_t>(line)]) << line;
    for (const int beyond : {-1, 6, 1000})
        EXPECT_FALSE(list.placeOfLine(beyond)) << beyond;
    list.Clear();
    EXPECT_FALSE(list.placeOfLine(0));
}

TEST(WarningList, clearForgetsThePlaces)
{
    WarningList list;
    list.lookAt({4});
    list.Add("first");
    list.Clear();
    EXPECT_FALSE(list.firstFault());
    list.Add("no place told");
    EXPECT_FALSE(list.firstFault());
}

TEST(WarningList, millionEntriesGrowInOneBuffer)
{
    WarningList list;
    for (int i = 0; i < 1000000; ++i)
        list.Add("Row is blank.");
    EXPECT_EQ(list.text().size(), 15000000U);
}

}  // namespace
}  // namespace penwright::test
