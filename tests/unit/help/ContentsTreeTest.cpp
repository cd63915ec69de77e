#include "help/chm/ContentsTree.h"

#include <gtest/gtest.h>

#include <string>

namespace penwright::chm {
namespace {

std::string linesOf(const std::string &text)
{
    std::string lines;
    for (const ContentsLine &line : readContents(text))
        lines += std::string(static_cast<std::size_t>(line.depth), '.') + line.title + " -> " + line.link + "\n";
    return lines;
}

std::string entry(const std::string &title, const std::string &link)
{
    return "<LI> <OBJECT type=\"text/sitemap\">\n<param name=\"Name\" value=\"" + title +
           "\">\n<param name=\"Local\" value=\"" + link + "\">\n</OBJECT>\n";
}

TEST(ContentsTree, takesDepthFromTheLists)
{
    EXPECT_EQ(linesOf("<HTML><UL>" + entry("A", "a.htm") + "<UL>" + entry("B", "b.htm") + "<UL>" + entry("C", "c.htm") +
                      "</UL></UL>" + entry("D", "d.htm") + "</UL></HTML>"),
              "A -> a.htm\n.B -> b.htm\n..C -> c.htm\nD -> d.htm\n");
}

TEST(ContentsTree, readsWhatIsNoProperHtml)
{
    EXPECT_EQ(linesOf("<ul><object type=\"text/site properties\"><param name=\"Name\" value=\"no\"></object>"
                      "<OBJECT TYPE='text/sitemap'><PARAM VALUE='a > b' NAME=name><param name=Local value=x.htm#y>"
                      "<param name=\"Name\" value=\"second\"><param name=\"ImageNumber\" value=\"9\"></OBJECT>"
                      "<param name=\"Name\" value=\"stray\">"
                      "<object><param name=\"Name\" value=\"R&amp;D &#233;\"></object></ul>"),
              "a > b -> x.htm#y\nR&D é -> \n");
}

TEST(ContentsTree, aLineIsAtMostOneDeeperThanTheLineBefore)
{
    EXPECT_EQ(linesOf("<ul><ul><ul>" + entry("A", "") + "<ul><ul>" + entry("B", "") +
                      "</ul></ul></ul></ul></ul></ul></ul>" + entry("C", "")),
              "A -> \n.B -> \nC -> \n");
}

TEST(ContentsTree, doesNotGrowDeeperThanItsLimit)
{
    std::string text;
    for (int i = 0; i < 5000; ++i)
        text += "<ul>" + entry("x", "");
    const auto lines = readContents(text);
    ASSERT_EQ(lines.size(), 5000u);
    EXPECT_EQ(lines[62].depth, 62);
    EXPECT_EQ(lines[63].depth, 63);
    EXPECT_EQ(lines[64].depth, 63);
    EXPECT_EQ(lines.back().depth, 63);
}

TEST(ContentsTree, doesNotGrowLongerThanItsLimit)
{
    std::string text = "<ul>";
    for (int i = 0; i < 20010; ++i)
        text += "<object><param name=Name value=x></object>";
    EXPECT_EQ(readContents(text).size(), 20000u);
}

TEST(ContentsTree, ofCutOffTextIsWhatStandsBeforeTheCut)
{
    const std::string text = "<ul>" + entry("A", "a.htm") + entry("B", "b.htm");
    for (std::size_t length = 0; length < text.size(); ++length)
        EXPECT_LE(readContents(text.substr(0, length)).size(), 2u);
    EXPECT_EQ(linesOf(text.substr(0, text.size() - 5)), "A -> a.htm\n");
}

}  // namespace
}  // namespace penwright::chm
