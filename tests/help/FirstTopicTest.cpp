// What somebody with five minutes finds from the topic that the help begins with.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TopicFolder.h"

namespace penwright::test {
namespace {

struct Question {
    const char *text;
    Statement answer;  ///< in the section behind the link
};

class FirstTopic : public testing::TestWithParam<Question> {};

TEST_P(FirstTopic, answersByOneLink)
{
    const auto &[text, answer] = GetParam();
    EXPECT_EQ(topic(kFirstTopic).linkOf(text), std::string(answer.topic) + "#" + answer.anchor);
    expectSaid(answer);
}

INSTANTIATE_TEST_SUITE_P(
    OftenAsked, FirstTopic,
    testing::ValuesIn(std::vector<Question>{
        {"Is my table per kilolumen?", {"lamp.html", "absolute", {"cd/klm or cd/1000 lm", "lumens by hand"}}},
        {"Which way is 0?", {"angles.html", "zero", {"straight down", "0 is the street side, 180 the house side"}}},
        {"What do I write for an LED luminaire?",
         {"lamp.html", "led", {"1 lamp, -1 lumens, multiplier 1, ballast factor 1"}}},
        {"How do I know the lumens?", {"finish.html", "lumens", {"multiply by the factor", "0.095"}}},
        {"What to check before I send the file?", {"finish.html", "check", {"First line", "Multiplier 1"}}},
        {"Why does my lighting program refuse the file?",
         {"format.html", "trouble", {"TILT=INCLUDE", "version line", "Folded lines", "begin at 0"}}},
    }));

INSTANTIATE_TEST_SUITE_P(AboutTheTable, FirstTopic,
                         testing::ValuesIn(std::vector<Question>{
                             {"Relative, per kilolumen or absolute?",
                              {"lamp.html", "absolute", {"Relative", "kilolumen", "Absolute"}}},
                             {"Which planes?", {"angles.html", "zero", {"Type C", "Type B", "turned by 90 degrees"}}},
                             {"Which symmetry?", {"angles.html", "symmetry", {"0 to 90", "0 to 180", "0 to 360"}}},
                             {"Down or across?", {"candela.html", "paste", {"transpose"}}},
                             {"Which units?", {"lamp.html", "opening", {"Feet", "Meters"}}},
                         }));

TEST(FirstTopic, leadsToEachPage)
{
    const std::vector<std::string> links = topic(kFirstTopic).valuesOf("a", "href");
    for (const PageTopic &page : kPageTopics)
        EXPECT_TRUE(contains(links, page.topic)) << page.topic;
}

TEST(EveryTopic, leadsToWhatToCheckAndToLumensByHand)
{
    for (const std::string &name : topicNames()) {
        const std::vector<std::string> links = topic(name).valuesOf("a", "href");
        for (const char *link : {"finish.html#check", "finish.html#lumens"})
            EXPECT_TRUE(contains(links, link)) << name << " " << link;
        if (name != kFirstTopic)
            EXPECT_TRUE(contains(links, kFirstTopic)) << name;
    }
}

}  // namespace
}  // namespace penwright::test
