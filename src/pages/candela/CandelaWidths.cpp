#include "pages/candela/CandelaWidths.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace penwright {

CandelaWidths::CandelaWidths(const QFontMetricsF &font)
{
    for (const char character : std::string_view(" +-.0123456789E"))
        m_advances.at(static_cast<std::size_t>(character)) = font.horizontalAdvance(QChar::fromLatin1(character));
    for (const char digit : std::string_view("0123456789"))
        m_digit = std::max(m_digit, m_advances.at(static_cast<std::size_t>(digit)));
}

double CandelaWidths::widened(double room, const CandelaCell &cell) const
{
    return most(cell) <= room ? room : std::max(room, of(textOf(cell)));
}

/// A bound for the width of a cell's text: all its digits, and a point where it has a fraction. There is none for what
/// may have an exponent or zeros behind the point.
double CandelaWidths::most(const CandelaCell &cell) const
{
    const double value = numberOf(cell).value_or(0);
    const bool isSingle = std::holds_alternative<float>(cell);
    const int digits = isSingle ? 7 : 15;
    const double size = std::abs(value);
    const double sign = value < 0 ? m_advances['-'] : 0;
    if (size == 0)
        return m_digit;
    if (size < 1 || size >= (isSingle ? 1e6 : 1e14))
        return std::numeric_limits<double>::infinity();
    if (size != std::trunc(size))
        return sign + digits * m_digit + m_advances['.'];
    int whole = 1;
    for (double rest = size; rest >= 10; rest /= 10)
        ++whole;
    return sign + whole * m_digit;
}

double CandelaWidths::of(std::string_view text) const
{
    double width = 0;
    for (const char character : text)
        width += m_advances.at(static_cast<std::size_t>(character));
    return width;
}

}  // namespace penwright
