#pragma once

#include "core/CandelaCell.h"
#include "core/PhotometricRecord.h"
#include "wizard/WarningList.h"

namespace penwright {

/// Adds a line for each fault of the table, cells by (horizontal index, vertical index). For each horizontal angle in
/// turn: that its first value does not agree with that of the first angle, the same of its last value, then each value
/// that is negative or missing. Only type C has the two agreement checks, and they differ on purpose: the nadir one
/// needs a number in the cell but no angle of 0, the zenith one needs a last angle of 180 but no number.
///
/// Everything is compared as single; error 6, told by the cell's angles, when a kept double is beyond one. Error 9 when
/// the cells or the angles are fewer than the record counts.
void checkCandela(const PhotometricRecord &record, const OneBasedTable<CandelaCell> &cells, WarningList &dlgWarn);

}  // namespace penwright
