#include "pages/luminaire/TiltFields.h"

#include "core/NumberText.h"
#include "pages/luminaire/TiltTable.h"
#include "wizard/FieldCheck.h"

namespace penwright {
namespace {

constexpr std::string_view kCountCaption = "Number of Tilt Angles";

FaultPlace angleCell(int row)
{
    return {.field = kTiltGridField, .row = row, .column = TiltTable::kAngle};
}

void checkEnds(const OneBased<float> &angles, int count, WarningList &dlgWarn)
{
    dlgWarn.lookAt(angleCell(1));
    if (angles(1) != 0)
        dlgWarn.Add("Tilt Angles must start at 0");
    dlgWarn.lookAt(angleCell(count));
    if (angles(count) != 90 && angles(count) != 180)
        dlgWarn.Add("Tilt Angles must end at 90 or 180");
}

void checkOrder(const OneBased<float> &angles, int count, WarningList &dlgWarn)
{
    for (int i = 1; i < count; ++i) {
        dlgWarn.lookAt(angleCell(i + 1));
        if (angles(i) >= angles(i + 1))
            dlgWarn.Add("Angles must be in ascending order, #" + std::to_string(i) + " greater than #" +
                        std::to_string(i + 1));
    }
}

}  // namespace

void checkTiltFields(const TiltFields &fields, WarningList &dlgWarn)
{
    dlgWarn.lookAt({.field = kTiltCountField});
    gsbCheckField(dlgWarn, kCountCaption, fields.count, FieldCheckPositive + FieldCheckWhole);
    if (!dlgWarn.Clean())
        return;
    const int count = convertField(dlgWarn, kCountCaption, [&] { return toInt16(fields.count); });
    dlgWarn.lookAt({.field = kTiltGeometryField});
    if (!fields.selection)
        dlgWarn.Add("Please select a lamp to luminaire geometry.");
    checkEnds(fields.angles, count, dlgWarn);
    checkOrder(fields.angles, count, dlgWarn);
}

void storeTiltFields(const TiltFields &fields, PhotometricRecord &record)
{
    const std::int16_t count = toInt16(fields.count);
    OneBased<float> angles(count);
    OneBased<float> factors(count);
    for (int i = 1; i <= count; ++i) {
        angles(i) = fields.angles(i);
        factors(i) = fields.factors(i);
    }
    record.TiltIncl = true;
    record.LampToLuminaireGeometry = static_cast<std::int16_t>(fields.selection.value() + 1);
    record.NumTiltAngles = count;
    record.TiltAngles = std::move(angles);
    record.TiltMultipliers = std::move(factors);
}

}  // namespace penwright
