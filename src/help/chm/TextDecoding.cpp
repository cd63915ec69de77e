#include "help/chm/TextDecoding.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <iterator>

#include "core/CodePoints.h"

namespace penwright::chm {
namespace {

/// Primary languages, the low ten bits of an LCID.
constexpr std::uint32_t kCentralEuropeanLanguages[]{0x05, 0x0E, 0x15, 0x18, 0x1A, 0x1B, 0x1C, 0x24};
constexpr std::uint32_t kCyrillicLanguages[]{0x02, 0x19, 0x22, 0x23, 0x2F};
constexpr std::uint32_t kSerbianInCyrillic[]{0x0C1A, 0x1C1A};

template <std::size_t Size>
bool contains(const std::uint32_t (&values)[Size], std::uint32_t value)
{
    return std::find(std::begin(values), std::end(values), value) != std::end(values);
}

const char *codePageOf(std::uint32_t lcid)
{
    const std::uint32_t language = lcid & 0x3FF;
    if (contains(kCyrillicLanguages, language) || contains(kSerbianInCyrillic, lcid & 0xFFFF))
        return "CP1251";
    return contains(kCentralEuropeanLanguages, language) ? "CP1250" : "CP1252";
}

/// The text in UTF-8; U+FFFD stands for bytes that the code page does not know, and for all when there is no such page.
std::string converted(const std::string &bytes, const char *codePage)
{
    std::string text;
    const iconv_t conversion = iconv_open("UTF-8", codePage);
    const bool isKnown = reinterpret_cast<std::intptr_t>(conversion) != -1;
    std::string input = bytes;  // which the conversion asks for as if it wrote there
    char *from = input.data();
    for (std::size_t left = input.size(); left > 0;) {
        std::array<char, 4096> buffer{};
        char *to = buffer.data();
        std::size_t room = buffer.size();
        const bool failed = !isKnown || iconv(conversion, &from, &left, &to, &room) == static_cast<std::size_t>(-1);
        text.append(buffer.data(), to);
        if (failed && (!isKnown || errno != E2BIG)) {
            appendUtf8(text, 0xFFFD);
            ++from;
            --left;
        }
    }
    if (isKnown)
        iconv_close(conversion);
    return text;
}

/// Bytes that follow the first byte of a character; -1 for a byte that begins none.
int followers(unsigned char first)
{
    if (first < 0x80)
        return 0;
    if (first >= 0xC2 && first <= 0xDF)
        return 1;
    if (first >= 0xE0 && first <= 0xEF)
        return 2;
    return first >= 0xF0 && first <= 0xF4 ? 3 : -1;
}

bool isCodePoint(std::uint32_t value, int count)
{
    constexpr std::uint32_t kLeast[]{0, 0x80, 0x800, 0x10000};
    return value >= kLeast[count] && value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
}

}  // namespace

bool isUtf8(const std::string &bytes)
{
    for (std::size_t i = 0; i < bytes.size();) {
        const auto first = static_cast<unsigned char>(bytes[i++]);
        const int count = followers(first);
        if (count < 0 || bytes.size() - i < static_cast<std::size_t>(count))
            return false;
        std::uint32_t value = count == 0 ? first : first & (0x3FU >> count);
        for (int n = 0; n < count; ++n) {
            const auto byte = static_cast<unsigned char>(bytes[i++]);
            if ((byte & 0xC0) != 0x80)
                return false;
            value = value << 6 | (byte & 0x3F);
        }
        if (!isCodePoint(value, count))
            return false;
    }
    return true;
}

void appendUtf8(std::string &out, std::uint32_t codePoint)
{
    out += codePointText(isCodePoint(codePoint, 0) ? codePoint : 0xFFFD);
}

std::string decodedText(const std::string &bytes, std::uint32_t lcid)
{
    if (isUtf8(bytes))
        return bytes.compare(0, 3, "\xEF\xBB\xBF") == 0 ? bytes.substr(3) : bytes;
    return converted(bytes, codePageOf(lcid));
}

}  // namespace penwright::chm
