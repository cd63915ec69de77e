#pragma once

#include <string>

#include "core/PhotometricRecord.h"
#include "review/Measure.h"

namespace penwright {

/// Multiplier times ballast factor: what programs that read the file multiply every value by.
double candelaFactor(const PhotometricRecord &record);

/// The light that a record's table gives, in lumens, candela multiplier and ballast factor included.
struct TableLumens {
    Measure all;
    Measure below;  ///< type C: what goes below the horizontal
};

/// Integrates the table; what the lists do not hold gives no light. `angleFault` is the sentence why nothing lies
/// between the angles, "" when values do. Unknown too where the lists do not say what the directions between them hold:
/// horizontal angles of type C that do not begin at 0 or span none of 90, 180 and 360, a single one apart.
TableLumens tableLumens(const PhotometricRecord &record, const std::string &angleFault);

}  // namespace penwright
