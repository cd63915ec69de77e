#pragma once

#include <memory>
#include <string_view>
#include <utility>

#include "grid/GridSource.h"

namespace penwright {

/// A source whose whole content is one value that is cheap to copy: each edit brings a changed copy. `Held` knows the
/// value's text, in three functions of its own: `textOf` the values, `valuesOf` a text, nothing when it is none that
/// `textOf` makes of values which a user could have brought there, and `bytesOf` the values, beside their own size.
template <typename Values, typename Held>
class GridValues : public GridSource {
public:
    std::unique_ptr<GridContent> contentAfter(const GridEdit &edit) final
    {
        Values after = m_values;
        for (int row = rowCount(); row < edit.rows; ++row)
            append(after);
        for (const GridText &cell : edit.texts)
            write(after, cell.row, cell.column, cell.text);
        return std::make_unique<Other>(m_values, std::move(after));
    }

    std::function<std::string()> held() const final
    {
        return [values = m_values] { return Held::textOf(values); };
    }

    std::optional<GridEdit> fromHeld(std::string_view text) final
    {
        std::optional<Values> values = Held::valuesOf(text);
        return values ? std::optional(replacement({}, *std::move(values))) : std::nullopt;
    }

protected:
    /// The edit that puts other values in the place of all, rows and columns included.
    GridEdit replacement(std::string_view name, Values values)
    {
        return {
            .name = name, .reach = GridReach::Table, .content = std::make_unique<Other>(m_values, std::move(values))};
    }

    /// Writes a checked text into the values.
    virtual void write(Values &values, int row, int column, std::string_view text) const = 0;

    /// Adds an empty row behind the last one, where rows can be appended.
    virtual void append(Values &) const {}

    Values m_values;

private:
    class Other : public GridContent {
    public:
        Other(Values &standing, Values other) : m_standing(standing), m_other(std::move(other)) {}
        void swap() override { std::swap(m_standing, m_other); }
        std::size_t bytes() const override { return sizeof(*this) + Held::bytesOf(m_other); }

    private:
        Values &m_standing;
        Values m_other;
    };
};

}  // namespace penwright
