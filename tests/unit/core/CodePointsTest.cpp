#include "core/CodePoints.h"

#include <gtest/gtest.h>

namespace penwright::test {
namespace {

TEST(CodePoints, areCountedNotBytes)
{
    EXPECT_EQ(codePointCount(""), 0);
    EXPECT_EQ(codePointCount("abc"), 3);
    EXPECT_EQ(codePointCount("Größe 5\u00B5m"), 9);
    EXPECT_EQ(codePointCount("\u20AC\U0001F4A1"), 2);
    EXPECT_EQ(codePointCount("e\u0301"), 2);
}

TEST(CodePoints, areNeverCutInTwo)
{
    EXPECT_EQ(withinBytes("", 3), "");
    EXPECT_EQ(withinBytes("abc", 3), "abc");
    EXPECT_EQ(withinBytes("abcd", 3), "abc");
    EXPECT_EQ(withinBytes("ab\u20AC", 5), "ab\u20AC");
    EXPECT_EQ(withinBytes("ab\u20AC", 4), "ab");
    EXPECT_EQ(withinBytes("ab\u20AC", 3), "ab");
    EXPECT_EQ(withinBytes("\x80\x80\x80", 2), "");
    EXPECT_EQ(withinBytes("abc", 0), "");
}

struct EncodedCase {
    char32_t codePoint;
    std::string bytes;
};

class EncodedCodePoint : public testing::TestWithParam<EncodedCase> {};

INSTANTIATE_TEST_SUITE_P(Borders, EncodedCodePoint,
                         testing::Values(EncodedCase{0x41, "A"}, EncodedCase{0x7F, "\x7F"},
                                         EncodedCase{0x80, "\xC2\x80"}, EncodedCase{0x7FF, "\xDF\xBF"},
                                         EncodedCase{0x800, "\xE0\xA0\x80"}, EncodedCase{0xFFFF, "\xEF\xBF\xBF"},
                                         EncodedCase{0x10000, "\xF0\x90\x80\x80"},
                                         EncodedCase{0x10FFFF, "\xF4\x8F\xBF\xBF"}));

TEST_P(EncodedCodePoint, isUtf8AndComesOffAsOne)
{
    EXPECT_EQ(codePointText(GetParam().codePoint), GetParam().bytes);
    EXPECT_EQ(codePointCount(GetParam().bytes), 1);
    EXPECT_EQ(withoutFirstCodePoint(GetParam().bytes + "[TEST]"), "[TEST]");
    EXPECT_EQ(withoutFirstCodePoint(GetParam().bytes), "");
}

TEST(CodePoints, brokenTextLosesNoMoreThanItsFirstCharacter)
{
    EXPECT_EQ(withoutFirstCodePoint(""), "");
    EXPECT_EQ(withoutFirstCodePoint("\xFFxyz"), "xyz");
    EXPECT_EQ(withoutFirstCodePoint("\x80xyz"), "xyz");
    EXPECT_EQ(withoutFirstCodePoint("\xE0xyz"), "xyz");
    EXPECT_EQ(withoutFirstCodePoint("\xC4"), "");
    EXPECT_EQ(withoutFirstCodePoint("A\u00FC"), "\u00FC");
}

}  // namespace
}  // namespace penwright::test
