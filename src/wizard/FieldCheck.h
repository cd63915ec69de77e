#pragma once

#include <string>
#include <string_view>

#include "platform/RunTimeError.h"
#include "wizard/WarningList.h"

namespace penwright {

/// The kinds of gsbCheckField, added together; 0 asks only for a text that is numeric.
enum FieldCheckKind : int {
    FieldCheckPositive = 1,  ///< greater than zero
    FieldCheckWhole = 2,     ///< a whole number
    FieldCheckMinusOne = 4,  ///< together with FieldCheckPositive: greater than zero, or the text exactly "-1"
};

/// Adds one line for each fault of a field's text, the field's caption before it; a text that is empty or not numeric
/// gets that line alone. Raises error 6 under the caption when a single or, with FieldCheckWhole, a 16-bit integer
/// cannot hold the value: there is no line for that.
void gsbCheckField(WarningList &dlgWarn, std::string_view caption, std::string_view text, int kinds);

/// Runs the conversion of a field's text. An error in it is raised again with "caption: " before its description, and
/// the place that the list looks at counts as faulty.
template <typename Conversion>
auto convertField(WarningList &dlgWarn, std::string_view caption, const Conversion &convert)
{
    try {
        return convert();
    } catch (const RunTimeError &error) {
        dlgWarn.noteError();
        throw RunTimeError(error.number(), std::string(caption) + ": " + error.description(), error.source());
    }
}

}  // namespace penwright
