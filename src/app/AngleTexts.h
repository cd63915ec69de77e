#pragma once

#include "app/TableFit.h"
#include "draft/PageValue.h"

namespace penwright {

class DistributionPage;

/// The ground that a record's angles are.
TableGround groundOfRecord(const PhotometricRecord &record);

/// The texts that page 4 is to hold for a table's type and angles, none where it shows them already; some in any case
/// where it is to have a step of it.
PageText angleTexts(const DistributionPage &page, const TableGround &wanted, bool isStepThere);

/// Has page 4 show the angles of a table that undo or redo has brought back on page 5, as one step of its own: what is
/// built from its lists, or kept of them, would not fit the table otherwise.
void followTable(DistributionPage &page, const PhotometricRecord &record);

}  // namespace penwright
