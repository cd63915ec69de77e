#include "core/LineEnds.h"

#include <gtest/gtest.h>

namespace penwright::test {
namespace {

TEST(LineEnds, areOfOneCharacterOrTwo)
{
    EXPECT_EQ(lineEndLength("\r\na"), 2U);
    EXPECT_EQ(lineEndLength("\n\r"), 1U);
    EXPECT_EQ(lineEndLength("\r\r\n"), 1U);
    EXPECT_EQ(lineEndLength("a\n"), 0U);
    EXPECT_EQ(lineEndLength(""), 0U);
}

TEST(LineEnds, goOnceFromTheEndOfAText)
{
    for (const char *text : {"a", "a\n", "a\r", "a\r\n"})
        EXPECT_EQ(withoutLastLineEnd(text), "a");
    EXPECT_EQ(withoutLastLineEnd("a\n\n"), "a\n");
    EXPECT_EQ(withoutLastLineEnd("\n"), "");
}

TEST(LineEnds, countTheLines)
{
    EXPECT_EQ(lineNumberBehind(""), 1U);
    EXPECT_EQ(lineNumberBehind("a"), 1U);
    EXPECT_EQ(lineNumberBehind("a\r\nb\rc\nd"), 4U);
    EXPECT_EQ(lineNumberBehind("\n\r\r"), 4U);
}

TEST(LineEnds, insideALineAreBlanks)
{
    EXPECT_EQ(inOneLine("a\r\nb\rc\nd\te"), "a b c d\te");
    EXPECT_EQ(inOneLine("a\n\nb"), "a  b");
    EXPECT_EQ(inOneLine(" a \r\n\r\n"), " a ");
    EXPECT_EQ(inOneLine("\r\n"), "");
    EXPECT_EQ(inOneLine(""), "");
}

}  // namespace
}  // namespace penwright::test
