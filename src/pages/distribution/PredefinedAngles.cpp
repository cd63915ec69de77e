#include "pages/distribution/PredefinedAngles.h"

#include <array>

#include "core/PhotometricRecord.h"

namespace penwright {
namespace {

constexpr std::array<std::string_view, 6> kTypeBAngles{
    "10, 0 to 90, 10 degree increments",   "19, 0 to 90, 5 degree increments",   "37, 0 to 90, 2.5 degree increments",
    "19, -90 to 90, 10 degree increments", "37, -90 to 90, 5 degree increments", "73, -90 to 90, 2.5 degree increments",
};

constexpr std::array<std::string_view, 9> kTypeCVerticalAngles{
    "10, Downlight 0 to 90, 10 degree increments",       "19, Downlight 0 to 90, 5 degree increments",
    "37, Downlight 0 to 90, 2.5 degree increments",      "19, Direct-Indirect 0 to 180, 10 degree increments",
    "37, Direct-Indirect 0 to 180, 5 degree increments", "73, Direct-Indirect 0 to 180, 2.5 degree increments",
    "10, Indirect 90 to 180, 10 degree increments",      "19, Indirect 90 to 180, 5 degree increments",
    "37, Indirect 90 to 180, 2.5 degree increments",
};

constexpr std::array<std::string_view, 12> kTypeCHorizontalAngles{
    "01, Laterally Symmetric, No increment",
    "05, Quad Symmetric 0 to 90, 22.5 degree increment",
    "10, Quad Symmetric 0 to 90, 10 degree increment",
    "19, Quad Symmetric 0 to 90, 5 degree increments",
    "37, Quad Symmetric 0 to 90, 2.5 degree increments",
    "09, Bilateral Symmetry 0 to 180, 22.5 degree increments",
    "19, Bilateral Symmetry 0 to 180, 10 degree increments",
    "37, Bilateral Symmetry 0 to 180, 5 degree increments",
    "73, Bilateral Symmetry 0 to 180, 2.5 degree increments",
    "17, Asymmetric distribution 0 to 360, 22.5 degree increments",
    "37, Asymmetric distribution 0 to 360, 10 degree increments",
    "73, Asymmetric distribution 0 to 360, 5 degree increments",
};

}  // namespace

std::span<const std::string_view> predefinedAngles(std::int16_t photometricType, AngleAxis axis)
{
    if (photometricType == kTypeB)
        return kTypeBAngles;
    if (axis == AngleAxis::Vertical)
        return kTypeCVerticalAngles;
    return kTypeCHorizontalAngles;
}

}  // namespace penwright
