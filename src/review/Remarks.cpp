#include "review/Remarks.h"

#include <iterator>

#include "review/RemarkRules.h"

namespace penwright {
namespace {

struct RuleRow {
    RemarkRule rule;
    bool needsTable;
    RemarkRuleCheck check;
};

constexpr std::array<RuleRow, kRemarkRuleCount> kRules{{
    {RemarkRule::MoreThanLamps, false, checkMoreThanLamps},
    {RemarkRule::PerKilolumen, false, checkPerKilolumen},
    {RemarkRule::OddEfficacy, false, checkOddEfficacy},
    {RemarkRule::FullEfficiency, false, checkFullEfficiency},
    {RemarkRule::BallastTwice, false, checkBallastTwice},
    {RemarkRule::RefusedShape, false, checkRefusedShape},
    {RemarkRule::AngleList, true, checkAngleList},
    {RemarkRule::FirstAndLastPlane, true, checkFirstAndLastPlane},
    {RemarkRule::StopsAtHorizon, true, checkStopsAtHorizon},
    {RemarkRule::TurnedTable, false, checkTurnedTable},
    {RemarkRule::OddDimensions, false, checkOddDimensions},
    {RemarkRule::Keywords, false, checkKeywords},
    {RemarkRule::KeywordText, false, checkKeywordText},
    {RemarkRule::TiltData, false, checkTiltData},
    {RemarkRule::TypeBList, true, checkTypeBList},
    {RemarkRule::Spike, true, checkSpike},
    {RemarkRule::CoarseSteps, true, checkCoarseSteps},
    {RemarkRule::ThousandsSign, true, checkThousandsSign},
}};

}  // namespace

void RuleRemarks::appendTo(std::vector<Remark> &remarks)
{
    if (m_untold > 0)
        m_remarks.back().text += " (and " + std::to_string(m_untold) + " more)";
    remarks.insert(remarks.end(), std::make_move_iterator(m_remarks.begin()), std::make_move_iterator(m_remarks.end()));
}

std::vector<Remark> remarksOf(const PhotometricRecord &record, const Photometry &photometry)
{
    const std::string_view firstLine = record.Keywords.empty() ? std::string_view() : record.Keywords(1);
    const Reviewed file{record, photometry, formatRules(firstLine)};
    std::vector<Remark> remarks;
    for (const RuleRow &row : kRules) {
        if (row.needsTable && !photometry.fault.empty())
            continue;
        RuleRemarks found(row.rule);
        row.check(file, found);
        found.appendTo(remarks);
    }
    return remarks;
}

}  // namespace penwright
