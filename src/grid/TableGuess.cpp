#include <algorithm>
#include <string>

#include "core/Ascii.h"
#include "grid/TableAxes.h"
#include "grid/TableLines.h"
#include "grid/TableListGuess.h"
#include "grid/TableSample.h"
#include "grid/TableSigns.h"
#include "grid/TableText.h"

namespace penwright {
namespace {

/// The letters, digits and strokes of a text, in small letters, so that "cd / 1.000 lm" is "cd/1000lm".
std::string squeezed(std::string_view text)
{
    std::string letters;
    for (const char c : lowerCase(text))
        if ((c >= 'a' && c <= 'z') || isDigit(c) || c == '/')
            letters += c;
    return letters;
}

/// Whether a unit per kilolumen stands there. "10 W / 1000 lm" is no such unit, but says what the lamps give.
bool namesKilolumen(std::string_view text)
{
    static constexpr std::string_view kUnits[]{"/klm",
                                               "cdklm",
                                               "perklm",
                                               "proklm",
                                               "kilolumen",
                                               "cd/1000lm",
                                               "cd/1000lumen",
                                               "candela/1000lm",
                                               "candela/1000lumen",
                                               "candelas/1000lm",
                                               "candelas/1000lumen",
                                               "per1000lumen",
                                               "per1000lm",
                                               "per1000lamplumen",
                                               "pro1000lm"};
    const std::string letters = squeezed(text);
    for (const std::string_view word : kUnits)
        if (letters.find(word) != std::string::npos)
            return true;
    return false;
}

/// Whether a unit stands there by itself, as the unit of a table does and that of one value does not: "I [kcd]", but
/// neither "2.48 kcd" nor "Imax [kcd]: 2.48".
bool namesUnit(const std::string &text, std::string_view unit)
{
    const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
    // "C0 kcd" and "(C0)/kcd" are angles over values in that unit, "2.48 kcd" is a value.
    const auto endsWithValue = [&](std::string_view before) {
        const std::size_t last = before.find_last_not_of(' ');
        if (last == std::string_view::npos || !isDigit(before[last]))
            return false;
        const std::size_t first = before.find_last_not_of("0123456789.,", last);
        return first == std::string_view::npos || !isLetter(before[first]);
    };
    for (std::size_t at = text.find(unit); at != std::string::npos; at = text.find(unit, at + 1)) {
        const std::size_t end = at + unit.size();
        const bool isBegin = at == 0 || (!isLetter(text[at - 1]) && !isDigit(text[at - 1]));
        const bool isEnd = end == text.size() || (!isLetter(text[end]) && !isDigit(text[end]) && text[end] != '/');
        const std::size_t behind = text.find_first_not_of(" )]:=;,\t", end);
        const bool isBeforeValue = behind != std::string::npos && isDigit(text[behind]);
        if (isBegin && isEnd && !isBeforeValue && !endsWithValue(std::string_view(text).substr(0, at)))
            return true;
    }
    return false;
}

ValueUnit unitOf(std::string_view beginning)
{
    if (namesKilolumen(beginning))
        return ValueUnit::PerKilolumen;
    const std::string text = lowerCase(beginning);
    const auto isOneOf = [&text](std::initializer_list<std::string_view> units) {
        return std::any_of(units.begin(), units.end(),
                           [&text](std::string_view unit) { return namesUnit(text, unit); });
    };
    if (isOneOf({"cd"}))
        return ValueUnit::Candela;
    if (isOneOf({"kcd", "kilocandela", "kilocandelas"}))
        return ValueUnit::Kilocandela;
    const bool isMilli = isOneOf({"millicandela", "millicandelas"}) || namesUnit(std::string(beginning), "mcd");
    return isMilli ? ValueUnit::Millicandela : ValueUnit::Candela;  // "MCD" is a name, and "Mcd" is no thousandth
}

}  // namespace

TableReading guessTable(std::string_view text)
{
    TableReading reading;
    const std::string_view beginning = sampleText(text);
    const TableSample sample = tableSample(beginning);
    reading.separator = sample.separator;
    if (sample.width == 0)
        return reading;
    reading.unit = unitOf(beginning);
    findSigns(sample, reading);
    if (!findList(sample, text, reading))
        findAxes(sample, reading);
    return reading;
}

}  // namespace penwright
