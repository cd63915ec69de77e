#pragma once

#include <QFontMetricsF>

#include <array>
#include <string_view>

#include "core/CandelaCell.h"

namespace penwright {

/// How wide the texts of candela cells are in one font, in logical pixels. A million of them are looked through each
/// time the table is built or pasted: most need no text, because none of their kind could be wider than the column.
class CandelaWidths {
public:
    explicit CandelaWidths(const QFontMetricsF &font);

    /// The width of a cell's text where it is more than `room`, else `room`.
    double widened(double room, const CandelaCell &cell) const;

private:
    double most(const CandelaCell &cell) const;
    double of(std::string_view text) const;

    std::array<double, 128> m_advances{};
    double m_digit = 0;
};

}  // namespace penwright
