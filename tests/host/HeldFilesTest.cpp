#include "hostbench/hostlib/HeldFiles.h"

#include <gtest/gtest.h>

#include "hostbench/SampleLuminaire.h"

namespace penwright {
namespace {

HeldFile file(const std::string &name, bool isSaved, float watts = 0)
{
    PhotometricRecord record;
    record.Filename = name;
    record.InputWatts = watts;
    return {record, isSaved};
}

TEST(HeldFiles, theTwentySixthIsNotAdded)
{
    HeldFiles files;
    for (int i = 0; i < 25; ++i)
        EXPECT_EQ(files.add(file(std::to_string(i), true)), i);
    EXPECT_TRUE(files.isFull());
    EXPECT_EQ(files.add(file("one more", true)), -1);
    EXPECT_EQ(files.count(), 25);
}

TEST(HeldFiles, aSavedFileReplacesTheOneOfItsName)
{
    HeldFiles files;
    files.add(file("/a.ies", true, 1));
    files.add(file("/b.ies", true, 2));
    EXPECT_EQ(files.add(file("/a.ies", true, 3)), 0);
    EXPECT_EQ(files.count(), 2);
    EXPECT_EQ(files.at(0).record.InputWatts, 3);
}

TEST(HeldFiles, anUnnamedFileReplacesNone)
{
    HeldFiles files;
    files.add(file("new_file_1", false, 1));
    EXPECT_EQ(files.add(file("new_file_1", false, 2)), 1);
    EXPECT_EQ(files.at(0).record.InputWatts, 1);
}

TEST(HeldFiles, aSavedFileIsReplacedEvenWhenTheListIsFull)
{
    HeldFiles files;
    for (int i = 0; i < 25; ++i)
        files.add(file(std::to_string(i), true));
    EXPECT_EQ(files.add(file("7", true, 5)), 7);
}

TEST(HeldFiles, savingGivesTheName)
{
    HeldFiles files;
    files.add(file("new_file_1", false));
    files.setSaved(0, "/tmp/a.ies");
    EXPECT_TRUE(files.at(0).isSaved);
    EXPECT_EQ(files.at(0).record.Filename, "/tmp/a.ies");
}

TEST(HeldFiles, fileTextIsTheWholeFile)
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
