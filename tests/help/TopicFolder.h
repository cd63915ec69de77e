#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "HelpTopic.h"

namespace penwright::test {

inline std::string helpPath(const std::string &name)
{
    return std::string(HELP_FOLDER) + "/" + name;
}

inline HelpTopic topic(const std::string &name)
{
    return HelpTopic(helpPath(name));
}

/// The names of all topics.
inline std::vector<std::string> topicNames()
{
    std::vector<std::string> names = filesBelow(HELP_FOLDER);
    std::erase_if(names, [](const std::string &name) { return !name.ends_with(".html"); });
    return names;
}

/// The topic that the help begins with when no page is meant.
inline constexpr const char *kFirstTopic = "start.html";

/// What a topic says word for word in the section at an anchor.
struct Statement {
    const char *topic;
    const char *anchor;
    std::vector<std::string> words;
};

inline void expectSaid(const Statement &statement)
{
    const std::string section = topic(statement.topic).sectionAt(statement.anchor);
    for (const std::string &words : statement.words)
        EXPECT_NE(section.find(words), std::string::npos) << words << "\n" << section;
}

/// One topic with the form of its page.
struct PageTopic {
    const char *topic;
    const char *form;
};

/// The topics of the pages in the order of kPages.
inline constexpr PageTopic kPageTopics[]{
    {"lamp.html", "pages/luminaire/LampPage.ui"},       {"tilt.html", "pages/luminaire/TiltPage.ui"},
    {"keywords.html", "pages/keywords/KeywordPage.ui"}, {"angles.html", "pages/distribution/DistributionPage.ui"},
    {"candela.html", "pages/candela/CandelaPage.ui"},   {"finish.html", "pages/finish/FinishPage.ui"},
};

inline bool contains(const std::vector<std::string> &texts, const std::string &text)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

}  // namespace penwright::test
