#include "core/TextBytes.h"

#include <gtest/gtest.h>

namespace penwright {
namespace {

using namespace std::string_literals;

struct BytesCase {
    std::string name;
    std::string bytes;
    std::string text;
};

class TextBytes : public testing::TestWithParam<BytesCase> {};

INSTANTIATE_TEST_SUITE_P(Encodings, TextBytes,
                         testing::ValuesIn(std::vector<BytesCase>{
                             {"nothing", "", ""},
                             {"ascii", "12\t3", "12\t3"},
                             {"utf8", "90\xC2\xB0 \xE2\x82\xAC \xF0\x9F\x92\xA1",
                              "90\xC2\xB0 \xE2\x82\xAC \xF0\x9F\x92\xA1"},
                             {"utf8WithMark",
                              "\xEF\xBB\xBF"
                              "12",
                              "12"},
                             {"latin1", "90\xB0 \xFC", "90\xC2\xB0 \xC3\xBC"},
                             {"windowsSigns", "\x80 \x96 \x81", "\xE2\x82\xAC \xE2\x80\x93 \xEF\xBF\xBD"},
                             {"utf16LowFirst", "\xFF\xFE\x31\x00\xB0\x00\xAC\x20"s, "1\xC2\xB0\xE2\x82\xAC"},
                             {"utf16HighFirst", "\xFE\xFF\x00\x31\x00\xB0\x20\xAC"s, "1\xC2\xB0\xE2\x82\xAC"},
                             {"utf16Pair", "\xFF\xFE\x3D\xD8\xA1\xDC"s, "\xF0\x9F\x92\xA1"},
                             {"utf16HalfAPair", "\xFF\xFE\x3D\xD8\x31\x00"s, "\xEF\xBF\xBD\x31"},
                             {"utf16LoneSecondHalf", "\xFF\xFE\xA1\xDC"s, "\xEF\xBF\xBD"},
                             {"utf16OddLastByte", "\xFF\xFE\x31\x00\x32"s, "1"},
                             {"utf16MarkAlone", "\xFF\xFE", ""},
                         }),
                         [](const auto &each) { return each.param.name; });

TEST_P(TextBytes, becomeUtf8)
{
    EXPECT_EQ(utf8Text(GetParam().bytes), GetParam().text);
}

TEST(ShownWord, isShortAndPlain)
{
    EXPECT_EQ(shownWord(""), "\"\"");
    EXPECT_EQ(shownWord("a\tb\xB0"), "\"a?b\xC2\xB0\"");
    EXPECT_EQ(shownWord(std::string(30, 'x')), '"' + std::string(30, 'x') + '"');
    EXPECT_EQ(shownWord(std::string(31, 'x')), '"' + std::string(30, 'x') + "...\"");
    std::string euros;
    for (int i = 0; i < 40; ++i)
        euros += "\xE2\x82\xAC";
    EXPECT_EQ(shownWord(euros), '"' + euros.substr(0, 30) + "...\"");
    EXPECT_EQ(shownWord("x" + euros), "\"x" + euros.substr(0, 27) + "...\"");
}

TEST(IsUtf8, knowsWhatIsNone)
{
    for (const char *none : {"\xB0", "\xC2", "\xC2 ", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF0\x80\x80\x80",
                             "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "12345678\xFF", "1234567\xFF", "\xE2\x82"})
        EXPECT_FALSE(isUtf8(none)) << none;
    for (const char *some : {"", "12345678", "\xC2\xB0", "\xED\x9F\xBF", "\xEE\x80\x80", "\xF4\x8F\xBF\xBF",
                             "1234567\xC2\xB0 12345678 \xE2\x82\xAC"})
        EXPECT_TRUE(isUtf8(some)) << some;
}

}  // namespace
}  // namespace penwright
