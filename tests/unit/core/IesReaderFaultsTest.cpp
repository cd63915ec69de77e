#include "core/IesReader.h"

#include "support/AllocationLimit.h"
#include "support/Growth.h"
#include "unit/core/IesReaderTest.h"

namespace penwright {
namespace {

using namespace std::string_literals;
using test::kFileWithoutTilt;
using test::kWholeFile;
using test::refusalOf;
using test::with;

struct FaultCase {
    std::string bytes;
    std::string text;
};

class IesFaults : public testing::TestWithParam<FaultCase> {};

const std::string kEndBeforeTilt =
    "the file ends without a line that begins with TILT=; it is no IES file, or its end is missing.";
const std::string kCommaFault = " does not belong there; write a point for decimals and blanks between numbers.";
const std::string kNewerFile = with(kWholeFile, "1995", "2002");

INSTANTIATE_TEST_SUITE_P(
    Header, IesFaults,
    testing::ValuesIn(std::vector<FaultCase>{
        {"", "Line 1: " + kEndBeforeTilt},
        {"\r\n\r\n", "Line 1: " + kEndBeforeTilt},
        {"A letter\nto somebody\n\n", "Line 2: " + kEndBeforeTilt},
        {"\x1A", "Line 1: " + kEndBeforeTilt},
        {kWholeFile.substr(0, kWholeFile.find("[MAN") + 5), "Line 3: " + kEndBeforeTilt},
        {with(kWholeFile, "TILT=INCLUDE", "TILT INCLUDE"), "Line 14: " + kEndBeforeTilt},
        {with(kWholeFile, "TILT=INCLUDE", "TILT="),
         "Line 4: NONE, INCLUDE or the name of a file belongs behind TILT=."},
        {with(kWholeFile, "1995", "2031"), "Line 1: \"IESNA:LM-63-2031\" is a version that is not known here."},
        {with(kWholeFile, "IESNA:LM-63-1995", "\r\nies:lm-63-1995"),
         "Line 2: \"IES:LM-63-1995\" is a version that is not known here."},
        {with(kWholeFile, "24-1187", "24-\0 1187"s),
         "Line 2: a character with the code 0 stands there; this is no IES file."},
        {kWholeFile + "\0"s, "Line 15: a character with the code 0 stands there; this is no IES file."},
    }));

INSTANTIATE_TEST_SUITE_P(Tilt, IesFaults,
                         testing::ValuesIn(std::vector<FaultCase>{
                             {with(kWholeFile, "INCLUDE\r\n2\r\n", "INCLUDE\r\n4\r\n"),
                              "Line 5: the lamp-to-luminaire geometry is 4; a whole number from 1 to 3 belongs there."},
                             {with(kWholeFile, "\r\n3\r\n", "\r\n-3\r\n"),
                              "Line 6: the number of tilt angles is -3; a whole number from 0 to 32767 belongs there."},
                             {with(kWholeFile, "0 45 90", "0 95 90"),
                              "Line 7: tilt angle 90 stands behind 95; angles must rise."},
                             {with(kWholeFile, "0.95 0.9\r\n", "0.95 x\r\n"),
                              "Line 8: \"x\" is no number; tilt factor 3 of 3 belongs there."},
                             {kWholeFile.substr(0, kWholeFile.find("INCLUDE") + 9),
                              "Line 4: the file ends where the lamp-to-luminaire geometry belongs."},
                         }));

INSTANTIATE_TEST_SUITE_P(
    PhotometricLine, IesFaults,
    testing::ValuesIn(std::vector<FaultCase>{
        {with(kWholeFile, "4 4450.5", "4.5 4450.5"),
         "Line 9: the number of lamps is 4.5; a whole number from -32768 to 32767 belongs there."},
        {with(kWholeFile, "4450.5", "lumens"), "Line 9: \"lumens\" is no number; the lumens per lamp belongs there."},
        {with(kWholeFile, "1.25", "nan"), "Line 9: \"nan\" is no number; the candela multiplier belongs there."},
        {with(kWholeFile, "1.25 5", "1.25 1000000"),
         "Line 9: the number of vertical angles is 1000000; a whole number from 1 to 32767 belongs there."},
        {with(kWholeFile, "5 2 1 2", "5 0 1 2"),
         "Line 9: the number of horizontal angles is 0; a whole number from 1 to 32767 belongs there."},
        {with(kWholeFile, "5 2 1 2", "5 2 3 2"),
         "Line 9: the photometric type is 3, type A; only types C and B are read here."},
        {with(kWholeFile, "5 2 1 2", "5 2 4 2"),
         "Line 9: the photometric type is 4; a whole number from 1 to 3 belongs there."},
        {with(kWholeFile, "5 2 1 2", "5 2 1 3"),
         "Line 9: the unit of the dimensions is 3; a whole number from 1 to 2 belongs there."},
        {with(kWholeFile, "0.18", "0x18"), "Line 9: \"0x18\" is no number; the width belongs there."},
        {with(kWholeFile, "-1.183", "-inf"), "Line 9: \"-inf\" is no number; the length belongs there."},
        {with(kWholeFile, "0.06", "1e39"), "Line 9: \"1e39\" is too large a number; the height belongs there."},
        {with(kWholeFile, "0.97", "1e400"),
         "Line 10: \"1e400\" is too large a number; the ballast factor belongs there."},
        {with(kWholeFile, "0.97 1 ", "0.97 1e "),
         "Line 10: \"1e\" is no number; the second number of the ballast line belongs there."},
        {with(kWholeFile, "117.4", "117.4W"), "Line 10: \"117.4W\" is no number; the input watts belongs there."},
    }));

INSTANTIATE_TEST_SUITE_P(
    Table, IesFaults,
    testing::ValuesIn(std::vector<FaultCase>{
        {with(kWholeFile, "22.5 45", "45 22.5"), "Line 11: vertical angle 22.5 stands behind 45; angles must rise."},
        {with(kWholeFile, "0 180\r\n", "180 0\r\n"),
         "Line 12: horizontal angle 0 stands behind 180; angles must rise."},
        {with(kWholeFile, "103 104", "103 1o4"), "Line 13: \"1o4\" is no number; candela value 4 of 10 belongs there."},
        {with(kWholeFile, "103 104", "103 +-104"),
         "Line 13: \"+-104\" is no number; candela value 4 of 10 belongs there."},
        {with(kWholeFile, "103 104", "103 -"), "Line 13: \"-\" is no number; candela value 4 of 10 belongs there."},
        {with(kWholeFile, "103 104", "103 1.2.3"),
         "Line 13: \"1.2.3\" is no number; candela value 4 of 10 belongs there."},
        {with(kWholeFile, "103 104", "103 1D4"), "Line 13: \"1D4\" is no number; candela value 4 of 10 belongs there."},
        {with(kWholeFile, "103 104", "103 \xB0"),
         "Line 13: \"\xC2\xB0\" is no number; candela value 4 of 10 belongs there."},
        {with(kWholeFile, "103 104", "103 " + std::string(99, 'x')),
         "Line 13: \"" + std::string(30, 'x') + "...\" is no number; candela value 4 of 10 belongs there."},
        {with(kWholeFile, "103 104", "103 1\x01"),
         "Line 13: \"1?\" is no number; candela value 4 of 10 belongs there."},
        {with(kWholeFile, "205.75", ""), "Line 14: the file ends behind 9 of 10 candela values."},
        {kWholeFile.substr(0, kWholeFile.find("\r\n0 180")), "Line 11: the file ends behind 0 of 2 horizontal angles."},
        {kWholeFile.substr(0, kWholeFile.size() - 9), "Line 14: the file ends behind 9 of 10 candela values."},
        {kWholeFile + "206 207", "Line 15: \"206\" stands behind the last candela value that the file announces."},
        {kWholeFile + "\r\nend of file",
         "Line 16: \"end\" stands behind the last candela value that the file announces."},
    }));

INSTANTIATE_TEST_SUITE_P(
    Commas, IesFaults,
    testing::ValuesIn(std::vector<FaultCase>{
        {with(kNewerFile, "4450.5", "4450,5"), "Line 9: the comma in \"4450,5\"" + kCommaFault},
        {with(kNewerFile, "101 102", "101,102"), "Line 13: the comma in \"101,102\"" + kCommaFault},
        {with(kWholeFile, "101 102", "101,,102"), "Line 13: the comma in \"101,,102\"" + kCommaFault},
        {with(kWholeFile, "101 102", "101 , , 102"), "Line 13: the comma in \",\"" + kCommaFault},
        {with(kWholeFile, "4450.5", "4450,5"),
         "Line 9: the number of vertical angles is 1.25; a whole number from 1 to 32767 belongs there."},
    }));

TEST_P(IesFaults, areSaidWithTheirLine)
{
    EXPECT_EQ(refusalOf(GetParam().bytes), GetParam().text);
}

TEST(IesReader, everyBeginningOfAFileIsRefused)
{
    const std::size_t lastValue = kWholeFile.find("205.75");
    for (std::size_t length = 0; length <= lastValue; ++length)
        ASSERT_TRUE(refusalOf(kWholeFile.substr(0, length)).starts_with("Line ")) << length;
}

TEST(IesReader, linesAreCountedWithAnyEnds)
{
    EXPECT_TRUE(refusalOf("a\rb\nc\r\nd\n\re").starts_with("Line 6: "));
}

TEST(IesReader, whatIsAnnouncedTakesNoMemory)
{
    const std::string many = "TILT=NONE\n1 1 1 32767 1 1 1 0 0 0\n1 1 1\n0 1 2\n";
    std::string square = "TILT=NONE\n1 1 1 32767 32767 1 1 0 0 0\n1 1 1\n";
    for (int i = 0; i < 2 * 32767; ++i)
        square += "0 ";
    const test::AllocationLimit limit(1'000'000);
    EXPECT_EQ(refusalOf(many), "Line 4: the file ends behind 3 of 32767 vertical angles.");
    EXPECT_EQ(refusalOf(square + "\n5 6"), "Line 5: the file ends behind 2 of 1073676289 candela values.");
}

TEST(IesReader, takesTimeInProportion)
{
    const auto read = [](const std::string &text) { return readIesFile(text); };
    EXPECT_LT(test::growth("[MORE] \xFC words\n", 4000, read), test::kMostGrowth);
    EXPECT_LT(test::growth("\r", 8000, read), test::kMostGrowth);
    const auto readNumbers = [](const std::string &text) { return readIesFile(kFileWithoutTilt + text); };
    EXPECT_LT(test::growth(" ,", 8000, readNumbers), test::kMostGrowth);
    const auto readTable = [](const std::string &text) {
        return readIesFile("TILT=NONE\n1 1 1 1 32767 1 1 0 0 0 1 1 1 0 " + text);
    };
    EXPECT_LT(test::growth("0 \n", 8000, readTable), test::kMostGrowth);
}

}  // namespace
}  // namespace penwright
