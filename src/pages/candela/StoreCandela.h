#pragma once

#include "core/CandelaCell.h"
#include "core/PhotometricRecord.h"

namespace penwright {

/// Stores a checked table in the record: every value narrowed to single and widened again, so that a typed 12.3 is
/// stored as 12.300000190734863. Error 13 when a cell is blank, 6 beyond the single range; nothing is stored then.
void storeCandela(const OneBasedTable<CandelaCell> &cells, PhotometricRecord &record);

}  // namespace penwright
