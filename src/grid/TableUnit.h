#pragma once

#include <string>

#include "grid/TableReading.h"

namespace penwright {

/// What values in another unit are multiplied by, and what the file multiplies by in any case.
struct TableUnit {
    double lumens = 0;      ///< of all lamps; not above 0 when there are none
    float multiplier = 1;   ///< of the file
    std::string whyNone{};  ///< a sentence where there are no lumens

    bool isKnown() const { return lumens > 0; }

    /// What turns values in a unit into candela.
    double factor(ValueUnit unit) const;

    /// Whether the file's multiplier is the factor of a unit, to one in a hundred: the table goes in as it is then.
    bool isInMultiplier(ValueUnit unit) const;

    /// What is said of it, in sentences, when values are read in a unit. One that cannot be taken is to be chosen.
    std::string words(ValueUnit unit) const;
};

}  // namespace penwright
