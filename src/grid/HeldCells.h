#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace penwright {

/// Appends the shortest text that is read as exactly this number again.
void appendHeldNumber(std::string &to, float value);
void appendHeldNumber(std::string &to, double value);

/// The number that a text is, with a point and without "+", blanks or signs between thousands: what appendHeldNumber
/// makes, and "1.50" or ".5" as well. Nothing for any other text and for a number that the type does not hold.
template <typename Number>
std::optional<Number> heldNumber(std::string_view text);

/// Appends a text so that no tab and no line end stands in it.
void appendHeldText(std::string &to, std::string_view text);

/// What appendHeldText was given; nothing for a text with a backslash in it that none of its marks is behind. Tabs and
/// line ends that stand there all the same are kept.
std::optional<std::string> heldText(std::string_view text);

/// The memory that a text has taken beside itself, in bytes.
std::size_t bytesOfText(const std::string &text);

/// Reads what a grid holds from its text, cell by cell. A tab stands between two cells of a line, "\n" ends each line.
class HeldCells {
public:
    explicit HeldCells(std::string_view text) : m_rest(text) {}

    bool isAtEnd() const { return m_rest.empty(); }

    /// The next cell, which `end` is to follow; nothing when it does not.
    std::optional<std::string_view> next(char end);

private:
    std::string_view m_rest;
};

}  // namespace penwright
