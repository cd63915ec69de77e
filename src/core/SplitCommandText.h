#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/OneBased.h"

namespace penwright {

/// The fields of a split text by (line, field), both counted from 1. Only what is there takes memory: a hostile text
/// of many lines and many commas stays as large as it was.
class FieldTable {
public:
    FieldTable() = default;

    /// Cuts every line into as many fields as the last one has.
    explicit FieldTable(const OneBased<std::string> &lines);

    int lines() const { return m_lines.size(); }
    int fields() const { return m_fieldCount; }

    /// One field, "" where the line has fewer commas than the last line; error 9 beyond lines() or fields().
    /// The view lives as long as the table.
    std::string_view operator()(int line, int field) const;

private:
    /// Where a line stands in `m_text`, and how many of the commas in `m_commas` come before it.
    struct Line {
        std::size_t start;
        std::size_t commas;
    };

    std::string m_text;                 ///< the lines one after the other
    std::vector<std::size_t> m_commas;  ///< places in `m_text` of the commas that cut a line
    OneBased<Line> m_lines;
    int m_fieldCount = 0;
};

/// A text cut into its non-empty lines and their fields.
struct SplitText {
    OneBased<std::string> lines;
    FieldTable table;    ///< empty when it was skipped or no line was found
    int fieldCount = 0;  ///< commas of the last kept line plus one, 0 without a table
    int lineCount = 0;
};

/// Cuts `text` at line feeds into lines; the character before each line feed is dropped by position, whatever it is,
/// as the carriage return of a pair. Empty lines are skipped. Every line is then cut at commas into as many fields as
/// the last line has; the last of them runs to the end of its line. Nothing is trimmed.
SplitText SplitCommandText(std::string_view text, bool skipTable = false);

}  // namespace penwright
