#include "help/chm/HelpLinks.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace penwright::chm {
namespace {

struct LinkCase {
    std::string link;
    std::string topic;
    std::string anchor;
};

class Link : public testing::TestWithParam<LinkCase> {};

TEST_P(Link, namesAPlaceSeenFromTheTop)
{
    EXPECT_EQ(placeOfLink(GetParam().link), (HelpPlace{GetParam().topic, GetParam().anchor}));
}

INSTANTIATE_TEST_SUITE_P(Forms, Link,
                         testing::ValuesIn(std::vector<LinkCase>{
                             {"a.html", "a.html", ""},
                             {"/a.html", "a.html", ""},
                             {"a.html#low", "a.html", "low"},
                             {"#low", "", "low"},
                             {"b\\A.htm#x", "b/A.htm", "x"},
                             {"./b//../a.html", "a.html", ""},
                             {"../../../etc/passwd", "etc/passwd", ""},
                             {"a%20b.html#c%23d", "a b.html", "c#d"},
                             {"a%2.html", "a%2.html", ""},
                             {"100%", "100%", ""},
                             {"a.html?x=1#y", "a.html", "y"},
                             {"ms-its:x.chm::/t.html", "t.html", ""},
                             {"mk:@MSITStore:C:\\x::y.chm::/b/t.html#z", "b/t.html", "z"},
                             {"x.chm::/a.html::b.html", "b.html", ""},
                             {"", "", ""},
                         }));

std::string placesOf(const std::string &link)
{
    std::string places;
    for (const HelpPlace &place : placesOfStoredLink(link))
        places += place.topic + "#" + place.anchor + " ";
    return places;
}

TEST(StoredLink, thatIsAnAbsolutePathMayMeanEachOfItsTails)
{
    EXPECT_EQ(placesOf("/a/b/../c/d.html#e"), "a/c/d.html#e c/d.html#e d.html#e ");
    EXPECT_EQ(placesOf("C:\\a\\d.html"), "C:/a/d.html# a/d.html# d.html# ");
    EXPECT_EQ(placesOf("\\\\server\\d.html"), "server/d.html# d.html# ");
    EXPECT_EQ(placesOf("/d.html"), "d.html# ");
}

TEST(StoredLink, thatIsNoAbsolutePathMeansWhatItNames)
{
    for (const char *link : {"a/d.html", "../a/d.html", "x.chm::/a/d.html", "mk:@MSITStore:C:\\x.chm::/a/d.html"})
        EXPECT_EQ(placesOf(link), "a/d.html# ") << link;
    EXPECT_EQ(placesOf(""), "# ");
}

TEST(StoredLink, isLookedForByItsLastFoldersOnly)
{
    std::string path;
    for (int i = 0; i < 5000; ++i)
        path += "/a";
    const auto places = placesOfStoredLink(path + "/d.html");
    ASSERT_EQ(places.size(), 33u);
    EXPECT_EQ(places.back().topic, "d.html");
    EXPECT_EQ(places[1].topic.size(), 31 * 2 + 6u);
}

TEST(PageName, isKnownByItsEnding)
{
    for (const char *name : {"a.htm", "b/A.HTML", "x.y.xhtml"})
        EXPECT_TRUE(isPageName(name)) << name;
    for (const char *name : {"a.png", "html", ".html", "a.html.css", "#SYSTEM", ""})
        EXPECT_FALSE(isPageName(name)) << name;
}

}  // namespace
}  // namespace penwright::chm
