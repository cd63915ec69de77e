#include "review/ShownNumber.h"

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

}  // namespace

std::string roundedText(double number)
{
    constexpr int kDigits = 3;
    if (number == 0 || !std::isfinite(number) || std::fabs(number) >= std::numeric_limits<float>::max())
        return generalText(number);
    const int exponent = static_cast<int>(std::floor(std::log10(std::fabs(number))));
    if (exponent >= kDigits - 1)
        return grouped(generalText(std::round(number)));
    const double scale = std::pow(10, kDigits - 1 - exponent);
    return generalText(std::isfinite(scale) ? std::round(number * scale) / scale : number);
}

std::string typedText(double number)
{
    if (!(std::fabs(number) <= double{std::numeric_limits<float>::max()}))
        return generalText(number);
    return grouped(generalText(static_cast<float>(number)));
}

}  // namespace penwright
