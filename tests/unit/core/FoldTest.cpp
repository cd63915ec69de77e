#include "core/IesText.h"
#include "core/NumberText.h"
#include "support/ReadBack.h"
#include "support/SampleRecords.h"

namespace penwright {
namespace {

struct WidthCase {
    std::string firstLine;
    int width;
};

class FoldWidth : public testing::TestWithParam<WidthCase> {};

INSTANTIATE_TEST_SUITE_P(FirstLines, FoldWidth,
                         testing::ValuesIn(std::vector<WidthCase>{
                             {"IESNA91", 132},
                             {"IESNA:LM-63-1995", 132},
                             {"IESNA:LM-63-2002", 256},
                             {"iesna:lm-63-2002", 132},
                             {"IESNA:LM-63-2002 ", 132},
                             {"[TEST] 1", 132},
                             {"", 132},
                             {" IESNA:LM-63-2002", 132},
                             {"IESNA:LM-63-2019", 132},
                         }));

TEST_P(FoldWidth, goesByTheExactFirstLine)
{
    EXPECT_EQ(foldWidth(GetParam().firstLine), GetParam().width);
}

class Fold : public testing::Test {
protected:
    /// The lines of the text whose one row of candela values is given by their texts' lengths.
    std::vector<std::string> candelaLines(const std::string &firstLine, const std::vector<double> &values)
    {
        PhotometricRecord record = test::smallRecord();
        record.Keywords(1) = firstLine;
        record.NumHorzAngles = 1;
        record.HorAngles = {0};
        record.NumVertAngles = static_cast<std::int16_t>(values.size());
        record.VertAngles.reset(record.NumVertAngles);
        record.Candela.reset(1, record.NumVertAngles);
        for (int v = 1; v <= record.NumVertAngles; ++v)
            record.Candela(1, v) = values[static_cast<std::size_t>(v) - 1];
        std::string text;
        appendIesText(text, record);
        EXPECT_EQ(test::readBackFault(text + "\r\n", record), "");
        const std::string mark = "\r\n0\r\n";  // the line of the one horizontal angle
        std::vector<std::string> lines;
        std::size_t start = text.rfind(mark) + mark.size();
        for (std::size_t end; (end = text.find("\r\n", start)) != std::string::npos; start = end + 2)
            lines.push_back(text.substr(start, end - start));
        lines.push_back(text.substr(start));
        return lines;
    }
};

std::size_t visible(const std::string &line)
{
    return line.find_last_not_of(' ') + 1;
}

TEST_F(Fold, linesCarryOneCharacterLessThanTheWidth)
{
    const std::vector<double> ones(400, 1.0);
    const auto narrow = candelaLines("IESNA91", ones);
    EXPECT_EQ(visible(narrow[0]), 131u);
    const auto wide = candelaLines("IESNA:LM-63-2002", ones);
    EXPECT_EQ(visible(wide[0]), 255u);
}

// 66 digits and 65 blanks fill a line; the blank that follows does not fit either and begins the next line.
TEST_F(Fold, separatorIsFoldedItselfWhenTheLineIsFull)
{
    const auto lines = candelaLines("IESNA91", std::vector<double>(70, 1.0));
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].size(), 131u);
    EXPECT_EQ(lines[0].back(), '1');
    EXPECT_EQ(lines[1], " 1 1 1 1");
}

TEST_F(Fold, foldsBeforeANumberAndLeavesTheBlankBehind)
{
    std::vector<double> values(43, 22.0);  // 43 times "22 " is 129 characters
    values.push_back(333);
    const auto lines = candelaLines("IESNA91", values);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].size(), 129u);
    EXPECT_EQ(lines[0].back(), ' ');
    EXPECT_EQ(lines[1], "333");
}

TEST_F(Fold, numberThatJustFitsStays)
{
    std::vector<double> values(43, 22.0);
    values.push_back(33);
    const auto lines = candelaLines("IESNA91", values);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].size(), 131u);
}

TEST_F(Fold, wholeLinesAreNeverFolded)
{
    PhotometricRecord record = test::smallRecord();
    record.Keywords(2) = "[OTHER] " + std::string(500, 'x');
    EXPECT_NE(iesFileText(record).find("\r\n[OTHER] " + std::string(500, 'x') + "\r\n"), std::string::npos);
}

TEST_F(Fold, anglesAndTiltNumbersAreFoldedToo)
{
    PhotometricRecord record = test::smallRecord();
    record.Keywords(1) = "IESNA91";
    record.TiltIncl = true;
    record.NumTiltAngles = 100;
    record.TiltAngles.reset(100);
    record.TiltMultipliers.reset(100);
    const std::string full = [] {
        std::string zeros = "0";
        for (int i = 1; i < 66; ++i)
            zeros += " 0";
        return zeros;
    }();
    const std::string text = iesFileText(record);
    const std::size_t first = text.find("\r\n" + full + "\r\n 0");
    ASSERT_NE(first, std::string::npos);
    EXPECT_NE(text.find("\r\n" + full + "\r\n 0", first + 2), std::string::npos);
}

}  // namespace
}  // namespace penwright
