#include <gtest/gtest.h>

#include <map>

#include "hostlink/RecordText.h"
#include "support/RandomRecord.h"
#include "unit/hostlink/TextModel.h"

namespace penwright::test {
namespace {

using TextMap = std::map<std::string, std::string, std::less<>>;

TextMap goodTexts()
{
    return {{"Filename", "a.ies"},      {"Keywords", "2"},           {"KeywordData", "IESNA91\r\n[TEST] x\r\n"},
            {"TiltIncl", "-1"},         {"TiltData", "1,2,0,9,1,2"}, {"OtherData", "1,2,3,1,2,4,5,6,7,8"},
            {"HorAngles", "2,0,90"},    {"VertAngles", "3,0,1,2"},   {"Candela", "1,2,3,4,5,6"},
            {"OptionalData", "more,x"}, {"PictureFilename", "p.bmp"}};
}

ReadRecord readTexts(const TextMap &texts)
{
    return readRecordTexts([&texts](std::string_view word) {
        const auto text = texts.find(word);
        return text == texts.end() ? std::string() : text->second;
    });
}

ReadRecord readWith(const std::string &word, const std::string &text)
{
    TextMap texts = goodTexts();
    texts[word] = text;
    return readTexts(texts);
}

TEST(ReadRecord, wholeRecord)
{
    const ReadRecord read = readTexts(goodTexts());
    PhotometricRecord expected;
    expected.Filename = "a.ies";
    expected.Keywords = {"IESNA91", "[TEST] x"};
    expected.TiltIncl = true;
    expected.LampToLuminaireGeometry = 1;
    expected.NumTiltAngles = 2;
    expected.TiltAngles = {0, 9};
    expected.TiltMultipliers = {1, 2};
    expected.NumLamps = 1;
    expected.LumensPerLamp = 2;
    expected.CandelaMultiplier = 3;
    expected.PhotometricType = 1;
    expected.UnitsType = 2;
    expected.Width = 4;
    expected.Length = 5;
    expected.Height = 6;
    expected.BallastFactor = 7;
    expected.InputWatts = 8;
    expected.NumHorzAngles = 2;
    expected.HorAngles = {0, 90};
    expected.NumVertAngles = 3;
    expected.VertAngles = {0, 1, 2};
    expected.Candela.reset(2, 3);
    for (int i = 0; i < 6; ++i)
        expected.Candela(i / 3 + 1, i % 3 + 1) = i + 1;
    expected.OptionalData = "more,x";
    expected.PictureFilename = "p.bmp";
    EXPECT_EQ(read.problem, "");
    EXPECT_EQ(read.record, expected);
}

struct ProblemCase {
    std::string word;
    std::string text;
    std::string problem;
};

class ReadProblem : public testing::TestWithParam<ProblemCase> {};

TEST_P(ReadProblem, isTheOneOfTheValue)
{
    EXPECT_EQ(readWith(GetParam().word, GetParam().text).problem, GetParam().problem) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(Values, ReadProblem,
                         testing::ValuesIn(std::vector<ProblemCase>{
                             {"Keywords", "-1", "(#Keywords)"},
                             {"Keywords", "32768", "(#Keywords)"},
                             {"Keywords", "1E400", "(#Keywords)"},
                             {"TiltIncl", "1E400", "(TiltInclude)"},
                             {"TiltData", "", "Problem parsing tilt data"},
                             {"TiltData", "1", "Problem parsing tilt data"},
                             {"TiltData", "1,2,0,9,1", "Problem parsing tilt data"},
                             {"TiltData", "1,-1", "Problem parsing tilt data"},
                             {"TiltData", "1,40000", "Problem parsing tilt data"},
                             {"TiltData", "40000,0", "Problem parsing tilt data"},
                             {"TiltData", "1,1,4E38,1", "Problem parsing tilt data"},
                             {"OtherData", "", "Problem parsing other data"},
                             {"OtherData", "1,2,3,1,2,4,5,6,7", "Problem parsing other data"},
                             {"OtherData", "32768,2,3,1,2,4,5,6,7,8", "Problem parsing other data"},
                             {"OtherData", "1,2,3,1,2,4,5,6,7,4E38", "Problem parsing other data"},
                             {"VertAngles", "", "Problem parsing vertical angles"},
                             {"VertAngles", "3,0,1", "Problem parsing vertical angles"},
                             {"VertAngles", "-3,0,1,2", "Problem parsing vertical angles"},
                             {"VertAngles", "3,0,1,-4E38", "Problem parsing vertical angles"},
                             {"HorAngles", "", "Problem parsing horizontal angles"},
                             {"HorAngles", "2,0", "Problem parsing horizontal angles"},
                             {"HorAngles", "-1", "Problem parsing horizontal angles"},
                             {"HorAngles", "70000,0", "Problem parsing horizontal angles"},
                             {"Candela", "", "(Candela)"},
                             {"Candela", "1,2,3,4,5", "(Candela)"},
                             {"Candela", "1,2,3,4,5,1E400", "(Candela)"},
                             {"HorAngles", "0", ""},
                             {"TiltIncl", "", ""},
                         }));

// Counts of a hostile host ask for 8 gigabytes here, and the text for a few bytes.
TEST(ReadRecord, countsAloneReserveNothing)
{
    std::string angles = "32767";
    for (int i = 0; i < 32767; ++i)
        angles += ",1";
    TextMap texts = goodTexts();
    texts["HorAngles"] = texts["VertAngles"] = angles;
    const ReadRecord read = readTexts(texts);
    EXPECT_EQ(read.problem, "(Candela)");
    EXPECT_EQ(read.record.Candela.rows(), 0);
}

TEST(ReadRecord, stopsAtTheFirstProblemAndKeepsWhatItHasRead)
{
    TextMap texts = goodTexts();
    texts["TiltData"] = "x";
    texts["OtherData"] = "x";
    const ReadRecord read = readTexts(texts);
    EXPECT_EQ(read.problem, "Problem parsing tilt data");
    EXPECT_EQ(read.record.Keywords.size(), 2);
    EXPECT_EQ(read.record.NumVertAngles, 0);
}

// The markers stand in the order in which the values are read: vertical angles come before horizontal ones.
TEST(ReadRecord, verticalAnglesAreReadBeforeHorizontalOnes)
{
    TextMap texts = goodTexts();
    texts["HorAngles"] = texts["VertAngles"] = "";
    EXPECT_EQ(readTexts(texts).problem, "Problem parsing vertical angles");
}

TEST(ReadRecord, storeErrorIsNoProblemOfAValue)
{
    const auto locked = [](std::string_view word) -> std::string {
        if (word == "OtherData")
            throw RunTimeError(55, "locked");
        return "0";
    };
    EXPECT_THROW(readRecordTexts(locked), RunTimeError);
}

struct KeywordCase {
    std::string count;
    std::string data;
    OneBased<std::string> lines;
};

class ReadKeywords : public testing::TestWithParam<KeywordCase> {};

TEST_P(ReadKeywords, goByTheCount)
{
    TextMap texts = goodTexts();
    texts["Keywords"] = GetParam().count;
    texts["KeywordData"] = GetParam().data;
    const ReadRecord read = readTexts(texts);
    EXPECT_EQ(read.problem, "");
    EXPECT_EQ(read.record.Keywords, GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(Counts, ReadKeywords,
                         testing::ValuesIn(std::vector<KeywordCase>{
                             {"0", "a\r\n", {}},
                             {"", "a\r\n", {}},
                             {"two", "a\r\n", {}},
                             {"3", "a\r\n\r\nc\r\n", {"a", "", "c"}},
                             {"3", "a\r\nb\r\n", {"a", "b", ""}},
                             {"3", "", {"", "", ""}},
                             {"2", "a\r\nb\r\nc\r\n", {"a", "b"}},
                             {"2", "a\r\nb", {"a", "b"}},
                             {"2", "a\nb,c\n", {"a", "b,c"}},
                             {"4", "a\n\r\nc\r\nd", {"a", "", "c", "d"}},
                             {"2", "a\rb\r\r\nc\r", {"a\rb\r", "c\r"}},
                             {"1", "a\nb\n", {"a"}},
                             {" 1.5 x", "a\r\nb\r\n", {"a", "b"}},
                             {"2.5", "a\r\nb\r\nc\r\n", {"a", "b"}},
                         }));

TEST(ReadRecord, numbersGoByTheirLeadingValue)
{
    const ReadRecord read = readWith("OtherData", " 2 lamps,.5,-.5,1E+00,,1e1,+3,x,0x10,9 ");
    EXPECT_EQ(read.problem, "");
    EXPECT_EQ(read.record.NumLamps, 2);
    EXPECT_EQ(read.record.LumensPerLamp, 0.5F);
    EXPECT_EQ(read.record.CandelaMultiplier, -0.5F);
    EXPECT_EQ(read.record.PhotometricType, 1);
    EXPECT_EQ(read.record.UnitsType, 0);
    EXPECT_EQ(read.record.Width, 10);
    EXPECT_EQ(read.record.Length, 3);
    EXPECT_EQ(read.record.Height, 0);
    EXPECT_EQ(read.record.BallastFactor, 0);
    EXPECT_EQ(read.record.InputWatts, 9);
}

TEST(ReadRecord, numbersBeyondTheCountAreIgnored)
{
    const ReadRecord read = readWith("VertAngles", "3,0,1,2,99,98");
    EXPECT_EQ(read.problem, "");
    EXPECT_EQ(read.record.VertAngles, (OneBased<float>{0, 1, 2}));
    EXPECT_EQ(readWith("Candela", "1,2,3,4,5,6,7").problem, "");
}

TEST(ReadRecord, emptyLinesBeforeTheNumbersAreSkipped)
{
    EXPECT_EQ(readWith("VertAngles", "\r\n3,0,1,2\r\n").record.VertAngles, (OneBased<float>{0, 1, 2}));
}

TEST(ReadRecord, anyNumberButZeroIncludesTilt)
{
    for (const char *text : {"-1", "1", ".1", "-1 yes"})
        EXPECT_TRUE(readWith("TiltIncl", text).record.TiltIncl) << text;
    for (const char *text : {"0", "", "true", "-0"})
        EXPECT_FALSE(readWith("TiltIncl", text).record.TiltIncl) << text;
}

TEST(ReadRecord, tiltDataIsNotLookedAtUnlessTiltIsIncluded)
{
    TextMap texts = goodTexts();
    texts["TiltIncl"] = "0";
    texts["TiltData"] = "rubbish";
    EXPECT_EQ(readTexts(texts).problem, "");
}

TEST(ReadRecord, millionCandelaValues)
{
    TextMap texts = goodTexts();
    std::string angles = "1000";
    for (int i = 0; i < 1000; ++i)
        angles += ",.5";
    texts["HorAngles"] = texts["VertAngles"] = angles;
    std::string candela;
    for (int i = 1; i <= 1000000; ++i)
        candela += std::to_string(i) + (i < 1000000 ? "," : "");
    texts["Candela"] = candela;
    const ReadRecord read = readTexts(texts);
    EXPECT_EQ(read.problem, "");
    EXPECT_EQ(read.record.Candela(1, 1), 1);
    EXPECT_EQ(read.record.Candela(2, 1), 1001);
    EXPECT_EQ(read.record.Candela(1000, 1000), 1000000);
}

TEST(ReadRecord, whatWasWrittenReadsBackToTheSameTexts)
{
    RandomRecord random(7);
    for (int i = 0; i < 2000; ++i) {
        const PhotometricRecord record = random.make();
        TextMap texts;
        for (const auto &[word, text] : TextModel::of(record))
            texts[word] = text;
        const ReadRecord read = readTexts(texts);
        ASSERT_EQ(read.problem, "");
        ASSERT_EQ(TextModel::of(read.record), TextModel::of(record)) << "record " << i;
    }
}

// Whatever a host writes, the answer is a record or a problem text.
TEST(ReadRecord, rubbishIsAProblemAndNeverAnError)
{
    RandomRecord random(99);
    const std::string letters(",,,\r\n\n0123456789-+.Ee \0\xff\x80[]", 27);
    for (int i = 0; i < 5000; ++i) {
        TextMap texts = goodTexts();
        for (auto &[word, text] : texts) {
            if (random.below(2) == 0)
                continue;
            text.clear();
            for (int length = random.below(12); length > 0; --length)
                text += letters[static_cast<std::size_t>(random.below(static_cast<int>(letters.size())))];
        }
        ASSERT_NO_THROW(readTexts(texts)) << "round " << i;
    }
}

}  // namespace
}  // namespace penwright::test
