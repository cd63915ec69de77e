#include "draft/DraftOffers.h"

#include <gtest/gtest.h>

namespace penwright::test {
namespace {

const DraftEntry kFirst{"a", {3, 4, "first"}};
const DraftEntry kSecond{"b", {2, 1, "second"}};
const DraftEntry kThird{"c", {1, 0, "third"}};

DraftOffers allOffered()
{
    DraftOffers offers;
    offers.begin({{kFirst, kSecond, kThird}, DraftHead{0, 5, "file"}, 0});
    return offers;
}

/// The names of what is offered, with the one in the line in brackets.
std::string shown(const DraftOffers &offers)
{
    std::string names;
    for (const DraftEntry &draft : offers.drafts())
        names += &draft == offers.offered() ? "[" + draft.name + "]" : draft.name;
    return names;
}

TEST(DraftOffers, beginWithTheLatest)
{
    DraftOffers offers = allOffered();
    EXPECT_EQ(shown(offers), "[a]bc");
    offers.choose(2);
    EXPECT_EQ(shown(offers), "ab[c]");
    EXPECT_EQ(offers.place(), 2U);
    offers.begin({{kSecond}, {}, 0});
    EXPECT_EQ(shown(offers), "[b]");
    EXPECT_FALSE(offers.last());
}

TEST(DraftOffers, withoutADraftHaveTheLastFile)
{
    DraftOffers offers = allOffered();
    for (const DraftEntry &draft : {kFirst, kSecond, kThird})
        offers.remove(draft.name);
    EXPECT_EQ(offers.offered(), nullptr);
    ASSERT_TRUE(offers.last());
    EXPECT_EQ(offers.last()->about, "file");
}

TEST(DraftOffers, goOnWithTheLatestBehindOneThatWasTakenOver)
{
    DraftOffers offers = allOffered();
    offers.choose(1);
    offers.remove("b");
    EXPECT_EQ(shown(offers), "[a]c");
    EXPECT_TRUE(offers.discarded().empty());
}

TEST(DraftOffers, bringADiscardedDraftBackToItsPlace)
{
    DraftOffers offers = allOffered();
    offers.choose(1);
    offers.discard(kSecond);
    EXPECT_EQ(shown(offers), "[a]c");
    ASSERT_EQ(offers.discarded().size(), 1U);
    EXPECT_EQ(offers.discarded()[0].name, "b");
    offers.bringBack(kSecond, 1);
    EXPECT_EQ(shown(offers), "a[b]c");
    EXPECT_TRUE(offers.discarded().empty());
    offers.begin({{}, {}, 0});
    offers.bringBack(kSecond, 1);
    EXPECT_EQ(shown(offers), "[b]") << "there are fewer than before";
}

TEST(DraftOffers, leaveADiscardedDraftOutUnlessAnotherRunHasGoneOnWithIt)
{
    DraftOffers offers = allOffered();
    offers.discard(kFirst);
    offers.begin({{kFirst, kSecond}, {}, 0});
    EXPECT_EQ(shown(offers), "[b]");
    offers.begin({{{"a", {4, 4, "first"}}, kSecond}, {}, 0});
    EXPECT_EQ(shown(offers), "[a]b");
}

}  // namespace
}  // namespace penwright::test
