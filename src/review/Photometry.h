#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/PhotometricRecord.h"
#include "review/Beam.h"
#include "review/Lumens.h"
#include "review/Measure.h"

namespace penwright {

/// The largest value of a table as it stands there, without multiplier and ballast factor, and the first cell that
/// holds it.
struct LargestValue {
    double candela = 0;
    int horizontal = 0;  ///< index of its horizontal angle, from 1
    int vertical = 0;
};

/// The numbers of a record that figures and remarks are made of.
struct Photometry {
    std::string fault;                    ///< why the table cannot be read, "" when it can
    std::string angleFault;               ///< why nothing lies between its angles: the fault, or a list that falls
    bool isAbsolute = false;              ///< the lumens of a lamp are -1
    double lampLumens = 0;                ///< of all lamps together; of a record that is absolute without meaning
    TableLumens lumens;                   ///< of the luminaire
    std::optional<LargestValue> largest;  ///< not there when no value is above 0, or the table cannot be read
    std::vector<BeamWidth> planes;        ///< the two main planes
};

/// Looks at every value a fixed number of times. Raises nothing: a record whose counts and arrays disagree has a fault.
Photometry photometryOf(const PhotometricRecord &record);

}  // namespace penwright
