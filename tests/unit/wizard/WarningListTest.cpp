#include "wizard/WarningList.h"

#include <gtest/gtest.h>

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
