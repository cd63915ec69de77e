#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/OneBased.h"
#include "grid/GridValues.h"

namespace penwright {

/// The tilt angles, in degrees, and their factors, of one length.
struct TiltValues {
    OneBased<float> angles;
    OneBased<float> factors;
};

/// Their text: a line for each angle with its factor.
struct HeldTilt {
    static std::string textOf(const TiltValues &values);
    static std::optional<TiltValues> valuesOf(std::string_view text);
    static std::size_t bytesOf(const TiltValues &values);
};

/// The tilt angles and factors as the grid of the tilt page shows them: column 0 the angle, column 1 the factor.
class TiltTable : public GridValues<TiltValues, HeldTilt> {
public:
    /// The most angles that a record can hold.
    static constexpr int kMostAngles = 32767;

    static constexpr int kAngle = 0;
    static constexpr int kFactor = 1;

    /// `title` is what the messages about refused cells are titled with.
    explicit TiltTable(std::string title) : m_title(std::move(title)) {}

    /// A count is about to be typed, in one go: the values that stand now come back with their own count, whatever
    /// counts it passes through on the way, as 12 passes through 1.
    void beginCount() { m_atBegin = m_values; }

    /// What the text of the angle count makes of the table. A numeric text above zero gives both lists that length and
    /// sets every value to 0. The count that the lists have, any other text, and one whose count rounds to 0 or lies
    /// above kMostAngles, is no change.
    std::optional<GridEdit> newCount(std::string_view text);

    const OneBased<float> &angles() const { return m_values.angles; }
    const OneBased<float> &factors() const { return m_values.factors; }

    int rowCount() const override { return angles().size(); }
    int columnCount() const override { return 2; }
    std::string columnCaption(int column) const override { return column == kAngle ? "Angle" : "Factor"; }
    std::string read(int row, int column) const override;
    std::optional<MessageBox> check(int row, int column, std::string_view text) const override;

    std::string stepBeforeCells() const override { return "Type the number of angles first, then paste again."; }

    /// Delete sets a value to 0.
    std::string emptied(int, int) const override { return "0"; }

    // Called by nothing in the program; the answer is fixed, and the toolkit counts rows itself.

    /// The row `offset` rows from a position, "" being the place before the first row or, to go back, behind the last.
    /// Error 13 or 6 for a position that is no row number.
    RelativeRow relativeRow(std::string_view start, int offset) const;

protected:
    void write(TiltValues &values, int row, int column, std::string_view text) const override;

private:
    std::string m_title;
    TiltValues m_atBegin;  ///< what stood when a count began to be typed
};

}  // namespace penwright
