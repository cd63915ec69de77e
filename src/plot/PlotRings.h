#pragma once

#include <string>
#include <vector>

namespace penwright {

/// One circle of the grid with its figure.
struct PlotRing {
    double candela = 0;
    std::string text;
};

/// The circles for a picture whose largest value is `largest` candela, from the inside out: two to five at round
/// steps (1, 2 or 5 times a power of ten) and the last one at the largest value itself. A round circle less than a
/// quarter of a step inside the last one is left out. The last one's figure is rounded to whole candela from 1,000 up,
/// to four digits below. None when nothing is above zero; error 6 beyond the single range.
std::vector<PlotRing> plotRings(double largest);

}  // namespace penwright
