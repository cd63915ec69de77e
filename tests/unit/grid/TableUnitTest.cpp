#include "grid/TableUnit.h"

#include <gtest/gtest.h>

namespace penwright {
namespace {

TEST(TableUnit, saysWhatTheLampsGiveAndWhatIsMultiplied)
{
    const TableUnit once{.lumens = 8900};
    EXPECT_EQ(once.factor(), 8.9);
    EXPECT_EQ(once.words(false), "The lamps give 8900 lm.");
    EXPECT_EQ(once.words(true), "The lamps give 8900 lm: the values are multiplied by 8.9.");
    const TableUnit twice{.lumens = 8900, .multiplier = 8.9F};
    EXPECT_EQ(twice.words(false), "The lamps give 8900 lm.");
    EXPECT_EQ(twice.words(true),
              "The lamps give 8900 lm: the values are multiplied by 8.9. Page 1 multiplies by 8.9 as well.");
    EXPECT_EQ((TableUnit{.lumens = -1, .whyNone = "Why."}.words(true)), "Why.");
}

TEST(TableUnit, isInTheMultiplierThatIsItToOneInAHundred)
{
    const auto isIn = [](double lumens, float multiplier) {
        return TableUnit{.lumens = lumens, .multiplier = multiplier}.isInMultiplier();
    };
    EXPECT_TRUE(isIn(8900, 8.9F));
    EXPECT_TRUE(isIn(8900, 8.82F));
    EXPECT_TRUE(isIn(8900, 8.98F));
    EXPECT_FALSE(isIn(8900, 8.8F));
    EXPECT_FALSE(isIn(8900, 9.0F));
    EXPECT_FALSE(isIn(8900, 1));
    EXPECT_FALSE(isIn(1000, 1)) << "there the two readings are one";
    EXPECT_FALSE(isIn(0, 0));
    EXPECT_FALSE(isIn(-1, 2));
}

}  // namespace
}  // namespace penwright
