#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "review/RecordPlace.h"

namespace penwright {

/// The rules by which a formally valid file is remarked on, in the order of their weight.
enum class RemarkRule {
    MoreThanLamps,
    PerKilolumen,
    OddEfficacy,
    FullEfficiency,
    BallastTwice,
    RefusedShape,
    AngleList,
    FirstAndLastPlane,
    StopsAtHorizon,
    TurnedTable,
    OddDimensions,
    Keywords,
    KeywordText,
    TiltData,
    TypeBList,
    Spike,
    CoarseSteps,
    ThousandsSign,
};
inline constexpr std::size_t kRemarkRuleCount = 18;

/// The help topic that explains the rules, and the anchor of each rule's heading there, in the order of the rules.
inline constexpr std::string_view kRemarkTopic = "review.html";
inline constexpr std::array<std::string_view, kRemarkRuleCount> kRemarkAnchors{
    "more-than-lamps", "per-kilolumen", "efficacy", "efficiency", "ballast",      "shape",
    "angle-list",      "first-last",    "horizon",  "turned",     "dimensions",   "keywords",
    "keyword-text",    "tilt",          "type-b",   "spike",      "coarse-steps", "thousands",
};

/// The anchor of a rule's heading in the topic of the remarks.
constexpr std::string_view anchorOf(RemarkRule rule)
{
    return kRemarkAnchors[static_cast<std::size_t>(rule)];
}

/// What should be looked at before a file is sent.
struct Remark {
    RemarkRule rule = RemarkRule::MoreThanLamps;
    std::string text;  ///< one sentence with its numbers
    RecordPlace place;
    bool operator==(const Remark &) const = default;
};

/// The most remarks of one rule; the text of the last one ends with how many more there are, "(and 12 more)".
inline constexpr std::size_t kMostOfOneRule = 10;

}  // namespace penwright
