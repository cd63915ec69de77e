#pragma once

#include <vector>

#include "core/PhotometricRecord.h"
#include "review/Photometry.h"
#include "review/Remark.h"

namespace penwright {

/// The remarks on a record, the weightiest first. Looks at every value a fixed number of times and raises nothing.
/// Where the table cannot be read, there are none on its angles and values; the others are made.
std::vector<Remark> remarksOf(const PhotometricRecord &record, const Photometry &photometry);

}  // namespace penwright
