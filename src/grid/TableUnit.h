#pragma once

#include <string>

namespace penwright {

/// What candela per kilolumen are multiplied by, and what the file multiplies by in any case.
struct TableUnit {
    double lumens = 0;      ///< of all lamps; not above 0 when there are none
    float multiplier = 1;   ///< of the file
    std::string whyNone{};  ///< a sentence where there are no lumens

    bool isKnown() const { return lumens > 0; }

    /// What turns candela per kilolumen into candela.
    double factor() const;

    /// Whether the file's multiplier is that factor, to one in a hundred: a table per kilolumen goes in as it is then.
    bool isInMultiplier() const;

    /// What is said of it, in sentences, when values are read as per kilolumen or not.
    std::string words(bool isPerKilolumen) const;
};

}  // namespace penwright
