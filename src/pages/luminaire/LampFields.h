#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/PhotometricRecord.h"
#include "review/RecordPlace.h"
#include "wizard/WarningList.h"

namespace penwright {

/// The text boxes of the lamp page in the order of their checks, and a box to tick; the places of its faults name them.
enum LampField : int {
    kNumLampsField,
    kLumensField,
    kMultiplierField,
    kBallastField,
    kWattsField,
    kWidthField,
    kLengthField,
    kHeightField,
    kLampFieldCount,
    kIncludeTiltField = kLampFieldCount  ///< no text box: the box that includes tilt
};

/// Where a field of the record is typed on the lamp page; nothing when it is typed elsewhere.
std::optional<LampField> lampFieldOf(RecordField field);

/// What stands on the lamp page when Next is pressed.
struct LampFields {
    std::array<std::string, kLampFieldCount> texts;  ///< by LampField
    int shape = -1;                                  ///< list position; outside the list none is chosen
    bool isFeet = true;
    bool isTiltIncluded = false;
};

/// Adds a line for each fault of the page; the dimensions are checked for every shape, those of disabled boxes too.
/// Raises error 6 under the field's caption when a 16-bit integer cannot hold the number of lamps.
void checkLampFields(const LampFields &fields, WarningList &dlgWarn);

/// Stores checked fields in the record; the shape settles the signs of the dimensions. A text that its type cannot hold
/// raises error 6 under the field's caption, and nothing is stored.
void storeLampFields(const LampFields &fields, WarningList &dlgWarn, PhotometricRecord &record);

}  // namespace penwright
