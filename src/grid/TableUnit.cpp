#include "grid/TableUnit.h"

#include <cmath>

#include "core/NumberText.h"

namespace penwright {
namespace {

constexpr double kLumensInKilolumen = 1000;
constexpr double kSame = 0.01;

}  // namespace

double TableUnit::factor(ValueUnit unit) const
{
    switch (unit) {
        case ValueUnit::PerKilolumen:
            return lumens / kLumensInKilolumen;
        case ValueUnit::Kilocandela:
            return 1000;
        case ValueUnit::Millicandela:
            return 0.001;
        default:
            return 1;
    }
}

bool TableUnit::isInMultiplier(ValueUnit unit) const
{
    const bool hasFactor = unit != ValueUnit::Other && (unit != ValueUnit::PerKilolumen || isKnown());
    return hasFactor && multiplier != 1 && std::fabs(multiplier - factor(unit)) < kSame * factor(unit);
}

std::string TableUnit::words(ValueUnit unit) const
{
    if (unit == ValueUnit::Other)
        return "The text names percent, lux or another unit than candela: choose what the values are.";
    const bool isOfLamps = unit == ValueUnit::Candela || unit == ValueUnit::PerKilolumen;
    if (isOfLamps && !isKnown())
        return whyNone;
    const std::string lamps = "The lamps give " + generalText(lumens) + " lm";
    if (unit == ValueUnit::Candela)
        return lamps + ".";
    const std::string sentence =
        (isOfLamps ? lamps + ": the" : "The") + " values are multiplied by " + generalText(factor(unit)) + ".";
    return multiplier == 1 ? sentence : sentence + " Page 1 multiplies by " + generalText(multiplier) + " as well.";
}

}  // namespace penwright
