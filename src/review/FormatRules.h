#pragma once

#include <span>
#include <string_view>

namespace penwright {

/// What a version of the format says of keywords, lines and shapes.
struct FormatRules {
    int year = 0;                                ///< by which messages name the version
    int mostCharacters = 0;                      ///< of a keyword line that every program reads
    std::span<const std::string_view> shapes;    ///< the signs of width, length and height: "--0" is a circle
    std::span<const std::string_view> required;  ///< keywords
    std::span<const std::string_view> unknown;   ///< keywords of other versions
};

/// The rules of the version that a file's first line names. One that is not known and begins with "IES" counts as that
/// of 2019, which has the lines and shapes of 2002, and of its keywords nothing is said. So it is with that of 1986,
/// which any other line counts as, but with the older lines and shapes.
const FormatRules &formatRules(std::string_view firstLine);

}  // namespace penwright
