#include "pages/luminaire/TiltFields.h"

#include <gtest/gtest.h>

#include "platform/RunTimeError.h"

namespace penwright::test {
namespace {

struct TiltCase {
    std::string name;
    std::string count;
    std::optional<std::int16_t> selection;
    OneBased<float> angles;
    std::string lines;
    std::optional<FaultPlace> firstFault;
};

void PrintTo(const TiltCase &tilt, std::ostream *out)
{
    *out << tilt.name;
}

constexpr FaultPlace kCount{.field = kTiltCountField};
constexpr FaultPlace kGeometry{.field = kTiltGeometryField};

FaultPlace angle(int row)
{
    return {.field = kTiltGridField, .row = row, .column = 0};
}

const std::string kNoGeometry = "Please select a lamp to luminaire geometry.\r\n";
const std::string kStart = "Tilt Angles must start at 0\r\n";
const std::string kEnd = "Tilt Angles must end at 90 or 180\r\n";

std::string order(int first)
{
    return "Angles must be in ascending order, #" + std::to_string(first) + " greater than #" +
           std::to_string(first + 1) + "\r\n";
}

class TiltCheck : public testing::TestWithParam<TiltCase> {};

INSTANTIATE_TEST_SUITE_P(
    Counts, TiltCheck,
    testing::Values(
        TiltCase{"empty", "", {}, {}, "Number of Tilt Angles is empty.\r\n", kCount},
        TiltCase{"word", "abc", {}, {}, "Number of Tilt Angles is not a number.\r\n", kCount},
        TiltCase{"zero", "0", {}, {0}, "Number of Tilt Angles must be greater than zero.\r\n", kCount},
        TiltCase{"negative", "-3", 0, {0}, "Number of Tilt Angles must be greater than zero.\r\n", kCount},
        TiltCase{
            "fraction", "2.5", 0, {0, 90}, "Number of Tilt Angles must be a whole number (1, 2, 3...)\r\n", kCount},
        TiltCase{"both",
                 "-2.5",
                 0,
                 {0},
                 "Number of Tilt Angles must be greater than zero.\r\n"
                 "Number of Tilt Angles must be a whole number (1, 2, 3...)\r\n",
                 kCount}));

INSTANTIATE_TEST_SUITE_P(
    Lists, TiltCheck,
    testing::Values(
        TiltCase{"accepted", "3", 1, {0, 45, 90}, "", {}}, TiltCase{"to 180", "3.0", 2, {0, 90, 180}, "", {}},
        TiltCase{"no geometry", "3", {}, {0, 45, 90}, kNoGeometry, kGeometry},
        TiltCase{"start", "3", 0, {1, 45, 90}, kStart, angle(1)}, TiltCase{"end", "3", 0, {0, 45, 91}, kEnd, angle(3)},
        TiltCase{"single angle is first and last", "1", 0, {0}, kEnd, angle(1)},
        TiltCase{"single angle that ends right", "1", 0, {90}, kStart, angle(1)},
        TiltCase{"equal neighbours", "4", 0, {0, 45, 45, 90}, order(2), angle(3)},
        TiltCase{"falling", "4", 0, {0, 60, 45, 180}, order(2), angle(3)},
        TiltCase{"negative zero starts", "2", 0, {-0.0F, 90}, "", {}},
        TiltCase{"blank list", "3", {}, {0, 0, 0}, kNoGeometry + kEnd + order(1) + order(2), kGeometry},
        TiltCase{"all at once", "3", {}, {90, 45, 30}, kNoGeometry + kStart + kEnd + order(1) + order(2), kGeometry},
        TiltCase{"only the counted ones", "2", 0, {0, 90, 45}, "", {}}));

TEST_P(TiltCheck, addsItsLinesInOrder)
{
    const TiltCase &tilt = GetParam();
    const OneBased<float> factors(tilt.angles.size());
    WarningList list;
    checkTiltFields({tilt.count, tilt.selection, tilt.angles, factors}, list);
    EXPECT_EQ(list.text(), tilt.lines);
    EXPECT_EQ(list.firstFault(), tilt.firstFault);
}

struct RaisedCase {
    std::string count;
    int number;
    std::string description;
};

class TiltError : public testing::TestWithParam<RaisedCase> {};

INSTANTIATE_TEST_SUITE_P(Counts, TiltError,
                         testing::Values(RaisedCase{"32768", 6, "Number of Tilt Angles: Overflow"},
                                         RaisedCase{"40000", 6, "Number of Tilt Angles: Overflow"},
                                         RaisedCase{"1E39", 6, "Number of Tilt Angles: Overflow"},
                                         RaisedCase{"5", 9, "Subscript out of range"}));

TEST_P(TiltError, isRaised)
{
    const OneBased<float> three{0, 45, 90};
    WarningList list;
    try {
        checkTiltFields({GetParam().count, 0, three, three}, list);
        FAIL() << "nothing was raised";
    } catch (const RunTimeError &error) {
        EXPECT_EQ(error.number(), GetParam().number);
        EXPECT_EQ(error.description(), GetParam().description);
    }
    if (GetParam().number == 6) {
        EXPECT_EQ(list.firstFault(), kCount);
    }
}

TEST(TiltStore, fillsTheFiveFieldsAndNoOther)
{
    const OneBased<float> angles{0, 45, 90};
    const OneBased<float> factors{1, 0.95F, -2};
    PhotometricRecord expected;
    expected.TiltIncl = true;
    expected.NumTiltAngles = 3;
    expected.TiltAngles = angles;
    expected.TiltMultipliers = factors;
    for (std::int16_t selection = 0; selection < 3; ++selection) {
        PhotometricRecord record;
        record.TiltAngles = {1, 2, 3, 4, 5};
        storeTiltFields({"3", selection, angles, factors}, record);
        expected.LampToLuminaireGeometry = static_cast<std::int16_t>(selection + 1);
        EXPECT_EQ(record, expected);
    }
}

TEST(TiltStore, storesTheMostAngles)
{
    OneBased<float> angles(32767);
    for (int i = 1; i < 32767; ++i)
        angles(i) = static_cast<float>(i - 1) / 400;
    angles(32767) = 90;
    WarningList list;
    PhotometricRecord record;
    const TiltFields fields{"32767", 0, angles, angles};
    checkTiltFields(fields, list);
    EXPECT_EQ(list.text(), "");
    storeTiltFields(fields, record);
    EXPECT_EQ(record.NumTiltAngles, 32767);
    EXPECT_EQ(record.TiltAngles, angles);
}

}  // namespace
}  // namespace penwright::test
