#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "core/CandelaCell.h"
#include "core/OneBased.h"

namespace penwright {

/// Looks whether a paste has lost its thousands. Many spreadsheets write 2481 as "2.481", which is less than 3 here,
/// while values below 1000 come in right.
class LostThousands {
public:
    /// Over the texts of all cells, each told once in reading order. `columns` is the number of horizontal angles.
    LostThousands(int columns, int count) : m_columns(columns), m_count(count) {}

    void look(std::string_view text)
    {
        if (isGrouped(text))
            note();
        ++m_at;
    }

    /// A cell by its horizontal and its vertical index.
    struct Place {
        int h;
        int v;
    };

    /// Two cells side by side.
    struct Jump {
        Place low;
        Place neighbour;
    };

    /// The first value with one group of three behind its point that would go on as thousands where a neighbour below
    /// 1000, in its row or column, ends. The cells are by (horizontal index, vertical index).
    std::optional<Jump> jump(const OneBasedTable<CandelaCell> &cells) const;

private:
    /// Whether a text is one to three digits, a point and three digits, as thousands are written and few values else.
    static bool isGrouped(std::string_view text)
    {
        constexpr std::size_t kShortest = 5;
        constexpr std::size_t kLongest = 7;
        return text.size() >= kShortest && text.size() <= kLongest && text[text.size() - 4] == '.' && hasGroups(text);
    }

    static bool hasGroups(std::string_view text);
    void note();

    int m_columns;
    int m_count;
    int m_at = 0;
    std::vector<bool> m_isGrouped;  ///< by place; empty while no text was
};

}  // namespace penwright
