#include "review/ShownNumber.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "core/NumberText.h"

namespace penwright {
namespace {

/// The general form with "," between thousands; the exponent form stays as it is.
std::string grouped(std::string text)
{
    if (text.find('E') != std::string::npos)
        return text;
    const std::size_t begin = text.starts_with('-') ? 1 : 0;
    for (std::size_t at = std::min(text.find('.'), text.size()); at > begin + 3;)
        text.insert(at -= 3, ",");
    return text;
}

constexpr int kDigits = 3;

/// A number too large or too small to be rounded in itself, in the exponent form.
std::string exponentText(double number)
{
    std::array<char, 32> text;
    const auto end = std::to_chars(text.begin(), text.end(), number, std::chars_format::general, kDigits);
    std::string shown(text.begin(), end.ptr);
    if (const std::size_t sign = shown.find('e'); sign != std::string::npos)
        shown[sign] = 'E';
    return shown;
}

}  // namespace

std::string roundedText(double number)
{
    constexpr double kExponentFrom = 1e15;
    if (number == 0 || !std::isfinite(number))
        return generalText(number);
    if (std::fabs(number) >= kExponentFrom)
        return exponentText(number);
    const int exponent = static_cast<int>(std::floor(std::log10(std::fabs(number))));
    if (exponent >= kDigits - 1)
        return grouped(generalText(std::round(number)));
    const double scale = std::pow(10, kDigits - 1 - exponent);
    return std::isfinite(scale) ? generalText(std::round(number * scale) / scale) : exponentText(number);
}

std::string typedText(double number)
{
    if (!(std::fabs(number) <= double{std::numeric_limits<float>::max()}))
        return generalText(number);
    return grouped(generalText(static_cast<float>(number)));
}

}  // namespace penwright
