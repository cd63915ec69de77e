#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace penwright {

/// Where a fault of a page lies: in one of its fields, as the page counts them, and of a grid in one cell (row from 1,
/// column from 0).
struct FaultPlace {
    int field = 0;
    int row = 0;
    int column = 0;
    bool operator==(const FaultPlace &) const = default;
};

/// The list of the warning dialog: the text itself is the list, each entry ended by "\r\n". Beside it stand the places
/// that the entries are about; that of the first fault gets the focus once the list has been read.
class WarningList {
public:
    void Add(std::string_view entry);
    void Clear();
    bool Clean() const { return m_text.empty(); }
    const std::string &text() const { return m_text; }

    /// Tells the place that the checks from here on look at.
    void lookAt(const FaultPlace &place) { m_place = place; }

    /// The check or conversion of the place looked at raised an error: its message is shown instead of the list, so
    /// that this place counts as the first fault.
    void noteError();

    /// The place of the noted error or the first entry since the last Clear; nothing when no place was told.
    const std::optional<FaultPlace> &firstFault() const { return m_firstFault; }

    /// The place of the entry that a line of the text belongs to, lines counted from 0; nothing when no place was told,
    /// and beyond the last line.
    std::optional<FaultPlace> placeOfLine(int line) const;

private:
    /// From a line on, entries are about a place; without one, about none.
    struct Stretch {
        int firstLine = 0;
        std::optional<FaultPlace> place;
    };

    std::string m_text;
    int m_lines = 0;
    std::vector<Stretch> m_stretches;
    std::optional<FaultPlace> m_place;
    std::optional<FaultPlace> m_firstFault;
};

}  // namespace penwright
