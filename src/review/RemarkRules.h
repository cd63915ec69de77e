#pragma once

#include <string>
#include <vector>

#include "core/PhotometricRecord.h"
#include "review/FormatRules.h"
#include "review/Photometry.h"
#include "review/Remark.h"

namespace penwright {

/// The remarks of one rule while a record is looked through.
class RuleRemarks {
public:
    explicit RuleRemarks(RemarkRule rule) : m_rule(rule) {}

    /// Adds a remark. `text` makes its sentence, and is asked only when there is room.
    template <typename Text>
    void add(const RecordPlace &place, const Text &text)
    {
        if (m_remarks.size() < kMostOfOneRule)
            m_remarks.push_back({m_rule, text(), place});
        else
            ++m_untold;
    }

    /// Moves the remarks to the end of others.
    void appendTo(std::vector<Remark> &remarks);

private:
    RemarkRule m_rule;
    std::vector<Remark> m_remarks;
    int m_untold = 0;
};

/// What a rule looks at.
struct Reviewed {
    const PhotometricRecord &record;
    const Photometry &photometry;
    const FormatRules &format;
};

using RemarkRuleCheck = void (*)(const Reviewed &file, RuleRemarks &remarks);

void checkMoreThanLamps(const Reviewed &file, RuleRemarks &remarks);
void checkPerKilolumen(const Reviewed &file, RuleRemarks &remarks);
void checkOddEfficacy(const Reviewed &file, RuleRemarks &remarks);
void checkFullEfficiency(const Reviewed &file, RuleRemarks &remarks);
void checkBallastTwice(const Reviewed &file, RuleRemarks &remarks);
void checkRefusedShape(const Reviewed &file, RuleRemarks &remarks);
void checkTurnedTable(const Reviewed &file, RuleRemarks &remarks);
void checkOddDimensions(const Reviewed &file, RuleRemarks &remarks);
void checkKeywords(const Reviewed &file, RuleRemarks &remarks);
void checkKeywordText(const Reviewed &file, RuleRemarks &remarks);
void checkTiltData(const Reviewed &file, RuleRemarks &remarks);

// Those of the table are asked only when it can be read.
void checkAngleList(const Reviewed &file, RuleRemarks &remarks);
void checkFirstAndLastPlane(const Reviewed &file, RuleRemarks &remarks);
void checkStopsAtHorizon(const Reviewed &file, RuleRemarks &remarks);
void checkTypeBList(const Reviewed &file, RuleRemarks &remarks);
void checkSpike(const Reviewed &file, RuleRemarks &remarks);
void checkCoarseSteps(const Reviewed &file, RuleRemarks &remarks);
void checkThousandsSign(const Reviewed &file, RuleRemarks &remarks);

}  // namespace penwright
