#pragma once

#include <string>
#include <string_view>

#include "core/OneBased.h"
#include "grid/GridSource.h"

namespace penwright {

/// The tilt angles (degrees) and their factors, of one length, as the grid of the tilt page shows them: column 0 the
/// angle, column 1 the factor.
class TiltTable : public GridSource {
public:
    /// The most angles that a record can hold.
    static constexpr int kMostAngles = 32767;

    static constexpr int kAngle = 0;
    static constexpr int kFactor = 1;

    /// `title` is what the messages about refused cells are titled with.
    explicit TiltTable(std::string title) : m_title(std::move(title)) {}

    /// Follows a change of the angle count's text. A numeric text above zero gives both lists that length and sets
    /// every value to 0, also where the length stays the same. Any other text, and one whose count rounds to 0 or lies
    /// above kMostAngles, leaves them as they are. Whether they were set.
    bool takeCount(std::string_view text);

    const OneBased<float> &angles() const { return m_angles; }
    const OneBased<float> &factors() const { return m_factors; }

    /// The row `offset` rows from a position, "" being the place before the first row or, to go back, behind the last.
    /// Nothing here calls it; the toolkit counts rows itself. Error 13 or 6 for a position that is no row number.
    RelativeRow relativeRow(std::string_view start, int offset) const;

    int rowCount() const override { return m_angles.size(); }
    int columnCount() const override { return 2; }
    std::string columnCaption(int column) const override { return column == kAngle ? "Angle" : "Factor"; }
    std::string read(int row, int column) const override;
    std::optional<MessageBox> check(int row, int column, std::string_view text) const override;
    std::optional<MessageBox> write(int row, int column, std::string_view text) override;

    /// Sets the value to 0.
    std::optional<MessageBox> clear(int row, int column) override;

private:
    float &value(int row, int column) { return column == kAngle ? m_angles(row) : m_factors(row); }

    std::string m_title;
    OneBased<float> m_angles;
    OneBased<float> m_factors;
};

}  // namespace penwright
