#pragma once

#include <string>

#include "core/PhotometricRecord.h"

namespace penwright {

/// The sentence that says why a record's table cannot be read: no values, or counts and arrays that disagree; "" when
/// it can. What the arrays hold beyond the counts is no fault.
std::string tableFault(const PhotometricRecord &record);

/// The sentence that says in which list the angles fall, "" when both rise; equal neighbours pass. Needs a table that
/// can be read.
std::string fallingAngles(const PhotometricRecord &record);

}  // namespace penwright
