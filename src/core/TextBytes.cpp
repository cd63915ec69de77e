#include "core/TextBytes.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "core/CodePoints.h"

namespace penwright {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LowFirst = "\xFF\xFE";
constexpr std::string_view kUtf16HighFirst = "\xFE\xFF";
constexpr char32_t kNoCharacter = 0xFFFD;

/// What Windows shows for the bytes 0x80 to 0x9F; 0 where it has nothing either.
constexpr std::array<char16_t, 32> kWindowsSigns{0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                                 0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

unsigned byteAt(std::string_view bytes, std::size_t place)
{
    return static_cast<unsigned char>(bytes[place]);
}

/// How many ASCII bytes stand at the beginning, as far as whole words of the machine tell.
std::size_t plainWords(std::string_view bytes)
{
    std::size_t length = 0;
    for (std::uint64_t word = 0; length + sizeof word <= bytes.size(); length += sizeof word) {
        std::memcpy(&word, bytes.data() + length, sizeof word);
        if (word & 0x8080808080808080ULL)
            break;
    }
    return length;
}

/// The length of the UTF-8 character that the bytes begin with, 0 when they begin with none.
std::size_t characterLength(std::string_view bytes)
{
    const unsigned first = byteAt(bytes, 0);
    if (first < 0x80)
        return 1;
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || bytes.size() < length)
        return 0;
    if (!std::all_of(bytes.begin() + 1, bytes.begin() + static_cast<std::ptrdiff_t>(length), isContinuation))
        return 0;
    const unsigned second = byteAt(bytes, 1);
    const bool isTooLong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
    const bool isNone = (first == 0xED && second > 0x9F) || (first == 0xF4 && second > 0x8F);
    return isTooLong || isNone ? 0 : length;
}

std::string fromUtf16(std::string_view bytes)
{
    const std::size_t low = bytes.starts_with(kUtf16LowFirst) ? 0 : 1;
    const auto unitAt = [bytes, low](std::size_t place) -> char32_t {
        return place + 1 < bytes.size() ? byteAt(bytes, place + low) | byteAt(bytes, place + 1 - low) << 8 : 0;
    };
    std::string text;
    text.reserve(bytes.size() / 2);
    for (std::size_t place = 2; place + 1 < bytes.size(); place += 2) {
        char32_t character = unitAt(place);
        const char32_t second = unitAt(place + 2);
        if (character >= 0xD800 && character < 0xDC00 && second >= 0xDC00 && second < 0xE000) {
            character = 0x10000 + ((character - 0xD800) << 10) + (second - 0xDC00);
            place += 2;
        } else if (character >= 0xD800 && character < 0xE000) {
            character = kNoCharacter;
        }
        if (character < 0x80)
            text += static_cast<char>(character);
        else
            text += codePointText(character);
    }
    return text;
}

std::string fromLatin1(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (std::size_t place = 0; place < bytes.size(); ++place) {
        const unsigned byte = byteAt(bytes, place);
        if (byte < 0x80) {
            text += bytes[place];
            continue;
        }
        const char32_t sign = byte < 0xA0 ? kWindowsSigns[byte - 0x80] : byte;
        text += codePointText(sign == 0 ? kNoCharacter : sign);
    }
    return text;
}

}  // namespace

bool isUtf8(std::string_view bytes)
{
    while (!bytes.empty()) {
        bytes.remove_prefix(plainWords(bytes));
        const std::size_t length = bytes.empty() ? 0 : characterLength(bytes);
        if (length == 0)
            return bytes.empty();
        bytes.remove_prefix(length);
    }
    return true;
}

bool hasUtf16Mark(std::string_view bytes)
{
    return bytes.starts_with(kUtf16LowFirst) || bytes.starts_with(kUtf16HighFirst);
}

std::string_view withoutUtf8Mark(std::string_view bytes)
{
    while (bytes.starts_with(kUtf8Mark))
        bytes.remove_prefix(kUtf8Mark.size());
    return bytes;
}

std::string utf8Part(std::string_view bytes)
{
    return isUtf8(bytes) ? std::string(bytes) : fromLatin1(bytes);
}

std::string utf8Text(std::string_view bytes)
{
    if (hasUtf16Mark(bytes))
        return fromUtf16(bytes);
    return utf8Part(withoutUtf8Mark(bytes));
}

std::string shownWord(std::string_view bytes)
{
    constexpr std::size_t kShownBytes = 30;
    const std::string text = utf8Text(withinBytes(bytes, 2 * kShownBytes));
    std::string shown(withinBytes(text, kShownBytes));
    std::replace_if(
        shown.begin(), shown.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; }, '?');
    return '"' + shown + (text.size() > kShownBytes ? "..." : "") + '"';
}

}  // namespace penwright
