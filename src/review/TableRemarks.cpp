#include <algorithm>
#include <cmath>

#include "core/NumberText.h"
#include "review/RemarkRules.h"
#include "review/ShownNumber.h"

namespace penwright {
namespace {

double peakOf(const Reviewed &file)
{
    return file.photometry.largest ? file.photometry.largest->candela : 0;
}

void addTwins(RuleRemarks &remarks, RecordField field, const OneBased<float> &angles, int count, const char *list)
{
    for (int i = 2; i <= count; ++i)
        if (angles(i) == angles(i - 1))
            remarks.add({field, i}, [&] { return list + generalText(angles(i)) + " twice."; });
}

/// Tells of the largest value at a vertical angle of 90 with which a list begins or ends.
void addStop(const Reviewed &file, RuleRemarks &remarks, int v)
{
    const PhotometricRecord &record = file.record;
    int largest = 1;
    for (int h = 2; h <= record.NumHorzAngles; ++h)
        if (record.Candela(h, v) > record.Candela(largest, v))
            largest = h;
    const double value = record.Candela(largest, v);
    if (value > 0.02 * peakOf(file))
        remarks.add({RecordField::Candela, largest, v}, [&] {
            return "Light stops abruptly at 90 degrees, with " + typedText(value) + " at H " +
                   generalText(record.HorAngles(largest)) + ": is the other half missing?";
        });
}

/// Tells of a column that is one direction and holds more than one value.
void addPole(const Reviewed &file, RuleRemarks &remarks, int h)
{
    const auto column = file.record.Candela.row(h).first(static_cast<std::size_t>(file.record.NumVertAngles));
    const auto odd = std::find_if(column.begin(), column.end(), [&](double value) { return value != column.front(); });
    if (odd == column.end())
        return;
    const int v = static_cast<int>(odd - column.begin()) + 1;
    remarks.add({RecordField::Candela, h, v}, [&] {
        return "Column " + generalText(file.record.HorAngles(h)) + " must hold one value; it holds " +
               typedText(column.front()) + " and " + typedText(*odd) + ".";
    });
}

}  // namespace

void checkAngleList(const Reviewed &file, RuleRemarks &remarks)
{
    const PhotometricRecord &record = file.record;
    if (record.PhotometricType == kTypeC && record.HorAngles(1) == 90)
        remarks.add({RecordField::HorAngles, 1},
                    [] { return std::string("The horizontal list should begin at 0 and rise: it begins at 90."); });
    addTwins(remarks, RecordField::VertAngles, record.VertAngles, record.NumVertAngles,
             "The vertical list should rise: it has ");
    addTwins(remarks, RecordField::HorAngles, record.HorAngles, record.NumHorzAngles,
             "The horizontal list should rise: it has ");
}

void checkFirstAndLastPlane(const Reviewed &file, RuleRemarks &remarks)
{
    const PhotometricRecord &record = file.record;
    const int last = record.NumHorzAngles;
    if (record.PhotometricType != kTypeC || record.HorAngles(1) != 0 || record.HorAngles(last) != 360)
        return;
    for (int v = 1; v <= record.NumVertAngles; ++v) {
        const double first = record.Candela(1, v);
        const double again = record.Candela(last, v);
        if (std::fabs(first - again) > 0.005 * peakOf(file))
            remarks.add({RecordField::Candela, last, v}, [&] {
                return "Columns 0 and 360 differ at V " + generalText(record.VertAngles(v)) + ": " + typedText(first) +
                       " and " + typedText(again) + ".";
            });
    }
}

void checkStopsAtHorizon(const Reviewed &file, RuleRemarks &remarks)
{
    const PhotometricRecord &record = file.record;
    if (record.PhotometricType != kTypeC)
        return;
    if (record.VertAngles(1) == 90)
        addStop(file, remarks, 1);
    else if (record.VertAngles(record.NumVertAngles) == 90)
        addStop(file, remarks, record.NumVertAngles);
}

void checkTypeBList(const Reviewed &file, RuleRemarks &remarks)
{
    const PhotometricRecord &record = file.record;
    if (record.PhotometricType != kTypeB)
        return;
    if (record.VertAngles(1) == 0)
        remarks.add({RecordField::VertAngles, 1},
                    [] { return std::string("The vertical list begins at 0: give -90 to 90."); });
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        if (std::fabs(record.HorAngles(h)) == 90)
            addPole(file, remarks, h);
}

void checkCoarseSteps(const Reviewed &file, RuleRemarks &remarks)
{
    for (const BeamWidth &width : file.photometry.planes) {
        if (width.largestAt == 0 || !width.beam.isKnown() || !(width.beam.value() < 2 * width.step))
            continue;
        remarks.add({RecordField::VertAngles, width.largestAt}, [&] {
            return "The beam is " + roundedText(width.beam.value()) + " degrees wide, the table has steps of " +
                   roundedText(width.step) + ": measure finer there.";
        });
        return;
    }
}

}  // namespace penwright
