#include "help/chm/Entities.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>

#include "help/chm/TextDecoding.h"

namespace penwright::chm {
namespace {

/// Names of the characters from U+00A0 to U+00FF.
constexpr std::string_view kLatinNames[]{
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",    "copy",   "ordf",
    "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn", "sup2",   "sup3",   "acute",  "micro",
    "para",   "middot", "cedil",  "sup1",   "ordm",   "raquo",  "frac14", "frac12", "frac34", "iquest", "Agrave",
    "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil", "Egrave", "Eacute", "Ecirc",  "Euml",
    "Igrave", "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde", "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",
    "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",  "Uuml",   "Yacute", "THORN",  "szlig",  "agrave", "aacute",
    "acirc",  "atilde", "auml",   "aring",  "aelig",  "ccedil", "egrave", "eacute", "ecirc",  "euml",   "igrave",
    "iacute", "icirc",  "iuml",   "eth",    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide",
    "oslash", "ugrave", "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml"};

struct NamedCharacter {
    std::string_view name;
    std::uint32_t codePoint;
};

constexpr NamedCharacter kOtherNames[]{
    {"quot", 0x0022},  {"amp", 0x0026},   {"lt", 0x003C},    {"gt", 0x003E},    {"ndash", 0x2013}, {"mdash", 0x2014},
    {"lsquo", 0x2018}, {"rsquo", 0x2019}, {"ldquo", 0x201C}, {"rdquo", 0x201D}, {"bull", 0x2022},  {"hellip", 0x2026},
    {"euro", 0x20AC},  {"trade", 0x2122}, {"minus", 0x2212}, {"le", 0x2264},    {"ge", 0x2265},    {"ne", 0x2260},
    {"rarr", 0x2192},  {"larr", 0x2190},  {"apos", 0x0027}};

constexpr std::size_t kLongestReference = 10;

/// The character that a reference stands for, without its "&" and ";"; 0 for none.
std::uint32_t characterOf(std::string_view reference)
{
    if (reference.substr(0, 1) == "#") {
        const bool isHex = reference.substr(1, 1) == "x" || reference.substr(1, 1) == "X";
        const std::string_view digits = reference.substr(isHex ? 2 : 1);
        std::uint32_t code = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, isHex ? 16 : 10);
        return error == std::errc() && end == digits.data() + digits.size() ? code : 0;
    }
    for (std::size_t i = 0; i < std::size(kLatinNames); ++i)
        if (reference == kLatinNames[i])
            return static_cast<std::uint32_t>(0xA0 + i);
    for (const NamedCharacter &row : kOtherNames)
        if (reference == row.name)
            return row.codePoint;
    return 0;
}

}  // namespace

std::string withoutEntities(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const auto sign = std::min(text.find('&'), text.size());
        result += text.substr(0, sign);
        text.remove_prefix(sign);
        const auto end = text.substr(0, kLongestReference + 2).find(';');
        const std::uint32_t character = end == text.npos ? 0 : characterOf(text.substr(1, end - 1));
        if (character != 0)
            appendUtf8(result, character);
        else
            result += text.substr(0, 1);
        text.remove_prefix(std::min(character != 0 ? end + 1 : 1, text.size()));
    }
    return result;
}

}  // namespace penwright::chm
