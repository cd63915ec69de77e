#include <gtest/gtest.h>

#include "hostlink/RecordText.h"
#include "support/RandomRecord.h"
#include "unit/hostlink/TextModel.h"

namespace penwright::test {
namespace {

TextModel::Texts textsOf(const PhotometricRecord &record)
{
    TextModel::Texts texts;
    writeRecordTexts(record,
                     [&texts](std::string_view word, std::string text) { texts.emplace_back(word, std::move(text)); });
    return texts;
}

PhotometricRecord smallRecord()
{
    PhotometricRecord record;
    record.PictureFilename = "lamp.bmp";
    record.Directory = "D:\\lum\\";
    record.Filename = "D:\\lum\\a.ies";
    record.Keywords = {"IESNA:LM-63-2002", "", "[TEST] a, b"};
    record.LampToLuminaireGeometry = 2;
    record.NumTiltAngles = 2;
    record.TiltAngles = {0, 90};
    record.TiltMultipliers = {1, 0.5F};
    record.NumLamps = 3;
    record.LumensPerLamp = 1e7F;
    record.CandelaMultiplier = 1;
    record.PhotometricType = kTypeC;
    record.UnitsType = kMeters;
    record.Width = -0.5F;
    record.Length = 0.5F;
    record.Height = 0;
    record.BallastFactor = 0.95F;
    record.InputWatts = 58.25F;
    record.NumHorzAngles = 2;
    record.NumVertAngles = 3;
    record.HorAngles = {0, 90};
    record.VertAngles = {0, 22.5F, 45};
    record.Candela.reset(2, 3);
    for (int h = 1; h <= 2; ++h)
        for (int v = 1; v <= 3; ++v)
            record.Candela(h, v) = 10 * h + v;
    record.OptionalData = "as it is";
    return record;
}

TEST(WriteRecord, wholeRecordInTableOrder)
{
    PhotometricRecord record = smallRecord();
    record.TiltIncl = true;
    EXPECT_EQ(textsOf(record), (TextModel::Texts{{"Filename", "D:\\lum\\a.ies"},
                                                 {"Keywords", "3"},
                                                 {"KeywordData", "IESNA:LM-63-2002\r\n\r\n[TEST] a, b\r\n"},
                                                 {"TiltIncl", "-1"},
                                                 {"TiltData", "2,2,0,90,1,.5"},
                                                 {"OtherData", "3,1E+07,1,1,2,-.5,.5,0,.95,58.25"},
                                                 {"HorAngles", "2,0,90"},
                                                 {"VertAngles", "3,0,22.5,45"},
                                                 {"Candela", "11,12,13,21,22,23"},
                                                 {"OptionalData", "as it is"},
                                                 {"PictureFilename", "lamp.bmp"}}));
}

TEST(WriteRecord, tiltThatIsNotIncludedIsSkippedThoughItIsThere)
{
    const TextModel::Texts texts = textsOf(smallRecord());
    EXPECT_EQ(texts[3], (std::pair<std::string, std::string>{"TiltIncl", "0"}));
    EXPECT_EQ(texts[4].first, "OtherData");
    EXPECT_EQ(texts.size(), 10U);
}

TEST(WriteRecord, emptyRecordStoresCountsOfZeroAndNoCandela)
{
    EXPECT_EQ(textsOf({}), (TextModel::Texts{{"Filename", ""},
                                             {"Keywords", "0"},
                                             {"TiltIncl", "0"},
                                             {"OtherData", "0,0,0,0,0,0,0,0,0,0"},
                                             {"HorAngles", "0"},
                                             {"VertAngles", "0"},
                                             {"Candela", ""},
                                             {"OptionalData", ""},
                                             {"PictureFilename", ""}}));
}

TEST(WriteRecord, singlesWidenedToDoubleShowFifteenDigits)
{
    PhotometricRecord record;
    record.NumHorzAngles = record.NumVertAngles = 1;
    record.HorAngles = record.VertAngles = {0};
    record.Candela.reset(1, 1);
    record.Candela(1, 1) = double{0.1F};
    EXPECT_EQ(textsOf(record)[6], (std::pair<std::string, std::string>{"Candela", ".100000001490116"}));
}

TEST(WriteRecord, countsBeyondTheirArraysAreError9)
{
    for (std::int16_t PhotometricRecord::*count :
         {&PhotometricRecord::NumHorzAngles, &PhotometricRecord::NumVertAngles, &PhotometricRecord::NumTiltAngles}) {
        PhotometricRecord record = smallRecord();
        record.TiltIncl = true;
        ++(record.*count);
        try {
            textsOf(record);
            ADD_FAILURE() << "a count that is too large was written";
        } catch (const RunTimeError &error) {
            EXPECT_EQ(error.number(), 9);
        }
    }
}

TEST(WriteRecord, randomRecordsReadAsTheModelTells)
{
    RandomRecord random(20260101);
    for (int i = 0; i < 3000; ++i) {
        const PhotometricRecord record = random.make();
        ASSERT_EQ(textsOf(record), TextModel::of(record)) << "record " << i;
    }
}

TEST(WriteRecord, valueNamesCarryTheFileNumber)
{
    EXPECT_EQ(recordValueName("Filename", 1), "Filename1");
    EXPECT_EQ(recordValueName("Candela", 12), "Candela12");
    EXPECT_EQ(recordValueName("PictureFilename", 25), "PictureFilename25");
}

}  // namespace
}  // namespace penwright::test
