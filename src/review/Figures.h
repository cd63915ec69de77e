#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/PhotometricRecord.h"
#include "review/Photometry.h"

namespace penwright {

/// One figure of a record as it is shown.
struct Figure {
    std::string name;
    std::string text;       ///< "12,437", or "-" when the record does not give it
    std::string_view unit;  ///< "lm"; "" for words and for "-"
    std::string reason;     ///< the sentence that says why the text is "-", "" otherwise
    bool operator==(const Figure &) const = default;
};

/// What stands beside a figure's name: its text, with the unit where it has one.
std::string valueWithUnit(const Figure &figure);

/// The figures of a record, in the order in which they are shown; always as many for one photometric type.
std::vector<Figure> figuresOf(const PhotometricRecord &record, const Photometry &photometry);

}  // namespace penwright
