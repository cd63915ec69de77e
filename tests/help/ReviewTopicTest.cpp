#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "review/Remarks.h"
#include "TopicFolder.h"

namespace penwright::test {
namespace {

const std::string kTopic(kRemarkTopic);

TEST(ReviewTopic, hasAHeadingForEachRuleInTheirOrder)
{
    std::vector<std::string> headings;
    for (const std::string &anchor : topic(kTopic).valuesOf("a", "name"))
        if (std::find(kRemarkAnchors.begin(), kRemarkAnchors.end(), anchor) != kRemarkAnchors.end())
            headings.push_back(anchor);
    EXPECT_EQ(headings, std::vector<std::string>(kRemarkAnchors.begin(), kRemarkAnchors.end()));
}

TEST(ReviewTopic, saysOfEachRuleWhatToDo)
{
    for (const std::string_view anchor : kRemarkAnchors)
        EXPECT_NE(topic(kTopic).sectionAt(anchor).find("What to do: "), std::string::npos) << anchor;
}

struct RuleWords {
    RemarkRule rule;
    std::string words;
};

class RuleInTheTopic : public testing::TestWithParam<RuleWords> {};

TEST_P(RuleInTheTopic, isUnderItsOwnHeading)
{
    const std::string section = topic(kTopic).sectionAt(anchorOf(GetParam().rule));
    EXPECT_NE(section.find(GetParam().words), std::string::npos) << section;
}

INSTANTIATE_TEST_SUITE_P(Rules, RuleInTheTopic,
                         testing::ValuesIn(std::vector<RuleWords>{
                             {RemarkRule::MoreThanLamps, "more than the lamps' 8,900 lm"},
                             {RemarkRule::PerKilolumen, "This looks like candela per kilolumen"},
                             {RemarkRule::OddEfficacy, "34 lm/W is unusual"},
                             {RemarkRule::FullEfficiency, "Efficiency is 100 %"},
                             {RemarkRule::BallastTwice, "already contain the ballast"},
                             {RemarkRule::RefusedShape, "refuse the dimensions -2 x -2 x 0"},
                             {RemarkRule::AngleList, "list should begin at 0 and rise"},
                             {RemarkRule::FirstAndLastPlane, "Columns 0 and 360 differ"},
                             {RemarkRule::StopsAtHorizon, "Light stops abruptly at 90 degrees"},
                             {RemarkRule::TurnedTable, "turned by 90 degrees?"},
                             {RemarkRule::OddDimensions, "Width 600 m: millimeters?"},
                             {RemarkRule::Keywords, "[TESTLAB] is empty; the 2002 format requires it."},
                             {RemarkRule::KeywordText, "Row 7 contains TILT"},
                             {RemarkRule::TiltData, "Many programs refuse tilt data."},
                             {RemarkRule::TypeBList, "give -90 to 90"},
                             {RemarkRule::Spike, "stands out from its neighbours"},
                             {RemarkRule::CoarseSteps, "measure finer there"},
                             {RemarkRule::ThousandsSign, "was a sign between thousands read as a decimal point?"},
                         }));

TEST(ReviewTopic, isLedToFromTheLastPagesTopic)
{
    EXPECT_EQ(topic("finish.html").linkOf("figures and remarks on a finished file"), kTopic);
}

}  // namespace
}  // namespace penwright::test
