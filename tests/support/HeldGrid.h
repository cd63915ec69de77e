#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "grid/GridSource.h"

namespace penwright::test {

/// Brings back what a text says that a source was asked for, as the grid's model does; false when it is none for it.
inline bool bringBack(GridSource &source, std::string_view text)
{
    auto edit = source.fromHeld(text);
    if (edit && edit->content)
        edit->content->swap();
    return edit.has_value();
}

}  // namespace penwright::test
