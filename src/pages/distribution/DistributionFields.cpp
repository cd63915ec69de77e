#include "pages/distribution/DistributionFields.h"

#include <algorithm>
#include <span>

#include "wizard/FieldCheck.h"

namespace penwright {
namespace {

/// The angles that a list may start or end with, and what is said of any other.
struct EndRule {
    std::span<const double> allowed;
    std::string_view warning;
};

/// The rules of one axis under one photometric type.
struct AxisRules {
    int gridField;
    EndRule start;
    EndRule end;
    std::string_view cell;
    std::string_view order;
};

constexpr double kStartB[]{-90, 0};
constexpr double kEndB[]{90};
constexpr double kStartC[]{0, 90};
constexpr double kVerticalEndC[]{90, 180};
constexpr double kHorizontalEndC[]{0, 90, 180, 360};

constexpr AxisRules kVerticalB{kVerticalGridField,
                               {kStartB, "Vertical angles must start at -90 or 0"},
                               {kEndB, "Vertical angles must end at 90"},
                               "Vert: cell ",
                               "Vert: Angles not in ascending order, "};
constexpr AxisRules kVerticalC{kVerticalGridField,
                               {kStartC, "Vertical angles must start at 0 or 90"},
                               {kVerticalEndC, "Vertical angles must end at 90 or 180"},
                               "Vert: cell ",
                               "Vert: Angles not in ascending order, "};
constexpr AxisRules kHorizontalB{kHorizontalGridField,
                                 {kStartB, "Horizontal angles must start at -90 or 0"},
                                 {kEndB, "Horizontal angles must end at 90 "},  // the blank at the end is meant
                                 "Horz: cell ",
                                 "Horz: Angles not in ascending order, "};
constexpr AxisRules kHorizontalC{kHorizontalGridField,
                                 {kStartC, "Horizontal angles must start at 0 or 90"},
                                 {kHorizontalEndC, "Horizontal angles must end at 0, 90, 180 or 360"},
                                 "Horz: cell ",
                                 "Horz: Angles not in ascending order, "};

class AxisCheck {
public:
    AxisCheck(WarningList &dlgWarn, const AxisRules &rules, const AngleCells &cells)
        : m_dlgWarn(dlgWarn), m_rules(rules), m_cells(cells)
    {
    }

    void run()
    {
        checkEnd(1, m_rules.start);
        checkEnd(m_cells.size(), m_rules.end);
        if (!numberIn(m_cells(1)))
            addNotANumber(1);
        for (int i = 1; i < m_cells.size(); ++i)
            checkNeighbours(i);
    }

private:
    void checkEnd(int position, const EndRule &rule)
    {
        lookAt(position);
        const auto number = numberIn(m_cells(position));
        if (!number || std::find(rule.allowed.begin(), rule.allowed.end(), *number) == rule.allowed.end())
            m_dlgWarn.Add(rule.warning);
    }

    // A cell that is no number is told twice, the second time under the name of the cell behind it; that is meant.
    void checkNeighbours(int i)
    {
        if (!numberIn(m_cells(i)) || !numberIn(m_cells(i + 1)))
            return addNotANumber(i + 1);
        const float here = single(i);
        const float next = single(i + 1);
        if (next < here)
            m_dlgWarn.Add(std::string(m_rules.order) + std::to_string(i) + " > " + std::to_string(i + 1));
    }

    void addNotANumber(int position)
    {
        lookAt(position);
        m_dlgWarn.Add(std::string(m_rules.cell) + std::to_string(position) + " is empty or not a number");
    }

    float single(int position)
    {
        lookAt(position);
        // The message box names the cell as its warnings do: "Vert: cell 3: Overflow".
        return convertField(m_dlgWarn, std::string(m_rules.cell) + std::to_string(position),
                            [&] { return singleIn(m_cells(position)); });
    }

    void lookAt(int position) { m_dlgWarn.lookAt({.field = m_rules.gridField, .row = 1, .column = position - 1}); }

    WarningList &m_dlgWarn;
    const AxisRules &m_rules;
    const AngleCells &m_cells;
};

OneBased<float> singlesOf(const AngleCells &cells)
{
    OneBased<float> singles(cells.size());
    for (int i = 1; i <= cells.size(); ++i)
        singles(i) = singleIn(cells(i));
    return singles;
}

}  // namespace

std::optional<DistributionFields> fieldsOf(const PhotometricRecord &record)
{
    const auto isList = [](const OneBased<float> &angles, int count) {
        return count >= 1 && count <= angles.size() && count <= AngleList::kMostAngles;
    };
    if (!isList(record.VertAngles, record.NumVertAngles) || !isList(record.HorAngles, record.NumHorzAngles))
        return std::nullopt;
    return DistributionFields{record.PhotometricType == kTypeB ? kTypeB : kTypeC,
                              cellsOf(record.VertAngles, record.NumVertAngles),
                              cellsOf(record.HorAngles, record.NumHorzAngles)};
}

bool areSameDistribution(const DistributionFields &one, const DistributionFields &other)
{
    return one.photometricType == other.photometricType && areSameAngles(one.vertical, other.vertical) &&
           areSameAngles(one.horizontal, other.horizontal);
}

void checkDistribution(const DistributionFields &fields, WarningList &dlgWarn)
{
    if (!isAllocated(fields.vertical) || !isAllocated(fields.horizontal)) {
        dlgWarn.lookAt({.field = isAllocated(fields.vertical) ? kHorizontalListField : kVerticalListField});
        dlgWarn.Add("Vertical and Horizontal values needed before Next screen.\r\nAll fields not complete.");
        return;
    }
    const bool isTypeB = fields.photometricType == kTypeB;
    AxisCheck(dlgWarn, isTypeB ? kVerticalB : kVerticalC, fields.vertical).run();
    AxisCheck(dlgWarn, isTypeB ? kHorizontalB : kHorizontalC, fields.horizontal).run();
}

void storeDistribution(const DistributionFields &fields, PhotometricRecord &record)
{
    OneBased<float> vertical = singlesOf(fields.vertical);
    OneBased<float> horizontal = singlesOf(fields.horizontal);
    record.PhotometricType = fields.photometricType;
    record.NumVertAngles = static_cast<std::int16_t>(vertical.size());
    record.VertAngles = std::move(vertical);
    record.NumHorzAngles = static_cast<std::int16_t>(horizontal.size());
    record.HorAngles = std::move(horizontal);
}

}  // namespace penwright
