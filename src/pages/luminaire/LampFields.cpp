#include "pages/luminaire/LampFields.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "core/NumberText.h"
#include "pages/luminaire/LuminousShapes.h"
#include "wizard/FieldCheck.h"

namespace penwright {
namespace {

struct FieldRow {
    std::string_view caption;
    int kinds;
};

// The captions in messages differ from the labels of the page on purpose.
constexpr std::array<FieldRow, kLampFieldCount> kFields{{
    {"Number of Lamps", FieldCheckPositive + FieldCheckWhole},
    {"Lumens per Lamp", FieldCheckPositive + FieldCheckMinusOne},
    {"Candela Multiplier", FieldCheckPositive},
    {"Ballast Factor", FieldCheckPositive},
    {"Watts", FieldCheckPositive},
    {"Width", 0},
    {"Length", 0},
    {"Height", 0},
}};

struct PlaceRow {
    RecordField recordField;
    LampField lampField;
};

constexpr PlaceRow kPlaces[]{
    {RecordField::NumLamps, kNumLampsField},
    {RecordField::LumensPerLamp, kLumensField},
    {RecordField::CandelaMultiplier, kMultiplierField},
    {RecordField::BallastFactor, kBallastField},
    {RecordField::InputWatts, kWattsField},
    {RecordField::Width, kWidthField},
    {RecordField::Length, kLengthField},
    {RecordField::Height, kHeightField},
    {RecordField::TiltIncl, kIncludeTiltField},
};

template <typename Number>
Number convert(const LampFields &fields, LampField field, Number (*toNumber)(std::string_view), WarningList &dlgWarn)
{
    dlgWarn.lookAt({.field = field});
    return convertField(dlgWarn, kFields[field].caption, [&] { return toNumber(fields.texts[field]); });
}

}  // namespace

std::optional<LampField> lampFieldOf(RecordField field)
{
    const auto row = std::find_if(std::begin(kPlaces), std::end(kPlaces),
                                  [field](const PlaceRow &place) { return place.recordField == field; });
    return row == std::end(kPlaces) ? std::nullopt : std::optional(row->lampField);
}

void checkLampFields(const LampFields &fields, WarningList &dlgWarn)
{
    for (std::size_t field = 0; field < kFields.size(); ++field) {
        dlgWarn.lookAt({.field = static_cast<int>(field)});
        gsbCheckField(dlgWarn, kFields[field].caption, fields.texts[field], kFields[field].kinds);
    }
}

void storeLampFields(const LampFields &fields, WarningList &dlgWarn, PhotometricRecord &record)
{
    const auto single = [&](LampField field) { return convert<float>(fields, field, toSingle, dlgWarn); };
    const std::int16_t numLamps = convert<std::int16_t>(fields, kNumLampsField, toInt16, dlgWarn);
    const float lumens = single(kLumensField);
    const float multiplier = single(kMultiplierField);
    const float ballast = single(kBallastField);
    const float watts = single(kWattsField);
    const Dimensions typed{single(kWidthField), single(kLengthField), single(kHeightField)};
    const Dimensions dimensions = storedDimensions(fields.shape, typed);

    record.NumLamps = numLamps;
    record.LumensPerLamp = lumens;
    record.CandelaMultiplier = multiplier;
    record.BallastFactor = ballast;
    record.InputWatts = watts;
    record.Width = dimensions.width;
    record.Length = dimensions.length;
    record.Height = dimensions.height;
    record.UnitsType = fields.isFeet ? kFeet : kMeters;
    record.TiltIncl = fields.isTiltIncluded;
}

}  // namespace penwright
