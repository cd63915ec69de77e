#include "help/chm/ChmSystem.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "support/HelpSamples.h"

namespace penwright::chm {
namespace {

using namespace std::string_literals;
using test::idObject;
using test::systemObject;
using test::systemRecord;
using test::windowObject;

using Links = std::map<std::uint32_t, std::string>;

TEST(System, givesItsTextsAndLanguage)
{
    const ChmSystem system =
        readSystem(systemObject({{9, "compiler"}, {2, "a.html"}, {3, "T"}, {0, "toc.hhc"}, {3, "U"}}) +
                   systemRecord(4, "\x15\x04\0\0rest"s));
    EXPECT_EQ(system.title, "T");
    EXPECT_EQ(system.defaultTopic, "a.html");
    EXPECT_EQ(system.contentsFile, "toc.hhc");
    EXPECT_EQ(system.language, 0x415u);
}

TEST(System, aCutOffRecordGivesWhatIsThere)
{
    const std::string whole = systemObject({{2, "a.html"}, {3, "Title"}});
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        const ChmSystem system = readSystem(whole.substr(0, length));
        EXPECT_EQ(system.title, std::string("Title").substr(0, length < 19 ? 0 : length - 19)) << length;
    }
    EXPECT_FALSE(readSystem(systemObject({}) + systemRecord(4, "abc")).language);
}

TEST(System, windowsFillWhatIsEmpty)
{
    const std::string strings = "\0Title\0toc.hhc\0b.html\0"s;
    ChmSystem system{"", "a.html", "", {}};
    completeFromWindows(system, windowObject(1, 7, 15), strings);
    EXPECT_EQ(system.title, "Title");
    EXPECT_EQ(system.contentsFile, "toc.hhc");
    EXPECT_EQ(system.defaultTopic, "a.html");
}

TEST(System, windowsThatPointNowhereFillNothing)
{
    ChmSystem system;
    completeFromWindows(system, windowObject(22, 0xFFFFFFFF, 5000), "\0Title\0toc.hhc\0b.html\0"s);
    completeFromWindows(system, windowObject(1, 1, 1), "\0without an end"s);
    for (std::size_t length = 0; length < 0x14 + 8 + 4; ++length)
        completeFromWindows(system, windowObject(1, 7, 15).substr(0, length), "\0Title\0"s);
    std::string huge = windowObject(0, 0, 0);
    huge.replace(4, 4, "\xFF\xFF\xFF\xFF");
    completeFromWindows(system, huge, "\0Title\0"s);
    EXPECT_EQ(system.title + system.contentsFile + system.defaultTopic, "");
}

TEST(ContextIds, leadToTheirStrings)
{
    const std::string strings = "\0a.html\0b\\c.html#low\0"s;
    EXPECT_EQ(readContextIds(idObject({{30, 8}, {10, 1}, {20, 8}, {10, 8}}), strings),
              (Links{{10, "a.html"}, {20, "b\\c.html#low"}, {30, "b\\c.html#low"}}));
}

TEST(ContextIds, thatPointOutOfTheStringsLeadNowhere)
{
    const std::string strings = "\0a.html\0open end"s;
    EXPECT_EQ(readContextIds(idObject({{1, 0}, {2, 8}, {3, 23}, {4, 0xFFFFFFFF}, {5, 4}}), strings),
              (Links{{5, "tml"}}));
}

TEST(ContextIds, countNoFurtherThanTheirObjectGoes)
{
    const std::string strings = "\0a.html\0"s;
    std::string ids = idObject({{1, 1}, {2, 1}});
    EXPECT_EQ(readContextIds(ids.substr(0, 19), strings), (Links{{1, "a.html"}}));
    EXPECT_EQ(readContextIds(ids.substr(0, 3), strings), Links{});
    ids.replace(0, 4, "\x08\0\0\0"s);
    EXPECT_EQ(readContextIds(ids, strings), (Links{{1, "a.html"}}));
    ids.replace(0, 4, "\xFF\xFF\xFF\xFF"s);
    EXPECT_EQ(readContextIds(ids, strings), (Links{{1, "a.html"}, {2, "a.html"}}));
}

}  // namespace
}  // namespace penwright::chm
