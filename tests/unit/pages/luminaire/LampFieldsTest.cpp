#include "pages/luminaire/LampFields.h"

#include <gtest/gtest.h>

#include <cmath>

#include "platform/RunTimeError.h"

namespace penwright::test {
namespace {

/// Fields that pass every check, no shape chosen.
LampFields goodFields()
{
    return {.texts = {"2", "1500", "1.5", "0.95", "36.5", "1.25", "4", "0.5"}};
}

struct FieldCase {
    LampField field;
    std::string text;
    std::string lines;
};

void PrintTo(const FieldCase &row, std::ostream *out)
{
    *out << "field " << row.field << " \"" << row.text << '"';
}

class LampFieldCheck : public testing::TestWithParam<FieldCase> {};

INSTANTIATE_TEST_SUITE_P(
    Refused, LampFieldCheck,
    testing::Values(FieldCase{kNumLampsField, "", "Number of Lamps is empty.\r\n"},
                    FieldCase{kNumLampsField, " ", "Number of Lamps is not a number.\r\n"},
                    FieldCase{kNumLampsField, "0", "Number of Lamps must be greater than zero.\r\n"},
                    FieldCase{kNumLampsField, "2.5", "Number of Lamps must be a whole number (1, 2, 3...)\r\n"},
                    FieldCase{kNumLampsField, "-2.5",
                              "Number of Lamps must be greater than zero.\r\n"
                              "Number of Lamps must be a whole number (1, 2, 3...)\r\n"},
                    FieldCase{kNumLampsField, "-1", "Number of Lamps must be greater than zero.\r\n"},
                    FieldCase{kLumensField, "", "Lumens per Lamp is empty.\r\n"},
                    FieldCase{kLumensField, "1,5", "Lumens per Lamp is not a number.\r\n"},
                    FieldCase{kLumensField, "0", "Lumens per Lamp must be positve or -1\r\n"},
                    FieldCase{kLumensField, "-1.0", "Lumens per Lamp must be positve or -1\r\n"},
                    FieldCase{kLumensField, " -1", "Lumens per Lamp must be positve or -1\r\n"},
                    FieldCase{kMultiplierField, "", "Candela Multiplier is empty.\r\n"},
                    FieldCase{kMultiplierField, "0", "Candela Multiplier must be greater than zero.\r\n"},
                    FieldCase{kMultiplierField, "-1", "Candela Multiplier must be greater than zero.\r\n"},
                    FieldCase{kBallastField, "", "Ballast Factor is empty.\r\n"},
                    FieldCase{kBallastField, "0", "Ballast Factor must be greater than zero.\r\n"},
                    FieldCase{kWattsField, "", "Watts is empty.\r\n"},
                    FieldCase{kWattsField, "-1", "Watts must be greater than zero.\r\n"},
                    FieldCase{kWidthField, "", "Width is empty.\r\n"},
                    FieldCase{kWidthField, "abc", "Width is not a number.\r\n"},
                    FieldCase{kLengthField, "", "Length is empty.\r\n"},
                    FieldCase{kLengthField, "abc", "Length is not a number.\r\n"},
                    FieldCase{kHeightField, "", "Height is empty.\r\n"},
                    FieldCase{kHeightField, "abc", "Height is not a number.\r\n"}));

INSTANTIATE_TEST_SUITE_P(Taken, LampFieldCheck,
                         testing::Values(FieldCase{kNumLampsField, "2.0", ""}, FieldCase{kNumLampsField, "32767", ""},
                                         FieldCase{kLumensField, "-1", ""}, FieldCase{kLumensField, "0.001", ""},
                                         FieldCase{kMultiplierField, "2.5", ""}, FieldCase{kBallastField, "2.5", ""},
                                         FieldCase{kWattsField, "2.5", ""}, FieldCase{kWidthField, "-3", ""},
                                         FieldCase{kLengthField, "0", ""}, FieldCase{kHeightField, " 0", ""}));

TEST_P(LampFieldCheck, tellsTheFaultsOfOneField)
{
    LampFields fields = goodFields();
    fields.texts[GetParam().field] = GetParam().text;
    WarningList list;
    checkLampFields(fields, list);
    EXPECT_EQ(list.text(), GetParam().lines);
    if (!GetParam().lines.empty())
        EXPECT_EQ(list.firstFault(), FaultPlace{.field = GetParam().field});
}

TEST(LampFieldChecks, emptyPageGetsEightLinesInOrder)
{
    WarningList list;
    checkLampFields({}, list);
    EXPECT_EQ(list.text(),
              "Number of Lamps is empty.\r\nLumens per Lamp is empty.\r\nCandela Multiplier is empty.\r\n"
              "Ballast Factor is empty.\r\nWatts is empty.\r\nWidth is empty.\r\nLength is empty.\r\n"
              "Height is empty.\r\n");
    EXPECT_EQ(list.firstFault(), FaultPlace{.field = kNumLampsField});
}

TEST(LampFieldChecks, dimensionsAreCheckedWhateverTheShape)
{
    for (int shape = -1; shape <= 14; ++shape) {
        LampFields fields = goodFields();
        fields.shape = shape;
        fields.texts[kHeightField] = "";
        WarningList list;
        checkLampFields(fields, list);
        EXPECT_EQ(list.text(), "Height is empty.\r\n") << shape;
    }
}

/// The message of the error that storing raises; the record must have stayed as it was.
std::string refusalOfStoring(const LampFields &fields, WarningList &list)
{
    PhotometricRecord record;
    try {
        storeLampFields(fields, list, record);
    } catch (const RunTimeError &error) {
        EXPECT_EQ(record, PhotometricRecord());
        return std::to_string(error.number()) + " " + error.description();
    }
    return "";
}

TEST(LampFieldChecks, lampsBeyondSixteenBitsOverflow)
{
    LampFields fields = goodFields();
    fields.texts[kNumLampsField] = "32768";
    WarningList list;
    try {
        checkLampFields(fields, list);
        FAIL();
    } catch (const RunTimeError &error) {
        EXPECT_EQ(error.number(), 6);
        EXPECT_EQ(error.description(), "Number of Lamps: Overflow");
    }
    EXPECT_EQ(list.firstFault(), FaultPlace{.field = kNumLampsField});
}

TEST(StoredLampFields, valueThatDoesNotFitStoresNothingAndNamesItsField)
{
    const std::array<std::string, kLampFieldCount> captions{"Number of Lamps", "Lumens per Lamp", "Candela Multiplier",
                                                            "Ballast Factor",  "Watts",           "Width",
                                                            "Length",          "Height"};
    for (int field = 0; field < kLampFieldCount; ++field) {
        LampFields fields = goodFields();
        fields.texts[field] = "1E39";
        WarningList list;
        EXPECT_EQ(refusalOfStoring(fields, list), "6 " + captions[field] + ": Overflow");
        EXPECT_EQ(list.firstFault(), FaultPlace{.field = field});
    }
}

PhotometricRecord stored(const LampFields &fields)
{
    WarningList list;
    PhotometricRecord record;
    record.Filename = "new_file_1";
    storeLampFields(fields, list, record);
    return record;
}

TEST(StoredLampFields, reachTheirPlacesInTheRecord)
{
    LampFields fields = goodFields();
    fields.shape = 2;
    PhotometricRecord expected;
    expected.Filename = "new_file_1";
    expected.NumLamps = 2;
    expected.LumensPerLamp = 1500;
    expected.CandelaMultiplier = 1.5F;
    expected.BallastFactor = 0.95F;
    expected.InputWatts = 36.5F;
    expected.Width = 1.25F;
    expected.Length = 4;
    expected.Height = 0.5F;
    expected.UnitsType = kFeet;
    expected.TiltIncl = false;
    EXPECT_EQ(stored(fields), expected);
    fields.isFeet = false;
    fields.isTiltIncluded = true;
    expected.UnitsType = kMeters;
    expected.TiltIncl = true;
    EXPECT_EQ(stored(fields), expected);
}

TEST(StoredLampFields, minusOneLumensMarksAbsolutePhotometry)
{
    LampFields fields = goodFields();
    fields.texts[kLumensField] = "-1";
    EXPECT_EQ(stored(fields).LumensPerLamp, -1);
}

TEST(StoredLampFields, withNoShapeDimensionsStayAsTyped)
{
    LampFields fields = goodFields();
    fields.texts[kWidthField] = "-1.5";
    fields.texts[kLengthField] = "0";
    fields.texts[kHeightField] = "3";
    const PhotometricRecord record = stored(fields);
    EXPECT_EQ(record.Width, -1.5F);
    EXPECT_EQ(record.Length, 0);
    EXPECT_FALSE(std::signbit(record.Length));
    EXPECT_EQ(record.Height, 3);
}

TEST(LampFieldOf, knowsWhereEachFieldOfTheRecordIsTyped)
{
    EXPECT_EQ(lampFieldOf(RecordField::NumLamps), kNumLampsField);
    EXPECT_EQ(lampFieldOf(RecordField::LumensPerLamp), kLumensField);
    EXPECT_EQ(lampFieldOf(RecordField::CandelaMultiplier), kMultiplierField);
    EXPECT_EQ(lampFieldOf(RecordField::BallastFactor), kBallastField);
    EXPECT_EQ(lampFieldOf(RecordField::InputWatts), kWattsField);
    EXPECT_EQ(lampFieldOf(RecordField::Width), kWidthField);
    EXPECT_EQ(lampFieldOf(RecordField::Length), kLengthField);
    EXPECT_EQ(lampFieldOf(RecordField::Height), kHeightField);
    EXPECT_EQ(lampFieldOf(RecordField::TiltIncl), kIncludeTiltField);
    EXPECT_EQ(lampFieldOf(RecordField::TiltMultipliers), std::nullopt);
    EXPECT_EQ(lampFieldOf(RecordField::Candela), std::nullopt);
}

}  // namespace
}  // namespace penwright::test
