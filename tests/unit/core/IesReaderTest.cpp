#include "core/IesReader.h"

#include <algorithm>
#include <regex>

#include "unit/core/IesReaderTest.h"

namespace penwright {
namespace {

using namespace std::string_literals;
using test::iesContentOf;
using test::kFileWithoutTilt;
using test::kWholeFile;
using test::with;

TEST(IesReader, readsEveryNumberToItsPlace)
{
    EXPECT_EQ(iesContentOf(kWholeFile).record, test::wholeRecord());
    EXPECT_EQ(iesContentOf(kFileWithoutTilt).record, test::recordWithoutTilt());
}

struct VersionCase {
    std::string firstLine;
    int year;
};

class IesVersion : public testing::TestWithParam<VersionCase> {};

INSTANTIATE_TEST_SUITE_P(FirstLines, IesVersion,
                         testing::ValuesIn(std::vector<VersionCase>{
                             {"IESNA91", 1991},
                             {"IESNA:LM-63-1995", 1995},
                             {"IESNA:LM-63-2002", 2002},
                             {"IESNA:LM-63-2002 ", 2002},
                             {"IESNA:LM-63-2002 first", 2002},
                             {"iesna:lm-63-2002", 2002},
                             {"\t IESNA:LM-63-2002\t", 2002},
                             {"\r\n\r\nIESNA:LM-63-2002", 2002},
                             {"IES:LM-63-2019", 2019},
                             {"IESNA:LM-63-2019", 2019},
                             {"IESNA86", 1986},
                             {"A downlight of 1986", 1986},
                             {"IES file of a downlight", 1986},
                             {"[TEST] 1", 1986},
                             {"[TEST] as in IESNA:LM-63-2002", 1986},
                         }));

TEST_P(IesVersion, isKnownByTheFirstWord)
{
    const IesContent content = iesContentOf(with(kFileWithoutTilt, "IESNA:LM-63-1995", GetParam().firstLine));
    EXPECT_EQ(content.year, GetParam().year);
    PhotometricRecord expected = test::recordWithoutTilt();
    expected.Keywords = content.record.Keywords;
    EXPECT_EQ(content.record, expected);
}

TEST(IesReader, a1986FileHasAnyLinesOrNone)
{
    const std::string numbers = kFileWithoutTilt.substr(kFileWithoutTilt.find("TILT="));
    EXPECT_EQ(iesContentOf(numbers).record.Keywords, OneBased<std::string>());
    EXPECT_EQ(iesContentOf(numbers).year, 1986);
    EXPECT_EQ(iesContentOf("Downlight, \r\n\r\n  4 lamps TILT=NONE\r\n" + numbers).record.Keywords,
              (OneBased<std::string>{"Downlight, ", "", "  4 lamps TILT=NONE"}));
}

TEST(IesReader, keywordLinesBecomeUtf8)
{
    const std::string german = with(kWholeFile, "Example Lighting", "Gl\xFChlicht");
    EXPECT_EQ(iesContentOf(german).record.Keywords(3), "[MANUFAC] Gl\xC3\xBChlicht");
    const std::string twice = with(kWholeFile, "Example Lighting", "Gl\xC3\xBChlicht");
    EXPECT_EQ(iesContentOf(twice).record.Keywords(3), "[MANUFAC] Gl\xC3\xBChlicht");
}

TEST(IesReader, saysWhichTiltFileItDoesNotRead)
{
    const IesContent content = iesContentOf(with(kFileWithoutTilt, "TILT=NONE", "TILT= my lamp.tlt "));
    EXPECT_EQ(content.tiltFile, "my lamp.tlt");
    EXPECT_FALSE(content.record.TiltIncl);
    EXPECT_EQ(iesContentOf(kWholeFile).tiltFile, "");
}

TEST(IesReader, keepsTheSecondNumberOfTheBallastLine)
{
    EXPECT_EQ(iesContentOf(kWholeFile).ballastLampFactor, 1);
    const std::string newest = with(kWholeFile, "IESNA:LM-63-1995", "IES:LM-63-2019");
    EXPECT_EQ(iesContentOf(with(newest, "0.97 1 117.4", "0.97 1.00010 117.4")).ballastLampFactor, 1.0001);
}

TEST(IesReader, readsTypeBAndFeet)
{
    const PhotometricRecord record = iesContentOf(with(kWholeFile, " 5 2 1 2 ", " 5 2 2 1 ")).record;
    EXPECT_EQ(record.PhotometricType, kTypeB);
    EXPECT_EQ(record.UnitsType, kFeet);
}

TEST(IesReader, readsTiltWithoutAngles)
{
    const std::string none = with(kWholeFile, "3\r\n0 45 90\r\n1 0.95 0.9\r\n", "0\r\n");
    EXPECT_TRUE(iesContentOf(none).record.TiltIncl);
    EXPECT_EQ(iesContentOf(none).record.NumTiltAngles, 0);
}

TEST(IesReader, readsEqualAngles)
{
    EXPECT_EQ(iesContentOf(with(kWholeFile, "0 180\r\n", "90 90\r\n")).record.HorAngles, (OneBased<float>{90, 90}));
}

std::string replaced(const std::string &text, const char *form, const char *other)
{
    return std::regex_replace(text, std::regex(form), other);
}

struct FormCase {
    std::string name;
    std::string bytes;
};

/// The same file in other clothes.
class IesForm : public testing::TestWithParam<FormCase> {};

std::string inUtf16(const std::string &text)
{
    std::string bytes = "\xFF\xFE";
    for (const char c : text)
        bytes += {c, '\0'};
    return bytes;
}

/// The numbers of a file with one of them in each line, or all in one.
std::string folded(const char *separator)
{
    const std::size_t begin = kWholeFile.find("2\r\n3");
    return kWholeFile.substr(0, begin) + replaced(kWholeFile.substr(begin), "\\s+", separator);
}

INSTANTIATE_TEST_SUITE_P(Forms, IesForm,
                         testing::ValuesIn(std::vector<FormCase>{
                             {"lineFeeds", replaced(kWholeFile, "\r\n", "\n")},
                             {"carriageReturns", replaced(kWholeFile, "\r\n", "\r")},
                             {"mixed", with(with(kWholeFile, "\r\n", "\n"), "\r\n", "\r")},
                             {"withoutLastLineEnd", kWholeFile.substr(0, kWholeFile.size() - 2)},
                             {"utf8Mark", "\xEF\xBB\xBF" + kWholeFile},
                             {"utf8MarkTwice", "\xEF\xBB\xBF\xEF\xBB\xBF" + kWholeFile},
                             {"utf16", inUtf16(kWholeFile)},
                             {"utf16MarkTwice", "\xFF\xFE" + inUtf16(kWholeFile)},
                             {"endMark", kWholeFile + "\x1A"},
                             {"endMarkWithPadding", kWholeFile + "\x1A\x1A\0\0 \r\n"s},
                             {"blankLinesBehind", kWholeFile + "\r\n \t\r\n\r\n"},
                             {"oneNumberInALine", folded("\r\n")},
                             {"allNumbersInALine", folded(" ")},
                             {"tabsAndBlanks", folded(" \t ")},
                             {"commas", folded(",")},
                             {"commasAndBlanks", folded(" , ")},
                             {"commasAtLineEnds", replaced(kWholeFile, "205.75", "205.75,")},
                             {"smallLetters", with(kWholeFile, "TILT=INCLUDE", "tilt=include")},
                             {"blanksInTheTiltLine", with(kWholeFile, "TILT=INCLUDE", " TILT = INCLUDE ")},
                             {"plusSigns", with(kWholeFile, "0 45 90", "+0 +45 +90")},
                             {"pointsAlone", with(kWholeFile, "0.95 0.9", ".95 .9")},
                             {"pointsBehind", with(kWholeFile, "0 45 90", "0. 45. 90.")},
                             {"decimalsOfCounts", with(kWholeFile, " 5 2 1 2 ", " 5.0 2.00 1. 2.0 ")},
                             {"exponents", with(kWholeFile, "4450.5", "44.505E2")},
                             {"leadingZeros", with(kWholeFile, "4 4450.5", "004 0004450.50")},
                             {"tooSmallForADouble", with(kWholeFile, "0 45 90", "1e-400 45 90")},
                         }),
                         [](const auto &each) { return each.param.name; });

TEST_P(IesForm, readsTheSame)
{
    EXPECT_EQ(iesContentOf(GetParam().bytes).record, test::wholeRecord());
}

TEST(IesReader, takesACommaWithABlankInAnyVersion)
{
    const std::string newer = with(kWholeFile, "1995", "2002");
    EXPECT_EQ(iesContentOf(with(newer, "101 102 103", "101, 102 ,\r\n103")).record.Candela,
              test::wholeRecord().Candela);
}

TEST(IesReader, canBeStopped)
{
    std::string text = "IESNA91\nTILT=NONE\n1 1000 1 1000 1000 1 2 0 0 0\n1 1 10\n";
    for (int list = 0; list < 2; ++list)
        for (int angle = 0; angle < 1000; ++angle)
            text += std::to_string(angle) + "\n";
    for (int value = 0; value < 1'000'000; ++value)
        text += "7\n";
    std::vector<double> parts;
    const auto reading = readIesFile(text, [&parts](double part) { return parts.push_back(part), parts.size() < 3; });
    ASSERT_TRUE(std::holds_alternative<IesFault>(reading));
    EXPECT_EQ(std::get<IesFault>(reading).text, "");
    ASSERT_EQ(parts.size(), 3U);
    EXPECT_TRUE(0 < parts[0] && parts[0] < parts[1] && parts[1] < parts[2] && parts[2] < 0.5);
    EXPECT_TRUE(std::holds_alternative<IesContent>(readIesFile(text, [](double) { return true; })));
}

TEST(IesReader, takesAsManyLinesBeforeTheTiltLineAsARecord)
{
    const auto withLines = [](int count) {
        std::string lines;
        for (int line = 0; line < count; ++line)
            lines += "[MORE]\r\n";
        return lines + kFileWithoutTilt.substr(kFileWithoutTilt.find("TILT="));
    };
    EXPECT_EQ(iesContentOf(withLines(32767)).record.Keywords.size(), 32767);
    EXPECT_EQ(test::refusalOf(withLines(32768)),
              "Line 32768: no line before this one begins with TILT=; it is no IES file.");
}

}  // namespace
}  // namespace penwright
