#include "wizard/FieldCheck.h"

#include "core/NumberText.h"

namespace penwright {
namespace {

class FieldCheck {
public:
    FieldCheck(WarningList &dlgWarn, std::string_view caption, std::string_view text)
        : m_dlgWarn(dlgWarn), m_caption(caption), m_text(text)
    {
    }

    void check(int kinds)
    {
        if (m_text.empty())
            return add(" is empty.");
        if (!isNumeric(m_text))
            return add(" is not a number.");
        if (kinds & FieldCheckPositive)
            checkPositive(kinds);
        if (kinds & FieldCheckWhole)
            checkWhole();
    }

private:
    void checkPositive(int kinds)
    {
        const float value = single();
        if (kinds & FieldCheckMinusOne) {
            // The exception is one text, not one value: "-1.0" and " -1" are refused, on purpose.
            if (m_text != "-1" && value <= 0)
                add(" must be positve or -1");
        } else if (value <= 0) {
            add(" must be greater than zero.");
        }
    }

    void checkWhole()
    {
        const int rounded = convertField(m_dlgWarn, m_caption, [this] { return toInt16(m_text); });
        if (single() != static_cast<float>(rounded))
            add(" must be a whole number (1, 2, 3...)");
    }

    float single() const
    {
        return convertField(m_dlgWarn, m_caption, [this] { return toSingle(m_text); });
    }

    void add(std::string_view fault) const { m_dlgWarn.Add(std::string(m_caption).append(fault)); }

    WarningList &m_dlgWarn;
    std::string_view m_caption;
    std::string_view m_text;
};

}  // namespace

void gsbCheckField(WarningList &dlgWarn, std::string_view caption, std::string_view text, int kinds)
{
    FieldCheck(dlgWarn, caption, text).check(kinds);
}

}  // namespace penwright
