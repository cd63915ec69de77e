#include <algorithm>
#include <array>
#include <cmath>

#include "review/RemarkRules.h"
#include "review/ShownNumber.h"
#include "review/Units.h"

namespace penwright {
namespace {

constexpr double kLargestExtent = 5;  // meters

struct Extent {
    RecordField field;
    const char *name;
    float value;
};

std::array<Extent, 3> extentsOf(const PhotometricRecord &record)
{
    return {{{RecordField::Width, "Width ", record.Width},
             {RecordField::Length, "Length ", record.Length},
             {RecordField::Height, "Height ", record.Height}}};
}

char signOf(float extent)
{
    return extent > 0 ? '+' : extent < 0 ? '-' : '0';
}

bool isFeet(const PhotometricRecord &record)
{
    return record.UnitsType == kFeet;
}

std::string extentText(const PhotometricRecord &record, float extent)
{
    return typedText(std::fabs(double{extent})) + (isFeet(record) ? " ft" : " m");
}

}  // namespace

void checkRefusedShape(const Reviewed &file, RuleRemarks &remarks)
{
    std::string signs;
    std::string numbers;
    for (const Extent &extent : extentsOf(file.record)) {
        signs += signOf(extent.value);
        numbers += (numbers.empty() ? "" : " x ") + typedText(double{extent.value});
    }
    const auto takesSigns = [&signs](const FormatRules &format) {
        return std::find(format.shapes.begin(), format.shapes.end(), signs) != format.shapes.end();
    };
    if (takesSigns(file.format))
        return;
    remarks.add({RecordField::Width}, [&] {
        return "Some programs refuse the dimensions " + numbers +
               (takesSigns(formatRules("IESNA:LM-63-2002")) ? ": use the 2002 version, another shape or a rectangle."
                                                            : ": use another shape or a rectangle.");
    });
}

void checkTurnedTable(const Reviewed &file, RuleRemarks &remarks)
{
    const PhotometricRecord &record = file.record;
    if (record.PhotometricType != kTypeC || record.NumHorzAngles < 2 || record.Length == 0)
        return;
    if (std::fabs(record.Width) > 1.5F * std::fabs(record.Length))
        remarks.add({RecordField::Width}, [&] {
            return "The long side, " + extentText(record, record.Width) +
                   ", lies along 90: is this table turned by 90 degrees?";
        });
}

void checkOddDimensions(const Reviewed &file, RuleRemarks &remarks)
{
    const PhotometricRecord &record = file.record;
    const double most = isFeet(record) ? kLargestExtent / kMetersPerFoot : kLargestExtent;
    const auto extents = extentsOf(record);
    for (const Extent &extent : extents)
        if (std::fabs(double{extent.value}) > most)
            remarks.add({extent.field}, [&] {
                return extent.name + extentText(record, extent.value) +
                       (isFeet(record) ? ": inches?" : ": millimeters?");
            });
    if (std::all_of(extents.begin(), extents.end(), [](const Extent &extent) { return extent.value == 0; }))
        remarks.add({RecordField::Width}, [] { return std::string("Without dimensions glare cannot be calculated."); });
}

}  // namespace penwright
