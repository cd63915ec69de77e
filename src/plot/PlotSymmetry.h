#pragma once

#include <optional>
#include <vector>

namespace penwright {

/// How the listed horizontal angles of a type C table stand for the full circle.
enum class PlotSymmetry {
    Rotational,  ///< one angle: every direction has its values
    Quadrants,   ///< 90 degrees listed: mirrored at both ends, four times around
    Mirrored,    ///< 180 degrees listed: mirrored at the plane through its ends
    AsGiven      ///< anything else: nothing is known outside the list
};

/// The full circle of a type C table whose horizontal angles run from `first` to `last` degrees. A list that starts at
/// 90 follows the same rule as one that starts at 0: 90 to 180 is one of four quadrants, 90 to 270 is mirrored at the
/// plane through 90 and 270, and 90 to 360 leaves the directions between 0 and 90 unknown.
class PlotCircle {
public:
    PlotCircle(float first, float last);

    PlotSymmetry symmetry() const { return m_symmetry; }

    /// The angle of the list that stands for a direction (degrees, any turn), not there where nothing is known.
    std::optional<float> listedAngle(double direction) const;

    /// One stretch of the circle that the list fills: its first angle comes at `start`, or its last one when backward.
    struct Stretch {
        float start;
        bool backward;
    };

    /// The stretches around the circle from the list's own one on; one for a single angle too.
    std::vector<Stretch> stretches() const;

private:
    float m_first;
    float m_last;
    PlotSymmetry m_symmetry;
};

}  // namespace penwright
