#include "hostlib/RecordBridge.h"

#include <limits>

#include "core/IesText.h"
#include "platform/RunTimeError.h"

namespace penwright {

namespace {

template <typename List>
std::int16_t countOf(const List &list)
{
    if (list.size() > std::size_t{std::numeric_limits<std::int16_t>::max()})
        throw overflow();
    return static_cast<std::int16_t>(list.size());
}

template <typename Value>
OneBased<Value> countedFromOne(const std::vector<Value> &list)
{
    OneBased<Value> result;
    for (const Value &value : list)
        result.append(value);
    return result;
}

/// The first `count` values of a list; error 9 when it has fewer.
template <typename Value>
std::vector<Value> firstOf(const OneBased<Value> &list, int count)
{
    std::vector<Value> result;
    for (int i = 1; i <= count; ++i)
        result.push_back(list(i));
    return result;
}

void setCandela(PhotometricRecord &to, const std::vector<double> &candela)
{
    to.Candela.reset(to.NumHorzAngles, to.NumVertAngles);
    if (candela.size() != static_cast<std::size_t>(to.NumHorzAngles) * static_cast<std::size_t>(to.NumVertAngles))
        throw subscriptOutOfRange();
    auto value = candela.begin();
    for (int h = 1; h <= to.NumHorzAngles; ++h)
        for (int v = 1; v <= to.NumVertAngles; ++v)
            to.Candela(h, v) = *value++;
}

void setTilt(PhotometricRecord &to, const HostRecord &record)
{
    to.TiltIncl = record.tiltIncluded;
    if (!record.tiltIncluded)
        return;
    if (record.tiltAngles.size() != record.tiltFactors.size())
        throw subscriptOutOfRange();
    to.LampToLuminaireGeometry = record.tiltGeometry;
    to.NumTiltAngles = countOf(record.tiltAngles);
    to.TiltAngles = countedFromOne(record.tiltAngles);
    to.TiltMultipliers = countedFromOne(record.tiltFactors);
}

}  // namespace

PhotometricRecord photometricRecord(const HostRecord &record)
{
    PhotometricRecord to;
    to.Filename = record.filename;
    to.Keywords = countedFromOne(record.keywords);
    setTilt(to, record);
    to.NumLamps = record.lamps;
    to.LumensPerLamp = record.lumensPerLamp;
    to.CandelaMultiplier = record.candelaMultiplier;
    to.PhotometricType = record.photometricType;
    to.UnitsType = record.units;
    to.Width = record.width;
    to.Length = record.length;
    to.Height = record.height;
    to.BallastFactor = record.ballastFactor;
    to.InputWatts = record.inputWatts;
    to.NumHorzAngles = countOf(record.horizontalAngles);
    to.HorAngles = countedFromOne(record.horizontalAngles);
    to.NumVertAngles = countOf(record.verticalAngles);
    to.VertAngles = countedFromOne(record.verticalAngles);
    setCandela(to, record.candela);
    to.OptionalData = record.optionalData;
    to.PictureFilename = record.pictureFilename;
    return to;
}

HostRecord hostRecord(const PhotometricRecord &record)
{
    HostRecord to;
    to.filename = record.Filename;
    to.keywords = firstOf(record.Keywords, record.Keywords.size());
    to.tiltIncluded = record.TiltIncl;
    if (record.TiltIncl) {
        to.tiltGeometry = record.LampToLuminaireGeometry;
        to.tiltAngles = firstOf(record.TiltAngles, record.NumTiltAngles);
        to.tiltFactors = firstOf(record.TiltMultipliers, record.NumTiltAngles);
    }
    to.lamps = record.NumLamps;
    to.lumensPerLamp = record.LumensPerLamp;
    to.candelaMultiplier = record.CandelaMultiplier;
    to.photometricType = record.PhotometricType;
    to.units = record.UnitsType;
    to.width = record.Width;
    to.length = record.Length;
    to.height = record.Height;
    to.ballastFactor = record.BallastFactor;
    to.inputWatts = record.InputWatts;
    to.horizontalAngles = firstOf(record.HorAngles, record.NumHorzAngles);
    to.verticalAngles = firstOf(record.VertAngles, record.NumVertAngles);
    for (int h = 1; h <= record.NumHorzAngles; ++h)
        for (int v = 1; v <= record.NumVertAngles; ++v)
            to.candela.push_back(record.Candela(h, v));
    to.optionalData = record.OptionalData;
    to.pictureFilename = record.PictureFilename;
    return to;
}

std::string iesText(const HostRecord &record)
{
    return iesFileText(photometricRecord(record));
}

}  // namespace penwright
