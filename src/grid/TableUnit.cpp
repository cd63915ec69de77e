#include "grid/TableUnit.h"

#include <cmath>

#include "core/NumberText.h"

namespace penwright {
namespace {

constexpr double kLumensInKilolumen = 1000;
constexpr double kSame = 0.01;

}  // namespace

double TableUnit::factor() const
{
    return lumens / kLumensInKilolumen;
}

bool TableUnit::isInMultiplier() const
{
    return isKnown() && multiplier != 1 && std::fabs(multiplier - factor()) < kSame * factor();
}

std::string TableUnit::words(bool isPerKilolumen) const
{
    if (!isKnown())
        return whyNone;
    std::string sentence = "The lamps give " + generalText(lumens) + " lm";
    if (!isPerKilolumen)
        return sentence + ".";
    sentence += ": the values are multiplied by " + generalText(factor()) + ".";
    return multiplier == 1 ? sentence : sentence + " Page 1 multiplies by " + generalText(multiplier) + " as well.";
}

}  // namespace penwright
