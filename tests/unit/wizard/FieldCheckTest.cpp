#include "wizard/FieldCheck.h"

#include <gtest/gtest.h>

#include <vector>

#include "core/NumberText.h"

namespace penwright::test {
namespace {

const std::string kEmpty = "Watts is empty.\r\n";
const std::string kNoNumber = "Watts is not a number.\r\n";
const std::string kNotPositive = "Watts must be greater than zero.\r\n";
const std::string kNotPositiveNorMinusOne = "Watts must be positve or -1\r\n";
const std::string kNotWhole = "Watts must be a whole number (1, 2, 3...)\r\n";

struct CheckCase {
    std::string text;
    int kinds;
    std::string lines;
};

void PrintTo(const CheckCase &row, std::ostream *out)
{
    *out << '"' << row.text << "\" with kinds " << row.kinds;
}

class FieldCheck : public testing::TestWithParam<CheckCase> {};

TEST_P(FieldCheck, addsALineForEachFault)
{
    WarningList list;
    gsbCheckField(list, "Watts", GetParam().text, GetParam().kinds);
    EXPECT_EQ(list.text(), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(AnyNumber, FieldCheck,
                         testing::Values(CheckCase{"", 0, kEmpty}, CheckCase{" ", 0, kNoNumber},
                                         CheckCase{"abc", 0, kNoNumber}, CheckCase{"1,5", 0, kNoNumber},
                                         CheckCase{"1 5", 0, kNoNumber}, CheckCase{"inf", 0, kNoNumber},
                                         CheckCase{"nan", 0, kNoNumber}, CheckCase{"0x10", 0, kNoNumber},
                                         CheckCase{"-5", 0, ""}, CheckCase{"0", 0, ""}, CheckCase{" 2.5 ", 0, ""},
                                         CheckCase{"1E400", 0, kNoNumber}, CheckCase{"1E39", 0, ""}));

INSTANTIATE_TEST_SUITE_P(Positive, FieldCheck,
                         testing::Values(CheckCase{"", 1, kEmpty}, CheckCase{"abc", 1, kNoNumber},
                                         CheckCase{"0", 1, kNotPositive}, CheckCase{"-0", 1, kNotPositive},
                                         CheckCase{"-1", 1, kNotPositive}, CheckCase{"1E-50", 1, kNotPositive},
                                         CheckCase{"0.001", 1, ""}, CheckCase{"+3", 1, ""}));

INSTANTIATE_TEST_SUITE_P(PositiveOrMinusOne, FieldCheck,
                         testing::Values(CheckCase{"-1", 5, ""}, CheckCase{"-1.0", 5, kNotPositiveNorMinusOne},
                                         CheckCase{" -1", 5, kNotPositiveNorMinusOne},
                                         CheckCase{"0", 5, kNotPositiveNorMinusOne},
                                         CheckCase{"-2", 5, kNotPositiveNorMinusOne}, CheckCase{"1", 5, ""},
                                         CheckCase{"", 5, kEmpty}, CheckCase{"x", 5, kNoNumber}));

INSTANTIATE_TEST_SUITE_P(Whole, FieldCheck,
                         testing::Values(CheckCase{"2.5", 2, kNotWhole}, CheckCase{"2.0", 2, ""},
                                         CheckCase{"-3", 2, ""}, CheckCase{"0.5", 2, kNotWhole},
                                         CheckCase{"32767", 2, ""}, CheckCase{"-32768", 2, ""}, CheckCase{"2E3", 2, ""},
                                         CheckCase{"2.00000001", 2, ""}));

INSTANTIATE_TEST_SUITE_P(PositiveAndWhole, FieldCheck,
                         testing::Values(CheckCase{"", 3, kEmpty}, CheckCase{"abc", 3, kNoNumber},
                                         CheckCase{"0", 3, kNotPositive}, CheckCase{"2.5", 3, kNotWhole},
                                         CheckCase{"-2.5", 3, kNotPositive + kNotWhole}, CheckCase{"2.0", 3, ""},
                                         CheckCase{"-2.5", 7, kNotPositiveNorMinusOne + kNotWhole},
                                         CheckCase{"-1", 7, ""}));

// Without FieldCheckPositive the flag for -1 asks for nothing.
INSTANTIATE_TEST_SUITE_P(MinusOneAlone, FieldCheck,
                         testing::Values(CheckCase{"-7", 4, ""}, CheckCase{"0", 4, ""}, CheckCase{"", 4, kEmpty}));

struct OverflowCase {
    std::string text;
    int kinds;
};

class FieldOverflow : public testing::TestWithParam<OverflowCase> {};

TEST_P(FieldOverflow, isRaisedUnderTheCaptionAndCountsAsFaulty)
{
    WarningList list;
    list.lookAt({3});
    try {
        gsbCheckField(list, "Number of Lamps", GetParam().text, GetParam().kinds);
        FAIL() << "nothing was raised";
    } catch (const RunTimeError &error) {
        EXPECT_EQ(error.number(), 6);
        EXPECT_EQ(error.description(), "Number of Lamps: Overflow");
    }
    EXPECT_TRUE(list.Clean());
    EXPECT_EQ(list.firstFault(), (FaultPlace{3}));
}

INSTANTIATE_TEST_SUITE_P(Values, FieldOverflow,
                         testing::Values(OverflowCase{"32768", 3}, OverflowCase{"-32769", 2}, OverflowCase{"1E39", 1},
                                         OverflowCase{"32767.5", 2}));

TEST(FieldCheckOrder, linesComeInTheOrderOfTheChecks)
{
    WarningList list;
    gsbCheckField(list, "Width", "", 0);
    gsbCheckField(list, "Length", "2", 0);
    gsbCheckField(list, "Height", "x", 0);
    EXPECT_EQ(list.text(), "Width is empty.\r\nHeight is not a number.\r\n");
}

TEST(ConvertField, givesTheValueOrNamesTheField)
{
    WarningList list;
    EXPECT_EQ(convertField(list, "Width", [] { return toSingle("2.5"); }), 2.5F);
    EXPECT_FALSE(list.firstFault());
    list.lookAt({1});
    try {
        convertField(list, "Width", [] { return toSingle("x"); });
        FAIL() << "nothing was raised";
    } catch (const RunTimeError &error) {
        EXPECT_EQ(error.number(), 13);
        EXPECT_EQ(error.description(), "Width: Type mismatch");
    }
    EXPECT_EQ(list.firstFault(), (FaultPlace{1}));
}

}  // namespace
}  // namespace penwright::test
