#include "grid/TableUnit.h"

#include <gtest/gtest.h>

namespace penwright {
namespace {

TEST(TableUnit, saysWhatTheLampsGiveAndWhatIsMultiplied)
{
    const TableUnit once{.lumens = 8900};
    EXPECT_EQ(once.factor(ValueUnit::PerKilolumen), 8.9);
    EXPECT_EQ(once.words(ValueUnit::Candela), "The lamps give 8900 lm.");
    EXPECT_EQ(once.words(ValueUnit::PerKilolumen), "The lamps give 8900 lm: the values are multiplied by 8.9.");
    const TableUnit twice{.lumens = 8900, .multiplier = 8.9F};
    EXPECT_EQ(twice.words(ValueUnit::Candela), "The lamps give 8900 lm.");
    EXPECT_EQ(twice.words(ValueUnit::PerKilolumen),
              "The lamps give 8900 lm: the values are multiplied by 8.9. Page 1 multiplies by 8.9 as well.");
    EXPECT_EQ((TableUnit{.lumens = -1, .whyNone = "Why."}.words(ValueUnit::PerKilolumen)), "Why.");
}

TEST(TableUnit, hasThousandsAndThousandthsOfCandelaWithoutTheLamps)
{
    const TableUnit none{.lumens = -1, .whyNone = "Why."};
    EXPECT_EQ(none.factor(ValueUnit::Candela), 1);
    EXPECT_EQ(none.factor(ValueUnit::Kilocandela), 1000);
    EXPECT_EQ(none.factor(ValueUnit::Millicandela), 0.001);
    EXPECT_EQ(none.words(ValueUnit::Kilocandela), "The values are multiplied by 1000.");
    EXPECT_EQ(none.words(ValueUnit::Millicandela), "The values are multiplied by 0.001.");
    const TableUnit inTheFile{.lumens = 8900, .multiplier = 1000};
    EXPECT_TRUE(inTheFile.isInMultiplier(ValueUnit::Kilocandela));
    EXPECT_FALSE(inTheFile.isInMultiplier(ValueUnit::Candela));
    EXPECT_EQ(inTheFile.words(ValueUnit::Kilocandela),
              "The values are multiplied by 1000. Page 1 multiplies by 1000 as well.");
}

TEST(TableUnit, thatIsNoIntensityIsToBeChosen)
{
    const TableUnit unit{.lumens = 8900, .multiplier = 8.9F};
    EXPECT_EQ(unit.words(ValueUnit::Other),
              "The text names percent, lux or another unit than candela: choose what the values are.");
    EXPECT_FALSE((TableUnit{.lumens = 8900, .multiplier = 1.001F}.isInMultiplier(ValueUnit::Other)));
}

TEST(TableUnit, isInTheMultiplierThatIsItToOneInAHundred)
{
    const auto isIn = [](double lumens, float multiplier) {
        return TableUnit{.lumens = lumens, .multiplier = multiplier}.isInMultiplier(ValueUnit::PerKilolumen);
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
