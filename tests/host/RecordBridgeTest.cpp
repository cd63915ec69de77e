#include "hostlib/RecordBridge.h"

#include <gtest/gtest.h>

#include "core/IesText.h"
#include "hostbench/SampleLuminaire.h"
#include "platform/RunTimeError.h"

namespace penwright {
namespace {

TEST(RecordBridge, aRecordComesBackAsItWas)
{
    EXPECT_EQ(photometricRecord(hostRecord(sampleLuminaire())), sampleLuminaire());
}

TEST(RecordBridge, candelasAreReadByTheirPlaces)
{
    const PhotometricRecord sample = sampleLuminaire();
    const HostRecord record = hostRecord(sample);
    EXPECT_EQ(record.candelaAt(0, 36), sample.Candela(1, 37));
    EXPECT_EQ(record.candelaAt(4, 1), sample.Candela(5, 2));
    EXPECT_THROW(record.candelaAt(5, 0), std::out_of_range);
}

TEST(RecordBridge, tiltThatIsNotIncludedIsLeftBehind)
{
    PhotometricRecord sample = sampleLuminaire();
    sample.TiltIncl = false;
    EXPECT_TRUE(hostRecord(sample).tiltAngles.empty());
    HostRecord record = hostRecord(sampleLuminaire());
    record.tiltIncluded = false;
    EXPECT_TRUE(photometricRecord(record).TiltAngles.empty());
}

TEST(RecordBridge, listsThatDisagreeAreErrors)
{
    HostRecord fewerCandelas = hostRecord(sampleLuminaire());
    fewerCandelas.candela.pop_back();
    EXPECT_THROW(iesText(fewerCandelas), std::runtime_error);
    HostRecord fewerFactors = hostRecord(sampleLuminaire());
    fewerFactors.tiltFactors.pop_back();
    EXPECT_THROW(iesText(fewerFactors), std::runtime_error);
    HostRecord moreFactors = hostRecord(sampleLuminaire());
    moreFactors.tiltFactors.push_back(1);
    EXPECT_THROW(iesText(moreFactors), std::runtime_error);
    HostRecord tooLong = hostRecord(sampleLuminaire());
    tooLong.horizontalAngles.clear();
    tooLong.candela.clear();
    tooLong.verticalAngles.resize(32'767);
    EXPECT_NO_THROW(photometricRecord(tooLong));
    tooLong.verticalAngles.resize(32'768);
    EXPECT_THROW(photometricRecord(tooLong), std::runtime_error);
}

TEST(RecordBridge, bothKindsOfRecordHaveTheSameText)
{
    EXPECT_EQ(iesText(hostRecord(sampleLuminaire())), iesFileText(sampleLuminaire()));
}

TEST(RecordBridge, fileTextIsTheWholeFile)
{
    PhotometricRecord record;
    record.Keywords = {"IESNA:LM-63-2002", "[TEST] 1"};
    record.NumLamps = 1;
    record.LumensPerLamp = 1000;
    record.CandelaMultiplier = 1;
    record.PhotometricType = kTypeC;
    record.UnitsType = kFeet;
    record.BallastFactor = 1;
    record.InputWatts = 150;
    record.NumVertAngles = 2;
    record.VertAngles = {0, 90};
    record.NumHorzAngles = 1;
    record.HorAngles = {0};
    record.Candela.reset(1, 2);
    record.Candela(1, 1) = 12.3F;
    EXPECT_EQ(iesFileText(record),
              "IESNA:LM-63-2002\r\n[TEST] 1\r\nTILT=NONE\r\n1 1000 1 2 1 1 1 0 0 0\r\n1 1 150\r\n0 90\r\n0\r\n"
              "12.3000001907349 0\r\n");
}

// What the walk relies on: without these the sample would leave parts of the format untouched.
TEST(SampleLuminaire, touchesEveryPartOfTheFormat)
{
    const PhotometricRecord sample = sampleLuminaire();
    const std::string text = iesFileText(sample);
    EXPECT_TRUE(sample.TiltIncl);
    EXPECT_EQ(sample.Candela.rows(), 5);
    EXPECT_EQ(sample.Candela.columns(), 37);
    EXPECT_NE(text.find("TILT=INCLUDE\r\n1\r\n7\r\n"), std::string::npos);
    EXPECT_NE(text.find("00001"), std::string::npos) << "no decimal shows single precision";
    EXPECT_NE(text.find(" \r\n"), std::string::npos) << "no row is folded";
    for (int h = 2; h <= 5; ++h) {
        EXPECT_EQ(sample.Candela(h, 1), sample.Candela(1, 1));
        EXPECT_EQ(sample.Candela(h, 37), sample.Candela(1, 37));
    }
}

}  // namespace
}  // namespace penwright
