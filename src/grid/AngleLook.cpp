#include "grid/AngleLook.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace penwright {

bool areInRange(const std::vector<double> &numbers)
{
    return std::none_of(numbers.begin(), numbers.end(), [](double number) { return std::fabs(number) > 360; });
}

bool isMonotone(const std::vector<double> &numbers)
{
    const bool rises = std::adjacent_find(numbers.begin(), numbers.end(), std::greater_equal<>()) == numbers.end();
    const bool falls = std::adjacent_find(numbers.begin(), numbers.end(), std::less_equal<>()) == numbers.end();
    return !numbers.empty() && (rises || falls) && areInRange(numbers);
}

bool looksLikeAngles(const std::vector<double> &numbers)
{
    if (numbers.size() < 2 || !isMonotone(numbers))
        return false;
    std::vector<long> steps;
    for (std::size_t i = 1; i < numbers.size(); ++i)
        steps.push_back(std::lround(1000 * std::fabs(numbers[i] - numbers[i - 1])));
    const bool isFalling = numbers.front() > numbers.back();
    const long firstStep = isFalling ? steps.back() : steps.front();
    std::sort(steps.begin(), steps.end());
    const auto distinct = std::unique(steps.begin(), steps.end()) - steps.begin();
    if (isFalling && (distinct > 1 || steps.size() < 3 || numbers.front() > 180))
        return false;
    const double least = std::min(numbers.front(), numbers.back());
    const bool isHalfAStep = std::lround(2000 * least) == firstStep;
    static constexpr double kUsual[]{-180, -90, -85, -80, -75, -60, -45, -30, 0, 30, 45, 60, 90, 180, 270};
    const bool isUsual = std::find(std::begin(kUsual), std::end(kUsual), least) != std::end(kUsual);
    return (isUsual || isHalfAStep) && distinct <= 2 + static_cast<std::ptrdiff_t>(numbers.size()) / 4;
}

bool areEqual(const std::vector<double> &values)
{
    if (values.size() < 2)
        return false;
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    return *most > 0 && *most - *least <= 0.002 * *most;
}

}  // namespace penwright
