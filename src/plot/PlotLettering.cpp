#include "plot/PlotLettering.h"

#include <algorithm>
#include <cmath>

namespace penwright {

namespace {

constexpr double kGap = 3;            // pixels between a text and its line
constexpr double kLeastFigured = 70;  // radius for a figure at every spoke, not only at the axes

constexpr const char *kMarkText = "H 0";

std::string degreeText(int degrees)
{
    return std::to_string(degrees) + "\u00B0";
}

/// The vertical angle in a direction: for type C from nadir up on both sides; the others know the right half only.
bool hasVerticalAngle(bool typeC, int direction)
{
    return typeC || direction <= 90 || direction >= 270;
}
int verticalAngle(bool typeC, int direction)
{
    if (!typeC)
        return direction <= 90 ? direction : direction - 360;
    const int fromNadir = (direction + 90) % 360;
    return fromNadir <= 180 ? fromNadir : 360 - fromNadir;
}

std::vector<PlotFigure> degreesAround(const PlotFrame &frame, const PlotTextRoom &room, bool typeC)
{
    std::vector<PlotFigure> figures;
    const int step = frame.radius < kLeastFigured ? 90 : kPlotSpoke;
    for (int direction = 0; direction < 360; direction += step) {
        if (!hasVerticalAngle(typeC, direction))
            continue;
        const std::string text = degreeText(verticalAngle(typeC, direction));
        const double width = room.figureWidth(text);
        const double height = room.figureHeight;
        const PlotPixel one = frame.polar(1, direction);
        const PlotPixel end = frame.polar(frame.radius + kGap, direction);
        const PlotPixel middle{end.x + (one.x - frame.centre.x) * width / 2,
                               end.y + (one.y - frame.centre.y) * height / 2};
        figures.push_back({text, {middle.x - width / 2, middle.y - height / 2, width, height}});
    }
    return figures;
}

/// How far below the outer ring's top a text of that width beside the vertical axis stays inside the ring.
double clearance(const PlotFrame &frame, double width)
{
    const double across = std::min(width + 2 * kGap, frame.radius);
    return frame.radius - std::sqrt(frame.radius * frame.radius - across * across);
}

/// The figures hang inside their rings beside the upper half of the vertical axis; left of it unless type C, because
/// all curves are on the right then. From the outside in.
std::vector<PlotFigure> candelasOf(const PlotFrame &frame, const PlotTextRoom &room, bool typeC,
                                   const std::vector<PlotRing> &rings)
{
    std::vector<PlotFigure> figures;
    const double height = room.figureHeight + 2;
    double free = frame.centre.y - frame.radius;
    for (auto ring = rings.rbegin(); ring != rings.rend(); ++ring) {
        const double width = room.figureWidth(ring->text);
        const double radius = frame.radius * (ring->candela / rings.back().candela);
        const double below = ring == rings.rbegin() ? std::max(kGap, clearance(frame, width)) : kGap;
        const double top = frame.centre.y - radius + below;
        if (top < free || top + height > frame.centre.y)
            continue;
        free = top + height + kGap;
        const double left = typeC ? frame.centre.x + kGap : frame.centre.x - kGap - width;
        figures.push_back({ring->text, {left, top, width, height}});
    }
    return figures;
}

/// The letters stand beside the degree figures at the ends of their axes.
std::vector<PlotLetter> lettersAround(const PlotFrame &frame, const PlotTextRoom &room, bool hasCone)
{
    const double aside = room.figureWidth(degreeText(180)) / 2 + 2 * kGap;
    const double above = room.figureHeight / 2 + 2 * kGap;
    std::vector<PlotLetter> letters{{"V", {frame.centre.x + aside, frame.centre.y + (-frame.radius - kGap)}},
                                    {"H", {frame.centre.x + (frame.radius + kGap), frame.centre.y - above}}};
    if (hasCone) {
        const double below = above + room.letterSize(kMarkText).height;
        letters.push_back({kMarkText, {frame.centre.x + (frame.radius + kGap), frame.centre.y + below}});
    }
    return letters;
}

std::vector<PlotLetter> lettersInside(const PlotFrame &frame, const PlotTextRoom &room)
{
    const auto [width, height] = room.letterSize("H");
    return {{"V", {frame.centre.x + kGap, frame.centre.y + (height + kGap - frame.radius)}},
            {"H", {frame.centre.x + (frame.radius - width - kGap), frame.centre.y - kGap}}};
}

/// The direction in which the cone has horizontal angle 0.
PlotMark markAtTheRight(const PlotFrame &frame)
{
    constexpr double kLength = 8;
    constexpr double kHalfWidth = 4;
    const double base = frame.centre.x + frame.radius - kLength;
    return {frame.polar(frame.radius, 0), {base, frame.centre.y - kHalfWidth}, {base, frame.centre.y + kHalfWidth}};
}

}  // namespace

PlotLettering plotLettering(const PlotFrame &frame, const PlotTextRoom &room, bool typeC,
                            const std::vector<PlotRing> &rings, bool hasTwoPlanes)
{
    const bool hasCone = typeC && !hasTwoPlanes;
    PlotLettering lettering;
    if (hasCone)
        lettering.marks.push_back(markAtTheRight(frame));
    if (!frame.lettered) {
        lettering.letters = lettersInside(frame, room);
        return lettering;
    }
    lettering.degrees = degreesAround(frame, room, typeC);
    lettering.candelas = candelasOf(frame, room, typeC, rings);
    lettering.letters = lettersAround(frame, room, hasCone);
    return lettering;
}

}  // namespace penwright
