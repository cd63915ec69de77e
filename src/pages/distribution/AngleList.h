#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "core/OneBased.h"
#include "grid/GridValues.h"
#include "pages/distribution/PredefinedAngles.h"

namespace penwright {

/// One angle, degrees: a text as it was typed, or a single from a predefined distribution.
using AngleCell = std::variant<std::string, float>;

/// The angles of one axis, counted from 1.
using AngleCells = OneBased<AngleCell>;

/// What stands in a cell that has not been typed yet.
inline constexpr std::string_view kBlankAngle = " ";

/// The number in a cell, a numeric text's number too; nothing when it holds none.
std::optional<double> numberIn(const AngleCell &cell);

/// The number in a cell narrowed to a single; error 13 when it holds none, 6 beyond the single range.
float singleIn(const AngleCell &cell);

/// The first angles of a record's array, as many as it counts and has.
AngleCells cellsOf(const OneBased<float> &angles, int count);

/// Whether two lists hold the same angles, as singles.
bool areSameAngles(const AngleCells &one, const AngleCells &other);

/// Whether the cells have ever been sized; once they are there is at least one.
inline bool isAllocated(const AngleCells &cells)
{
    return !cells.empty();
}

/// Their text: a line for each angle, "=" before a number and "'" before a text.
struct HeldAngles {
    static std::string textOf(const AngleCells &cells);
    static std::optional<AngleCells> valuesOf(std::string_view text);
    static std::size_t bytesOf(const AngleCells &cells);
};

/// The angles of one axis as page 4 keeps them and their one-row grid shows them, a column for each.
class AngleList : public GridValues<AngleCells, HeldAngles> {
public:
    static constexpr int kMostAngles = 1000;

    /// What a text of the drop-down list makes of the cells.
    struct Resizing {
        GridEdit edit;
        bool becomesOne;  ///< one blank cell, because the text was refused; "1" stands for it in the drop-down list
    };

    explicit AngleList(AngleAxis axis) : m_axis(axis) {}

    /// All cells replaced by those of a text from the axis's drop-down list: as many blank ones as a number says, or
    /// the angles that an entry of the list spells out for the type. A number above kMostAngles and a text from which
    /// no list can be made give one blank cell. Nothing for the prompt.
    std::optional<Resizing> resize(std::string_view text, std::int16_t photometricType);

    const AngleCells &cells() const { return m_values; }

    /// Reads a column's cell, counted from 0. Beyond the last one the vertical list gives a blank, the horizontal list
    /// leaves the value as it came; the difference is meant.
    void readCell(int column, std::string &value) const;

    int rowCount() const override { return 1; }
    int columnCount() const override { return cells().size(); }
    std::string columnCaption(int column) const override { return std::to_string(column + 1); }

    /// "Vertical angle" and the column's number: the one row is all angles of the axis.
    std::string rowName(int) const override;

    std::string read(int row, int column) const override;

    /// Pastes along the one row: a column of a spreadsheet too, line ends mean no more than tabs. All of the angles or,
    /// without room for them, none.
    GridEdit paste(const GridBlock &block, std::string_view text, const std::string &title) override;

    std::string stepBeforeCells() const override { return "Type the number of angles first, then paste again."; }

    // Called by nothing in the program; the answer is fixed, and the toolkit counts rows itself.

    /// The row `offset` rows from a position, "" being the place before the first row or, to go back, the first row
    /// itself: the grid has one row. Error 13 or 6 for a position that is no row number.
    static RelativeRow relativeRow(std::string_view start, int offset);

protected:
    /// Keeps any text as typed: the angles are checked when the page is left.
    void write(AngleCells &cells, int row, int column, std::string_view text) const override;

private:
    GridEdit resized(AngleCells now);

    AngleAxis m_axis;
};

}  // namespace penwright
