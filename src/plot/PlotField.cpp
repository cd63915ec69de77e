#include "plot/PlotField.h"

#include <algorithm>
#include <cmath>

#include "core/NumberText.h"

namespace penwright {

namespace {

constexpr double kFieldGap = 3;  // pixels, as all lengths here
constexpr double kMargin = 6;
constexpr double kAside = 7;  // of figures and letters beside the grid, where a mark may stand in its corner
constexpr double kLeastLetteredWidth = 90;
constexpr double kLeastLetteredHeight = 60;
constexpr const char *kWidestAngle = "360\u00B0";

std::string angleFigure(double degrees)
{
    return generalText(toSingle(degrees)) + "\u00B0";
}

/// Sides of whole pixels, from the middle of one to the middle of another.
PlotBox sharp(double left, double top, double right, double bottom)
{
    const PlotBox box{std::floor(left) + 0.5, std::floor(top) + 0.5, 0, 0};
    return {box.left, box.top, std::max(0.0, std::floor(right - box.left)),
            std::max(0.0, std::floor(bottom - box.top))};
}

double widestCandela(const std::vector<PlotRing> &rings, const PlotTextRoom &room)
{
    double widest = room.figureWidth("0");
    for (const PlotRing &ring : rings)
        widest = std::max(widest, room.figureWidth(ring.text));
    return widest;
}

void appendAngles(std::vector<PlotFigure> &figures, const PlotField &field, const PlotAxis &axis,
                  const PlotTextRoom &room, double top, double (*shown)(double))
{
    double free = -1e9;
    for (const double degrees : figuredAngles(axis)) {
        const std::string text = angleFigure(shown(degrees));
        const double width = room.figureWidth(text);
        const double left = field.across(axis, degrees) - width / 2;
        if (left < free)
            continue;
        figures.push_back({text, {left, top, width, room.figureHeight}});
        free = left + width + 2 * kFieldGap;
    }
}

/// From the upper edge down, and 0 at the lower one.
std::vector<PlotFigure> candelasBeside(const PlotField &field, const PlotTextRoom &room,
                                       const std::vector<PlotRing> &rings)
{
    std::vector<PlotFigure> figures;
    double free = field.box.top - room.figureHeight;
    const double bottom = field.box.top + field.box.height;
    const auto append = [&](const std::string &text, double candela) {
        const double middle = bottom - candela * field.perCandela;
        const double top = middle - room.figureHeight / 2;
        if (top < free)
            return;
        const double width = room.figureWidth(text);
        figures.push_back({text, {field.box.left - kAside - width, top, width, room.figureHeight}});
        free = top + room.figureHeight + kFieldGap;
    };
    for (auto ring = rings.rbegin(); ring != rings.rend(); ++ring)
        append(ring->text, ring->candela);
    append("0", 0);
    return figures;
}

/// Each direction of horizontal angle 0, at the upper edge.
std::vector<PlotMark> marksAbove(const PlotField &field)
{
    constexpr double kLength = 8;
    constexpr double kHalfWidth = 4;
    std::vector<PlotMark> marks;
    const double first = std::ceil(field.cone.first / 360);
    for (int i = 0; i < 2 && (first + i) * 360 <= field.cone.last; ++i) {
        const double x = field.across(field.cone, (first + i) * 360);
        const double base = field.box.top + kLength;
        marks.push_back({{x, field.box.top}, {x - kHalfWidth, base}, {x + kHalfWidth, base}});
    }
    return marks;
}

bool hasCone(const PlotCurves &curves)
{
    return curves.typeC && !curves.hasTwoPlanes;
}

double fromZero(double degrees)
{
    return std::abs(degrees);
}

double asListed(double degrees)
{
    return degrees;
}

}  // namespace

double PlotField::across(const PlotAxis &axis, double degrees) const
{
    return box.left + (degrees - axis.first) / (axis.last - axis.first) * box.width;
}

PlotScale PlotField::scale(const PlotAxis &axis) const
{
    return {{across(axis, 0), box.top + box.height}, box.width / (axis.last - axis.first), perCandela};
}

PlotField plotField(const PlotBox &area, const PlotTextRoom &room, const PlotPicture &picture)
{
    PlotField field;
    field.plane = planeAxis(picture.curves);
    field.cone = coneAxis(picture.curves);
    field.lettered = area.width >= kLeastLetteredWidth && area.height >= kLeastLetteredHeight;
    const double right = area.left + area.width;
    const double bottom = area.top + area.height;
    if (field.lettered) {
        const double letters = std::max(room.letterSize("H").width, room.letterSize("V").width);
        const double beside = std::max(room.figureWidth(kWidestAngle) / 2, letters + kAside) + kFieldGap;
        const double line = room.figureHeight + kAside + kFieldGap;
        const double before = std::max(widestCandela(picture.rings, room) + kAside, room.figureWidth(kWidestAngle) / 2);
        const double above = hasCone(picture.curves) ? line : room.figureHeight / 2 + kMargin;
        field.box = sharp(area.left + before + kMargin, area.top + above, right - beside, bottom - line);
    } else {
        field.box = sharp(area.left + kFieldGap, area.top + kFieldGap, right - kFieldGap, bottom - kFieldGap);
    }
    if (picture.curves.largest() > 0)
        field.perCandela = field.box.height / picture.curves.largest();
    return field;
}

PlotLettering fieldLettering(const PlotField &field, const PlotTextRoom &room, const PlotPicture &picture)
{
    PlotLettering lettering;
    if (hasCone(picture.curves))
        lettering.marks = marksAbove(field);
    if (!field.lettered)
        return lettering;
    const double bottom = field.box.top + field.box.height;
    const double right = field.box.left + field.box.width + kAside;
    const bool typeC = picture.curves.typeC;
    appendAngles(lettering.degrees, field, field.plane, room, bottom + kAside, typeC ? fromZero : asListed);
    if (typeC || !picture.curves.hasTwoPlanes)
        lettering.letters.push_back({"V", {right, bottom}});
    if (hasCone(picture.curves)) {
        const double top = field.box.top - kAside - room.figureHeight;
        appendAngles(lettering.degrees, field, field.cone, room, top, horizontalAngle);
        lettering.letters.push_back({"H", {right, field.box.top + room.letterSize("H").height}});
    }
    lettering.candelas = candelasBeside(field, room, picture.rings);
    return lettering;
}

PlotScales plotScales(const PlotBox &area, const PlotTextRoom &room, const PlotPicture &picture)
{
    if (picture.curves.shape == PlotShape::Linear) {
        const PlotField field = plotField(area, room, picture);
        return {field.scale(field.plane), field.scale(field.cone)};
    }
    const PlotScale scale = plotFrame(area, room, picture.curves.largest()).scale();
    return {scale, scale};
}

}  // namespace penwright
