#pragma once

#include <string>

#include "draft/PageValue.h"
#include "wizard/PageFields.h"

namespace penwright {

/// What stands in an open cell editor of a page, which no cell holds yet: the cell and the text, under the grid's name
/// with an end of its own. Empty while no editor is open.
PageValue halfTyped(const PageFields &fields);

/// Whether a name is one that halfTyped gives.
bool isHalfTyped(const std::string &name);

/// Opens the editor again with the text in it; its cell is then the current one and has the focus. Names and texts that
/// halfTyped would not have made, and cells that are not there, change nothing.
void resumeTyping(const PageFields &fields, const PageText &texts);

}  // namespace penwright
