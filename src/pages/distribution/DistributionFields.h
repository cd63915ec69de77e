#pragma once

#include <cstdint>
#include <optional>

#include "core/PhotometricRecord.h"
#include "pages/distribution/AngleList.h"
#include "wizard/WarningList.h"

namespace penwright {

/// The fields of page 4, as the places of its faults name them; a fault in a grid is in row 1.
enum DistributionField : int { kVerticalListField, kHorizontalListField, kVerticalGridField, kHorizontalGridField };

/// What stands on page 4 when Next is pressed.
struct DistributionFields {
    std::int16_t photometricType;  ///< kTypeB when `rdoB` is selected, otherwise kTypeC
    AngleCells vertical;
    AngleCells horizontal;
};

/// What stands on page 4 where it shows the angles of a record; nothing where an axis has none, or more than its list
/// holds. Any type but B is shown as C.
std::optional<DistributionFields> fieldsOf(const PhotometricRecord &record);

/// Whether two pages state the same type and the same angles, as singles.
bool areSameDistribution(const DistributionFields &one, const DistributionFields &other);

/// Adds a line for each fault of the angles, and one entry of two lines alone when an axis has no angles at all. Equal
/// neighbours pass, unlike on the tilt page. Raises error 6 under the cell's name when a single cannot hold an angle
/// whose order is looked at.
void checkDistribution(const DistributionFields &fields, WarningList &dlgWarn);

/// Stores checked fields in the record, all or nothing.
void storeDistribution(const DistributionFields &fields, PhotometricRecord &record);

}  // namespace penwright
