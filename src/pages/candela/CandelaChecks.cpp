#include "pages/candela/CandelaChecks.h"

#include <cmath>

#include "core/NumberText.h"
#include "wizard/FieldCheck.h"

namespace penwright {
namespace {

using Cells = OneBasedTable<CandelaCell>;

/// The cell as it is compared: single precision, nothing when it is blank.
std::optional<float> comparable(const CandelaCell &cell)
{
    const std::optional<double> number = numberOf(cell);
    return number ? std::optional(static_cast<float>(*number)) : std::nullopt;
}

OneBased<std::string> textsOf(const OneBased<float> &angles, int count)
{
    OneBased<std::string> texts;
    for (int i = 1; i <= count; ++i)
        texts.append(generalText(angles(i)));
    return texts;
}

class Check {
public:
    Check(const PhotometricRecord &record, const Cells &cells, WarningList &dlgWarn)
        : m_record(record),
          m_cells(cells),
          m_dlgWarn(dlgWarn),
          m_horizontal(textsOf(record.HorAngles, record.NumHorzAngles)),
          m_vertical(textsOf(record.VertAngles, record.NumVertAngles))
    {
    }

    void run()
    {
        for (int h = 1; h <= m_record.NumHorzAngles; ++h) {
            if (m_record.PhotometricType == kTypeC) {
                checkNadir(h);
                checkZenith(h);
            }
            for (int v = 1; v <= m_record.NumVertAngles; ++v)
                checkValue(h, v);
        }
    }

private:
    void checkNadir(int h)
    {
        if (comparable(m_cells(h, 1)) && disagree(h, 1))
            add(h, 1, "Nadir Candela do not agree  H:" + m_horizontal(h) + " not equal to H:" + m_horizontal(1));
    }

    void checkZenith(int h)
    {
        const int last = m_record.NumVertAngles;
        if (m_record.VertAngles(last) == 180 && disagree(h, last))
            add(h, last,
                "Zenith (Top) Candela do not agree.  H:" + m_horizontal(h) + " not equal to H:" + m_horizontal(1));
    }

    void checkValue(int h, int v)
    {
        const std::optional<double> number = numberOf(m_cells(h, v));
        if (!number) {
            add(h, v, cellText(h, v) + " is not a valid numeric value.");
            return;
        }
        const auto value = static_cast<float>(*number);
        if (!std::isfinite(value))
            raiseOverflow(h, v, *number);
        if (value < 0)
            add(h, v, cellText(h, v) + " is less than zero.");
    }

    void raiseOverflow(int h, int v, double number)
    {
        m_dlgWarn.lookAt({.row = v, .column = h});
        convertField(m_dlgWarn, cellText(h, v), [&] { return toSingle(number); });
    }

    bool disagree(int h, int v) const { return comparable(m_cells(h, v)) != comparable(m_cells(1, v)); }

    std::string cellText(int h, int v) const { return "value H:" + m_horizontal(h) + " V:" + m_vertical(v); }

    void add(int h, int v, const std::string &line)
    {
        m_dlgWarn.lookAt({.row = v, .column = h});
        m_dlgWarn.Add(line);
    }

    const PhotometricRecord &m_record;
    const Cells &m_cells;
    WarningList &m_dlgWarn;
    OneBased<std::string> m_horizontal;
    OneBased<std::string> m_vertical;
};

}  // namespace

void checkCandela(const PhotometricRecord &record, const OneBasedTable<CandelaCell> &cells, WarningList &dlgWarn)
{
    Check(record, cells, dlgWarn).run();
}

}  // namespace penwright
