#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <vector>

#include "grid/TableReading.h"

namespace penwright {

/// A line of a table, cut into cells without blanks around them. Refers to the text.
struct TableLine {
    std::size_t number = 0;  ///< of the text's lines, counted from 1
    std::size_t before = 0;  ///< cells that lines begin with and that are left out
    std::vector<std::string_view> cells;
};

/// What stands beside a table's lines and is no part of it.
struct TableFrame {
    bool hasCounts = false;      ///< the lines' numbers, before all else
    bool repeatsAngles = false;  ///< the angle that a line begins with, at its end again
    std::size_t width = 0;       ///< cells of a line with all of that
};

/// The lines of a text with cells in them, one by one. Cells in quotes come without the outer quotes and may hold
/// separators and line ends. Empty cells at a line's end are left out, and so are blank lines, those drawn of strokes,
/// the blank columns that the first lines begin with, the unit of intensities behind a number, and the table's frame.
/// Between blanks an upright stroke is one. Takes time in proportion to the text.
class TableLines {
public:
    /// Refers to `text`.
    TableLines(std::string_view text, TableSeparator separator, const TableFrame &frame = {});

    /// Puts the next line into `line`; false behind the last one.
    bool next(TableLine &line);

    /// How many bytes of the text have been read.
    std::size_t bytesRead() const { return m_at; }

private:
    std::string_view nextCell();
    std::size_t quotedLength() const;
    std::size_t blankColumns() const;
    void leaveOutFrame(TableLine &line);
    bool isNextCount(std::string_view cell) const;
    bool isSeparator(char c) const;
    void skipBlanks();
    bool isAtLineEnd() const;
    void passLineEnd();

    std::string_view m_text;
    TableSeparator m_separator;
    std::size_t m_at = 0;
    std::size_t m_number = 1;
    std::size_t m_blankColumns;
    TableFrame m_frame;
    std::string_view m_lastCount;  ///< the line's number that was left out last
};

/// Gives the lines one by one to `read` until it wants no more. `goOn` is asked now and then with the part of the text,
/// of `size` bytes, that is read; false when one of them said no.
bool eachLine(TableLines &lines, std::size_t size, const std::function<bool(double)> &goOn,
              const std::function<bool(const TableLine &)> &read);

/// The part of a text that a guess looks at: its first lines, 300 at most, of 40,000 bytes at most together.
std::string_view sampleText(std::string_view text);

/// The cell without blanks at its ends, those that do not break among them.
std::string_view withoutCellBlanks(std::string_view cell);

}  // namespace penwright
