#include "core/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "core/Ascii.h"
#include "core/Blanks.h"
#include "platform/RunTimeError.h"

namespace penwright {
namespace {

std::size_t digitsAt(std::string_view text, std::size_t place)
{
    std::size_t end = place;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    return end - place;
}

/// The length of the number that a text begins with, 0 when it begins with none.
std::size_t numberLength(std::string_view text)
{
    std::size_t place = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
    std::size_t digits = digitsAt(text, place);
    place += digits;
    if (place < text.size() && text[place] == '.') {
        const std::size_t decimals = digitsAt(text, place + 1);
        digits += decimals;
        place += 1 + decimals;
    }
    if (digits == 0)
        return 0;
    if (place < text.size() && (text[place] == 'e' || text[place] == 'E')) {
        std::size_t exponent = place + 1;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-'))
            ++exponent;
        if (const std::size_t length = digitsAt(text, exponent))
            place = exponent + length;
    }
    return place;
}

/// Whether a number that no double holds is too small for one, rather than too large.
bool isTooSmall(std::string_view number)
{
    const std::size_t mark = number.find_first_of("eE");
    const bool negativeExponent = mark != std::string_view::npos && mark + 1 < number.size() && number[mark + 1] == '-';
    if (mark != std::string_view::npos) {
        // The exponent outweighs the digits but for texts of absurd length, where the digits have the word.
        int exponent = 0;
        const char *begin = number.data() + mark + 1 + (number[mark + 1] == '-' || number[mark + 1] == '+' ? 1 : 0);
        const auto read = std::from_chars(begin, number.data() + number.size(), exponent);
        if (read.ec == std::errc::result_out_of_range)
            return negativeExponent;
        const std::string_view digits = number.substr(0, mark);
        const std::size_t point = std::min(digits.find('.'), digits.size());
        const std::size_t first = digits.find_first_of("123456789");
        const auto before = static_cast<long long>(point) - static_cast<long long>(first);
        return before + (negativeExponent ? -exponent : exponent) < 0;
    }
    return number.find_first_of("123456789") > number.find('.');
}

/// The value of a number by its text; nothing when it is too large for a double.
bool readNumber(std::string_view number, double &value)
{
    if (!number.empty() && number.front() == '+')
        number.remove_prefix(1);
    const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
    if (read.ec != std::errc::result_out_of_range)
        return std::isfinite(value);
    value = 0;
    return isTooSmall(number);
}

/// The value of a text that is one number with blanks around at most.
std::optional<double> wholeNumber(std::string_view text)
{
    const std::string_view number = withoutOuterBlanks(text);
    double value = 0;
    if (number.empty() || numberLength(number) != number.size() || !readNumber(number, value))
        return std::nullopt;
    return value;
}

template <typename Integer>
Integer rounded(double value)
{
    const double whole = std::nearbyint(value);  // halves to even, as the processor rounds
    if (!(whole >= std::numeric_limits<Integer>::min() && whole <= std::numeric_limits<Integer>::max()))
        throw overflow();
    return static_cast<Integer>(whole);
}

}  // namespace

bool isNumeric(std::string_view text)
{
    return wholeNumber(text).has_value();
}

double leadingNumber(std::string_view text)
{
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    const std::string_view number = text.substr(0, numberLength(text));
    double value = 0;
    if (!number.empty() && !readNumber(number, value))
        throw overflow();
    return value;
}

double toDouble(std::string_view text)
{
    const std::optional<double> value = wholeNumber(text);
    if (!value)
        throw typeMismatch();
    return *value;
}

bool fitsSingle(double value)
{
    return std::isfinite(static_cast<float>(value));
}

float toSingle(double value)
{
    if (!fitsSingle(value))
        throw overflow();
    return static_cast<float>(value);
}

float toSingle(std::string_view text)
{
    return toSingle(toDouble(text));
}

std::int16_t toInt16(double value)
{
    return rounded<std::int16_t>(value);
}

std::int16_t toInt16(std::string_view text)
{
    return toInt16(toDouble(text));
}

std::int32_t toInt32(double value)
{
    return rounded<std::int32_t>(value);
}

std::int32_t toInt32(std::string_view text)
{
    return toInt32(toDouble(text));
}

}  // namespace penwright
