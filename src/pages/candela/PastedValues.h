#pragma once

#include <cstddef>
#include <string_view>

namespace penwright {

/// The values of a table's text from the clipboard, in reading order: line ends, "\r\n", "\n" or "\r", separate values
/// as tabs do, and one at the very end counts for nothing. A text with nothing else in it holds no value. Refers to
/// the text, which may be of many megabytes, and copies none of it.
class PastedValues {
public:
    explicit PastedValues(std::string_view text);

    int count() const { return m_count; }

    /// How many values the shortest and the longest line have; 0 where there is no value.
    int shortestLine() const { return m_shortestLine; }
    int longestLine() const { return m_longestLine; }

    /// The next value; an empty text behind the last one.
    std::string_view next();

private:
    void endLine(std::size_t values);

    std::string_view m_rest;
    int m_count = 0;
    int m_shortestLine = 0;
    int m_longestLine = 0;
};

}  // namespace penwright
