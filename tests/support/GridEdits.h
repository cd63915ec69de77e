#pragma once

#include <optional>
#include <string_view>
#include <utility>

#include "grid/SourceEdits.h"

namespace penwright::test {

/// Makes a change as the grid's model does, without a window; the message about what was refused.
inline std::optional<MessageBox> apply(GridSource &source, GridEdit edit)
{
    const auto refused = prepareEdit(edit, source);
    if (edit.content)
        edit.content->swap();
    return refused ? std::optional(refused->box) : std::nullopt;
}

inline std::optional<MessageBox> write(GridSource &source, int row, int column, std::string_view text)
{
    return apply(source, typedEdit(source, row, column, text));
}

/// Delete on one cell.
inline std::optional<MessageBox> clear(GridSource &source, int row, int column)
{
    return apply(source, clearingEdit(source, {row, column, row, column}));
}

}  // namespace penwright::test
