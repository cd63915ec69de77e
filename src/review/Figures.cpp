#include "review/Figures.h"

#include <cmath>

#include "core/NumberText.h"
#include "plot/PlotSymmetry.h"
#include "review/ShownNumber.h"
#include "review/Units.h"

namespace penwright {
namespace {

Figure missing(std::string name, std::string reason)
{
    return {std::move(name), "-", "", std::move(reason)};
}

Figure measured(std::string name, const Measure &measure, std::string_view unit)
{
    if (!measure.isKnown())
        return missing(std::move(name), measure.reason());
    return {std::move(name), roundedText(measure.value()), unit, ""};
}

/// A share of a whole in percent.
Measure percentOf(const Measure &part, const Measure &whole, const char *reasonOfNothing)
{
    if (!part.isKnown() || !whole.isKnown())
        return part.isKnown() ? whole : part;
    return whole.value() > 0 ? Measure(100 * part.value() / whole.value()) : Measure::unknown(reasonOfNothing);
}

Figure lampFigure(const Photometry &photometry)
{
    const Measure lumens = photometry.isAbsolute
                               ? Measure::unknown("The values are absolute: the lamps have no lumens.")
                               : Measure(photometry.lampLumens);
    return measured("Lumens of the lamps", lumens, "lm");
}

Figure yieldFigure(const PhotometricRecord &record, const Photometry &photometry)
{
    const Measure &lumens = photometry.lumens.all;
    if (!photometry.isAbsolute)
        return measured("Efficiency", percentOf(lumens, Measure(photometry.lampLumens), "The lamps give no lumens."),
                        "%");
    if (!lumens.isKnown() || record.InputWatts > 0)
        return measured("Efficacy", lumens.isKnown() ? Measure(lumens.value() / double{record.InputWatts}) : lumens,
                        "lm/W");
    return missing("Efficacy", "The input watts are not above 0.");
}

void addLargest(std::vector<Figure> &figures, const PhotometricRecord &record, const Photometry &photometry)
{
    constexpr const char *kValue = "Largest value";
    constexpr const char *kDirection = "Direction of the largest value";
    if (!photometry.largest) {
        const std::string reason = photometry.fault.empty() ? "No value is above 0." : photometry.fault;
        figures.push_back(missing(kValue, reason));
        figures.push_back(missing(kDirection, reason));
        return;
    }
    const LargestValue &largest = *photometry.largest;
    figures.push_back(measured(kValue, Measure(largest.candela * candelaFactor(record)), "cd"));
    figures.push_back({kDirection,
                       "V " + generalText(record.VertAngles(largest.vertical)) + ", H " +
                           generalText(record.HorAngles(largest.horizontal)),
                       "degrees", ""});
}

void addBeams(std::vector<Figure> &figures, const Photometry &photometry)
{
    for (const BeamWidth &width : photometry.planes)
        figures.push_back(measured("Beam angle " + std::string(width.plane), width.beam, "degrees"));
    for (const BeamWidth &width : photometry.planes)
        figures.push_back(measured("Field angle " + std::string(width.plane), width.field, "degrees"));
}

void addShares(std::vector<Figure> &figures, const TableLumens &lumens)
{
    constexpr double kRest = 1e-9;  // that two sums over the same values may differ by
    const Measure down = percentOf(lumens.below, lumens.all, "The table gives no light.");
    const double rest = down.isKnown() ? 100 - down.value() : 0;
    const Measure up = Measure(std::fabs(rest) < kRest ? 0 : rest);
    figures.push_back(measured("Upward share", down.isKnown() ? up : down, "%"));
    figures.push_back(measured("Downward share", down, "%"));
}

std::string typeCSymmetry(float first, float last)
{
    const bool isAlongOrAcross = first == 0 || first == 90;
    switch (PlotCircle(first, last).symmetry()) {
        case PlotSymmetry::Rotational:
            return "the same in all planes";
        case PlotSymmetry::Quadrants:
            return isAlongOrAcross ? "four equal quadrants" : "";
        case PlotSymmetry::Mirrored:
            return first == 0        ? "two halves, mirrored at plane 0-180"
                   : isAlongOrAcross ? "two halves, mirrored at plane 90-270"
                                     : "";
        case PlotSymmetry::AsGiven:
            return first == 0 && last == 360 ? "none" : "";
    }
    return "";
}

std::string typeBSymmetry(bool isLeftRight, bool isUpDown)
{
    if (isLeftRight && isUpDown)
        return "left as right, up as down";
    if (isLeftRight)
        return "left as right";
    return isUpDown ? "up as down" : "none";
}

Figure symmetryFigure(const PhotometricRecord &record, const std::string &angleFault)
{
    constexpr const char *kName = "Symmetry";
    if (!angleFault.empty())
        return missing(kName, angleFault);
    const float first = record.HorAngles(1);
    const std::string words = record.PhotometricType == kTypeC
                                  ? typeCSymmetry(first, record.HorAngles(record.NumHorzAngles))
                                  : typeBSymmetry(first == 0, record.VertAngles(1) == 0);
    return words.empty() ? missing(kName, "These horizontal angles state no symmetry.") : Figure{kName, words, "", ""};
}

std::string extents(const PhotometricRecord &record, double scale)
{
    const auto text = [scale](float extent) { return roundedText(std::fabs(double{extent}) * scale); };
    return text(record.Width) + " x " + text(record.Length) + " x " + text(record.Height);
}

void addDimensions(std::vector<Figure> &figures, const PhotometricRecord &record)
{
    constexpr const char *kMetersName = "Width x length x height in meters";
    constexpr const char *kFeetName = "Width x length x height in feet";
    if (record.UnitsType != kFeet && record.UnitsType != kMeters) {
        for (const char *name : {kMetersName, kFeetName})
            figures.push_back(missing(name, "The record does not say whether it counts in feet or meters."));
        return;
    }
    const bool isFeet = record.UnitsType == kFeet;
    figures.push_back({kMetersName, extents(record, isFeet ? kMetersPerFoot : 1), "m", ""});
    figures.push_back({kFeetName, extents(record, isFeet ? 1 : 1 / kMetersPerFoot), "ft", ""});
}

}  // namespace

std::string valueWithUnit(const Figure &figure)
{
    return figure.unit.empty() ? figure.text : figure.text + " " + std::string(figure.unit);
}

std::vector<Figure> figuresOf(const PhotometricRecord &record, const Photometry &photometry)
{
    std::vector<Figure> figures;
    figures.push_back(measured("Lumens of the luminaire", photometry.lumens.all, "lm"));
    figures.push_back(lampFigure(photometry));
    figures.push_back(yieldFigure(record, photometry));
    addLargest(figures, record, photometry);
    addBeams(figures, photometry);
    addShares(figures, photometry.lumens);
    figures.push_back(symmetryFigure(record, photometry.angleFault));
    addDimensions(figures, record);
    return figures;
}

}  // namespace penwright
