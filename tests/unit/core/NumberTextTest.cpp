#include "core/NumberText.h"

#include <limits>

#include "support/ErrorOf.h"

namespace penwright {
namespace {

struct NumericCase {
    std::string text;
    bool numeric;
    double leading;
};

class Numeric : public testing::TestWithParam<NumericCase> {};

INSTANTIATE_TEST_SUITE_P(Texts, Numeric,
                         testing::ValuesIn(std::vector<NumericCase>{
                             {"1", true, 1},
                             {" 1 ", true, 1},
                             {"+1", true, 1},
                             {"-.5", true, -0.5},
                             {"5.", true, 5},
                             {".", false, 0},
                             {"", false, 0},
                             {"  ", false, 0},
                             {"1e5", true, 1e5},
                             {"1E+05", true, 1e5},
                             {"1e-2", true, 0.01},
                             {"1e", false, 1},
                             {"1e+", false, 1},
                             {"1,5", false, 1},
                             {"1.234.5", false, 1.234},
                             {"--1", false, 0},
                             {"+-1", false, 0},
                             {"- 1", false, 0},
                             {"1 2", false, 1},
                             {"0x10", false, 0},
                             {"&H10", false, 0},
                             {"inf", false, 0},
                             {"nan", false, 0},
                             {"INFINITY", false, 0},
                             {"$5", false, 0},
                             {"1%", false, 1},
                             {"1e-999", true, 0},
                             {"0e999", true, 0},
                             {"abc", false, 0},
                             {" 12abc", false, 12},
                             {"1d5", false, 1},
                             {"0.000000000000000000001e-310", true, 0},
                             {"\t1", false, 0},
                             {"1\n", false, 1},
                         }));

TEST_P(Numeric, textIsOrIsNotANumberAndBeginsWithOne)
{
    EXPECT_EQ(isNumeric(GetParam().text), GetParam().numeric) << GetParam().text;
    EXPECT_EQ(leadingNumber(GetParam().text), GetParam().leading) << GetParam().text;
}

TEST(NumberText, whatNoDoubleHoldsIsNoNumberAndOverflows)
{
    for (const std::string &text : {std::string("1e999"), std::string("-1e999"), std::string(400, '9')}) {
        EXPECT_FALSE(isNumeric(text)) << text;
        EXPECT_EQ(test::errorOf([&] { leadingNumber(text); }), 6) << text;
    }
}

// The sign of the exponent alone does not tell which side of the range a number has left.
TEST(NumberText, digitsAndExponentTogetherDecideBetweenTooLargeAndTooSmall)
{
    const std::string zeros(400, '0');
    EXPECT_TRUE(isNumeric("0." + zeros + "1e+10"));
    EXPECT_EQ(leadingNumber("-." + zeros + "1e+10"), 0);
    EXPECT_FALSE(isNumeric("1" + zeros + "e-10"));
    EXPECT_EQ(leadingNumber("1" + zeros + "e-400"), 1);
    EXPECT_TRUE(isNumeric("1e-99999999999999999999"));
    EXPECT_FALSE(isNumeric("1e99999999999999999999"));
    EXPECT_EQ(leadingNumber("0e99999999999999999999"), 0);
}

TEST(NumberText, textsOfMillionsOfDigitsAreRead)
{
    const std::string digits(10000000, '9');
    EXPECT_FALSE(isNumeric(digits));
    EXPECT_EQ(leadingNumber("." + digits), 1);
    EXPECT_EQ(leadingNumber("7x" + digits), 7);
}

TEST(NumberText, singlesAreNarrowedToNearest)
{
    EXPECT_EQ(toSingle("0.1"), 0.1F);
    EXPECT_EQ(toSingle("16777217"), 16777216.0F);
    EXPECT_EQ(toSingle("1e-60"), 0.0F);
    EXPECT_EQ(test::errorOf([] { toSingle("3.5e38"); }), 6);
    EXPECT_EQ(test::errorOf([] { toSingle("x"); }), 13);
}

TEST(NumberText, integersRoundHalvesToEven)
{
    EXPECT_EQ(toInt16("2.5"), 2);
    EXPECT_EQ(toInt16("3.5"), 4);
    EXPECT_EQ(toInt16("-2.5"), -2);
}

TEST(NumberText, integersBeyondTheirTypeOverflow)
{
    EXPECT_EQ(toInt16("32767"), 32767);
    EXPECT_EQ(toInt16("-32768"), -32768);
    EXPECT_EQ(toInt16("32767.4"), 32767);
    for (const char *text : {"32768", "-32769", "32767.5", "1e9"})
        EXPECT_EQ(test::errorOf([&] { toInt16(text); }), 6) << text;
    EXPECT_EQ(toInt32("2147483647"), 2147483647);
    EXPECT_EQ(test::errorOf([] { toInt32("2147483648"); }), 6);
    EXPECT_EQ(test::errorOf([] { toInt32(""); }), 13);
}

TEST(NumberText, storeFormHasNoZeroBeforeThePoint)
{
    EXPECT_EQ(storeText(0.5), ".5");
    EXPECT_EQ(storeText(-0.5), "-.5");
    EXPECT_EQ(storeText(0.5F), ".5");
    EXPECT_EQ(storeText(10.5), "10.5");
    EXPECT_EQ(storeText(0.0), "0");
    EXPECT_EQ(storeText(-0.0F), "0");
    EXPECT_EQ(storeText(1e7F), "1E+07");
    EXPECT_EQ(storeText(12.300000190734863), "12.3000001907349");
    EXPECT_EQ(storeText(-32768), "-32768");
}

TEST(NumberText, storeFormReadsBackByItsLeadingNumber)
{
    for (const double value : {0.5, -0.5, 1e7, 1e-7, 12.25, -3.0})
        EXPECT_EQ(leadingNumber(storeText(value)), value);
}

}  // namespace
}  // namespace penwright
