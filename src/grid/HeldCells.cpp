#include "grid/HeldCells.h"

#include <charconv>
#include <cmath>

namespace penwright {
namespace {

constexpr std::string_view kMarked = "\\\t\n\r";
constexpr std::string_view kMarks = "\\tnr";

template <typename Number>
void appendNumber(std::string &to, Number value)
{
    char digits[32];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
    to.append(digits, end);
}

}  // namespace

void appendHeldNumber(std::string &to, float value)
{
    appendNumber(to, value);
}

void appendHeldNumber(std::string &to, double value)
{
    appendNumber(to, value);
}

template <typename Number>
std::optional<Number> heldNumber(std::string_view text)
{
    Number value = 0;
    const char *end = text.data() + text.size();
    const auto [at, error] = std::from_chars(text.data(), end, value);
    const bool isWhole = error == std::errc() && at == end && std::isfinite(value);
    return isWhole ? std::optional(value) : std::nullopt;
}

template std::optional<float> heldNumber<float>(std::string_view);
template std::optional<double> heldNumber<double>(std::string_view);

void appendHeldText(std::string &to, std::string_view text)
{
    for (const char character : text) {
        const std::size_t mark = kMarked.find(character);
        if (mark == std::string_view::npos)
            to += character;
        else
            (to += '\\') += kMarks[mark];
    }
}

std::optional<std::string> heldText(std::string_view text)
{
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\\') {
            plain += text[at];
            continue;
        }
        const std::size_t mark = ++at < text.size() ? kMarks.find(text[at]) : std::string_view::npos;
        if (mark == std::string_view::npos)
            return std::nullopt;
        plain += kMarked[mark];
    }
    return plain;
}

std::size_t bytesOfText(const std::string &text)
{
    const bool isInside = text.capacity() <= std::string().capacity();
    return isInside ? 0 : text.capacity() + 1;
}

std::optional<std::string_view> HeldCells::next(char end)
{
    const std::size_t length = m_rest.find_first_of("\t\n");
    if (length == std::string_view::npos || m_rest[length] != end)
        return std::nullopt;
    const std::string_view cell = m_rest.substr(0, length);
    m_rest.remove_prefix(length + 1);
    return cell;
}

}  // namespace penwright
