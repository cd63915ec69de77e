#pragma once

namespace penwright {

/// What of a record a remark is about, by the record's own names. Which page and control that is, a window knows.
enum class RecordField {
    NumLamps,
    LumensPerLamp,
    CandelaMultiplier,
    BallastFactor,
    InputWatts,
    Width,
    Length,
    Height,
    TiltIncl,
    TiltMultipliers,
    Keywords,
    VertAngles,
    HorAngles,
    Candela,
};

/// One place in a record. Counted from 1; 0 is the field as a whole, as where a keyword line is missing.
struct RecordPlace {
    RecordField field = RecordField::NumLamps;
    int index = 0;     ///< in the field's list; of a candela value its horizontal angle's
    int vertical = 0;  ///< of a candela value its vertical angle's
    bool operator==(const RecordPlace &) const = default;
};

}  // namespace penwright
