#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "grid/GridBlock.h"
#include "platform/Dialogs.h"

namespace penwright {

/// A text for one cell.
struct GridText {
    int row = 0;
    int column = 0;
    std::string text;
};

/// What a source will hold once a change is made, in the source's own kind of values.
class GridContent {
public:
    GridContent() = default;
    GridContent(const GridContent &) = delete;
    GridContent &operator=(const GridContent &) = delete;
    virtual ~GridContent() = default;

    /// Puts this in the place of what stands in the source, and keeps that instead: done twice, nothing has changed.
    virtual void swap() = 0;

    /// The memory that it takes, in bytes.
    virtual std::size_t bytes() const = 0;
};

/// Why a change was refused, and the cell that wants the user's attention.
struct RefusedEdit {
    int row = 0;  ///< 0 when it concerns no cell
    int column = 0;
    MessageBox box{};
};

/// How much of a grid a change is of.
enum class GridReach {
    Cells,   ///< the cells of its texts; rows may come in behind the last one
    Values,  ///< every value, in the rows and columns that there are
    Table,   ///< rows and columns too: the grid begins anew
};

/// One change of a grid, made by a source and handed to GridModel::apply. It is either of texts, which are checked
/// there, or brings the content that its source has made and answers for.
struct GridEdit {
    std::string_view name{};  ///< as a menu would call it: "Paste"
    GridBlock block{};        ///< what it is of, where it is of cells
    GridReach reach = GridReach::Cells;
    std::vector<GridText> texts{};           ///< in reading order
    int rows = 0;                            ///< how many rows there are afterwards at least
    bool isWhole = true;                     ///< a refused text refuses all of them; otherwise it alone is left out
    std::unique_ptr<GridContent> content{};  ///< what stands afterwards; once applied, what stood before
    std::optional<RefusedEdit> refused{};    ///< what its source has refused already, or left out
    std::string hint{};                      ///< what is said of it under the grid, with no message
};

}  // namespace penwright
