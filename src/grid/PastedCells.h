#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace penwright {

/// The cells of tab-delimited lines from the clipboard, one by one, each looked at a fixed number of times. Lines end
/// with "\r\n", "\n" or "\r", and a last line end adds no line. A cell with a line end inside is one in quotes, where
/// a quote stands twice: it comes in one line, without the quotes. Refers to the text.
class PastedCells {
public:
    explicit PastedCells(std::string_view text);

    struct Cell {
        std::string text;
        bool endsLine;
    };

    /// The next cell; nothing behind the last one.
    std::optional<Cell> next();

    /// Whether nothing but line ends is left.
    bool isAtEnd() const { return m_rest.find_first_not_of("\r\n") == std::string_view::npos; }

private:
    std::string_view m_rest;
    bool m_hasMore;
};

}  // namespace penwright
