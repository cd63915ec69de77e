#include <gtest/gtest.h>

#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "TopicFolder.h"
#include "wizard/PageTable.h"

namespace penwright::test {
namespace {

const std::string kProject = "Lumentor_PE-HTML.hhp";
const std::string kContents = "contents.hhc";

/// The lines of each section of the project file.
std::map<std::string, std::vector<std::string>> projectSections()
{
    std::map<std::string, std::vector<std::string>> sections;
    std::istringstream in(contentOf(helpPath(kProject)));
    std::string section;
    for (std::string line; std::getline(in, line);)
        if (line.starts_with('['))
            section = line;
        else if (!line.empty())
            sections[section].push_back(line);
    return sections;
}

std::set<std::string> anchorsOf(const std::string &name)
{
    const std::vector<std::string> names = topic(name).valuesOf("a", "name");
    return {names.begin(), names.end()};
}

/// Whether a link leads to a listed file, and to an anchor in it if it names one.
bool leadsSomewhere(const std::string &link, const std::string &from)
{
    const std::size_t mark = link.find('#');
    const std::string file = mark == 0 ? from : link.substr(0, mark);
    if (!contains(projectSections()["[FILES]"], file))
        return false;
    return mark == std::string::npos || anchorsOf(file).count(link.substr(mark + 1)) > 0;
}

TEST(HelpProject, listsEveryFileOfTheFolderAndNoOther)
{
    std::vector<std::string> listed = projectSections()["[FILES]"];
    std::sort(listed.begin(), listed.end());
    std::vector<std::string> present = filesBelow(HELP_FOLDER);
    std::erase_if(present, [](const std::string &name) {
        return name == kProject || name == kContents || name == "CMakeLists.txt";  // the recipe, not the content
    });
    EXPECT_EQ(listed, present);
}

TEST(HelpProject, givesEachPageItsTopicById)
{
    auto sections = projectSections();
    ASSERT_EQ(std::size(kPageTopics), kPages.size());
    for (std::size_t page = 0; page < kPages.size(); ++page) {
        const std::string number = std::to_string(kPages[page].helpId);
        std::string name;
        for (const std::string &line : sections["[MAP]"])
            if (line.ends_with(" " + number))
                name = line.substr(8, line.size() - 9 - number.size());  // "#define NAME 202"
        EXPECT_TRUE(contains(sections["[ALIAS]"], name + "=" + kPageTopics[page].topic)) << number << " " << name;

        const std::string caption(kPages[page].caption.substr(kPages[page].caption.find(") ") + 2));
        EXPECT_EQ(topic(kPageTopics[page].topic).text().substr(0, caption.size()), caption);
    }
    EXPECT_EQ(sections["[MAP]"].size(), kPages.size());
    EXPECT_EQ(sections["[ALIAS]"].size(), kPages.size());
}

TEST(HelpProject, isNamedAndBeginsWithTheFirstTopic)
{
    const auto options = projectSections()["[OPTIONS]"];
    EXPECT_TRUE(contains(options, "Title=New Photometric File - Help"));
    EXPECT_TRUE(contains(options, std::string("Default topic=") + kFirstTopic));
    EXPECT_TRUE(contains(options, "Contents file=" + kContents));
}

TEST(HelpLinks, ofEveryTopicLeadSomewhere)
{
    int count = 0;
    for (const std::string &name : topicNames()) {
        for (const auto &[tag, attribute] :
             {std::pair<std::string, std::string>{"a", "href"}, {"img", "src"}, {"link", "href"}})
            for (const std::string &link : topic(name).valuesOf(tag, attribute)) {
                EXPECT_TRUE(leadsSomewhere(link, name)) << name << " " << link;
                ++count;
            }
        EXPECT_EQ(topic(name).valuesOf("link", "href"), std::vector<std::string>{"style.css"}) << name;
    }
    EXPECT_GT(count, 60);
}

TEST(HelpLinks, anAnchorStandsOnceInATopic)
{
    for (const std::string &name : topicNames())
        EXPECT_EQ(anchorsOf(name).size(), topic(name).valuesOf("a", "name").size()) << name;
}

TEST(HelpContents, leadsToEveryTopicAndNowhereElse)
{
    const std::vector<std::string> links = topic(kContents).valuesOf("param", "value");
    std::set<std::string> reached;
    for (std::size_t i = 0; i + 1 < links.size(); i += 2) {  // "Name", "Local" by turns
        const std::string &local = links[i + 1];
        EXPECT_FALSE(links[i].empty());
        EXPECT_TRUE(leadsSomewhere(local, "")) << links[i] << " " << local;
        EXPECT_TRUE(reached.insert(local).second) << local;
    }
    ASSERT_GT(links.size(), 1U);
    EXPECT_EQ(links[1], kFirstTopic);
    for (const std::string &name : topicNames()) {
        EXPECT_TRUE(reached.count(name)) << name;
        for (const std::string &anchor : anchorsOf(name))
            EXPECT_TRUE(reached.count(name + "#" + anchor)) << name << " " << anchor;
    }
}

TEST(HelpTopics, useOnlyWhatTheHelpWindowShows)
{
    for (const std::string &name : topicNames()) {
        const std::string html = contentOf(helpPath(name));
        for (const char *no : {"<script", "<iframe", "style=\"", "http:", "https:"})
            EXPECT_EQ(html.find(no), std::string::npos) << name << " " << no;
    }
    const std::string style = contentOf(helpPath("style.css"));
    ASSERT_FALSE(style.empty());
    for (const char *no : {"float", "flex", "grid", "@import", "url("})
        EXPECT_EQ(style.find(no), std::string::npos) << no;
}

}  // namespace
}  // namespace penwright::test
