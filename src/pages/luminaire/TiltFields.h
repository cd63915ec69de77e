#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/OneBased.h"
#include "core/PhotometricRecord.h"
#include "wizard/WarningList.h"

namespace penwright {

/// The fields of the tilt page, as the places of its faults name them.
enum TiltField : int { kTiltCountField, kTiltGeometryField, kTiltGridField };

/// What stands on the tilt page when Next is pressed.
struct TiltFields {
    std::string count;                      ///< the text of `lmpTxtNumAngles`
    std::optional<std::int16_t> selection;  ///< index of the selected `l2lg` button
    const OneBased<float> &angles;
    const OneBased<float> &factors;
};

/// Adds a line for each fault of the page. A faulty count hides all others. Equal neighbours among the angles are
/// refused, unlike on the page of the photometric distribution; the factors are not looked at. Raises error 6 when a
/// 16-bit integer cannot hold the count, and error 9 when it exceeds the angles.
void checkTiltFields(const TiltFields &fields, WarningList &dlgWarn);

/// Stores checked fields in the record.
void storeTiltFields(const TiltFields &fields, PhotometricRecord &record);

}  // namespace penwright
