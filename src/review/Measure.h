#pragma once

#include <cmath>
#include <string>
#include <utility>
#include <variant>

namespace penwright {

/// A number that a record gives, or the sentence that says why it gives none.
class Measure {
public:
    /// A number; one that is not finite is none.
    explicit Measure(double value)
    {
        if (std::isfinite(value))
            m_valueOrReason = value;
        else
            m_valueOrReason = std::string("The values are too large to add up.");
    }

    static Measure unknown(std::string reason)
    {
        Measure measure(0);
        measure.m_valueOrReason = std::move(reason);
        return measure;
    }

    bool isKnown() const { return std::holds_alternative<double>(m_valueOrReason); }

    /// The number; only of a known one.
    double value() const { return std::get<double>(m_valueOrReason); }

    /// The sentence, "" when the number is known.
    std::string reason() const { return isKnown() ? "" : std::get<std::string>(m_valueOrReason); }

    bool operator==(const Measure &) const = default;

private:
    std::variant<double, std::string> m_valueOrReason;
};

}  // namespace penwright
