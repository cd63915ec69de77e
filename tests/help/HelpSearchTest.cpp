#include "help/window/HelpSearch.h"

#include <gtest/gtest.h>

#include <string>

#include "help/window/HelpPageLimits.h"

namespace penwright::test {
namespace {

std::string foundFor(const char *question)
{
    const HelpSearch search({{"a", "Lamps", "lumens and WATTS of a lamp"},
                             {"b", "Tilt", "multipliers of the lamp"},
                             {"c", "Größe", "watts"}});
    std::string topics;
    for (const FoundPage &page : search.pagesWith(wordsOf(question)))
        topics += page.topic;
    return topics;
}

TEST(HelpSearch, findsPagesThatHoldEveryWord)
{
    EXPECT_EQ(foundFor("watts"), "ac");
    EXPECT_EQ(foundFor("  LAMP \t multipliers "), "b");
    EXPECT_EQ(foundFor("lamp watts"), "a");
    EXPECT_EQ(foundFor("lamp candela"), "");
    EXPECT_EQ(foundFor("GRÖSSE größe"), "") << "no page has both ways to write it";
    EXPECT_EQ(foundFor("gRÖße"), "c");
    EXPECT_EQ(foundFor("  "), "");
}

TEST(HelpSearch, putsPagesWithAWordInTheTitleFirst)
{
    EXPECT_EQ(foundFor("t"), "bac");
}

std::string repeated(const std::string &text, int count)
{
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

TEST(HelpPageLimits, letPassWhatPeopleWrite)
{
    EXPECT_TRUE(isShowable(""));
    EXPECT_TRUE(isShowable("a < b <"));
    EXPECT_TRUE(isShowable(repeated("<p>no end<br><li><img src=x><B>bold</B>", 5000)));
    EXPECT_TRUE(isShowable(repeated("<tr><td>1</td><td>2</td></tr>", 20000)));
    EXPECT_TRUE(isShowable("<img src=\"data:" + std::string(30000, 'x') + "\">"));
    EXPECT_TRUE(isShowable(repeated("<table>", 200) + std::string(20000, 'x')));
}

TEST(HelpPageLimits, refuseWhatTheToolkitWouldHangOn)
{
    EXPECT_FALSE(isShowable(std::string((1U << 20) + 1, ' ')));
    EXPECT_FALSE(isShowable(std::string(20001, 'x')));
    EXPECT_FALSE(isShowable(repeated("x<b>y</b>", 10001)));
    EXPECT_FALSE(isShowable(repeated("<TABLE><tr><td>", 201)));
    EXPECT_FALSE(isShowable(repeated("<b>", 201)));
}

}  // namespace
}  // namespace penwright::test
