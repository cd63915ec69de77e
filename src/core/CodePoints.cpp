#include "core/CodePoints.h"

#include <algorithm>

namespace penwright {
namespace {

/// How many bytes the character has that begins with a byte.
std::size_t announcedLength(char first)
{
    const auto byte = static_cast<unsigned char>(first);
    return byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
}

}  // namespace

bool isContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

int codePointCount(std::string_view text)
{
    return static_cast<int>(std::count_if(text.begin(), text.end(), [](char byte) { return !isContinuation(byte); }));
}

std::string_view withinBytes(std::string_view text, std::size_t bytes)
{
    if (text.size() <= bytes)
        return text;
    while (bytes > 0 && isContinuation(text[bytes]))
        --bytes;
    return text.substr(0, bytes);
}

std::string codePointText(char32_t codePoint)
{
    const auto continuation = [codePoint](int shift) {
        return static_cast<char>(0x80 | ((codePoint >> shift) & 0x3F));
    };
    if (codePoint < 0x80)
        return {static_cast<char>(codePoint)};
    if (codePoint < 0x800)
        return {static_cast<char>(0xC0 | (codePoint >> 6)), continuation(0)};
    if (codePoint < 0x10000)
        return {static_cast<char>(0xE0 | (codePoint >> 12)), continuation(6), continuation(0)};
    return {static_cast<char>(0xF0 | (codePoint >> 18)), continuation(12), continuation(6), continuation(0)};
}

std::string_view withoutFirstCodePoint(std::string_view text)
{
    if (text.empty())
        return text;
    const std::size_t most = std::min(text.size(), announcedLength(text.front()));
    std::size_t length = 1;
    while (length < most && isContinuation(text[length]))
        ++length;
    return text.substr(length);
}

}  // namespace penwright
