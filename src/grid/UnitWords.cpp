#include "grid/UnitWords.h"

#include <algorithm>
#include <string>

#include "core/Ascii.h"

namespace penwright {
namespace {

constexpr std::size_t kLongestUnit = 24;  // bytes, with the blanks and signs in it

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

/// How kilocandela per kilolumen begin, in small letters without blanks.
constexpr std::string_view kBothUnits[]{"kcd/klm",   "kcd/1000lm",  "kcd/1000lu",     "kcd/kilolumen",
                                        "kcdperklm", "kcdper1000l", "kcdperkilolumen"};

/// Whether kilocandela per kilolumen stand there, which is not "4000 K" above "cd/klm" nor "LVK [cd/klm]".
bool namesBoth(std::string_view text)
{
    const std::string letters = lowerCase(text);
    for (std::size_t at = letters.find("kcd"); at != std::string::npos; at = letters.find("kcd", at + 1)) {
        const std::string unit = squeezed(std::string_view(letters).substr(at, kLongestUnit));
        const bool isBegin = at == 0 || letters[at - 1] < 'a' || letters[at - 1] > 'z';
        const auto isBoth = [&unit](std::string_view both) { return unit.starts_with(both); };
        if (isBegin && std::any_of(std::begin(kBothUnits), std::end(kBothUnits), isBoth))
            return true;
    }
    return false;
}

ValueUnit intensityOf(std::string_view beginning)
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

/// What a unit that is no intensity is called, in small letters.
constexpr std::string_view kOtherUnits[]{"%", "percent", "prozent", "lx", "lux"};

/// What a line speaks of that is no unit of a table: "Efficiency [%]".
constexpr std::string_view kOtherFigures[]{"effic", "wirkungsgrad", "rendement", "ratio", "output", "humid", "power"};

bool isLetterOrDigit(char c)
{
    return (c >= 'a' && c <= 'z') || isDigit(c);
}

/// Whether the text before a unit makes it one of a table: "[", "(", ", " or "in".
bool leadsToUnit(std::string_view before)
{
    const std::size_t last = before.find_last_not_of(" \t");
    if (last == std::string_view::npos)
        return false;
    const std::string_view lead = before.substr(0, last + 1);
    const bool isWord = last + 1 < before.size() && (lead.ends_with(" in") || lead.ends_with(" en"));
    return isWord || lead.back() == '[' || lead.back() == '(' || lead.back() == ',';
}

/// Whether a word behind a comma has another behind it in its cell, as in a name: "Delta, Lux Lab".
bool goesOnBehindComma(std::string_view before, std::string_view behind)
{
    const std::size_t last = before.find_last_not_of(' ');
    const std::size_t next = behind.find_first_not_of(" \"");
    if (last == std::string_view::npos || before[last] != ',' || next == std::string_view::npos)
        return false;
    static constexpr std::string_view kWordsOfPlace[]{"at ", "in ", "on ", "bei ", "auf ", "en "};
    const std::string_view word = behind.substr(next);
    const bool isOfPlace = std::any_of(std::begin(kWordsOfPlace), std::end(kWordsOfPlace),
                                       [word](std::string_view place) { return word.starts_with(place); });
    const bool isWord =
        (word.front() >= 'a' && word.front() <= 'z') || (word.front() & 0x80) != 0 || word.front() == ',';
    return isWord && !isOfPlace;
}

/// Whether a line, in small letters, says that values are in a unit: by itself, not as that of a value in the line.
bool saysUnit(std::string_view line, std::string_view unit)
{
    for (std::size_t at = line.find(unit); at != std::string_view::npos; at = line.find(unit, at + 1)) {
        const std::string_view behind = line.substr(at + unit.size());
        const bool isEnd = behind.empty() || !isLetterOrDigit(behind.front());
        // A value may have a sign, of which any byte beyond ASCII is part.
        const auto isBetween = [](char c) {
            return std::string_view(" )]:=;,\t\"<>+-").find(c) != std::string_view::npos || (c & 0x80) != 0;
        };
        const auto next = std::find_if_not(behind.begin(), behind.end(), isBetween);
        const bool isBeforeValue = next != behind.end() && isDigit(*next);
        const std::string_view before = line.substr(0, at);
        const bool isName = unit.front() == 'l' && goesOnBehindComma(before, behind);
        if (isEnd && !isBeforeValue && !isName && leadsToUnit(before))
            return true;
    }
    return false;
}

/// Whether a line of units has one that is no intensity, and all other cells, but for the first, have it too.
bool isRowOfUnit(const std::vector<std::string_view> &cells, std::string_view unit)
{
    const auto isUnit = [unit](std::string_view cell) {
        const std::string letters = lowerCase(cell);
        return letters == unit || letters == "[" + std::string(unit) + "]" || letters == "(" + std::string(unit) + ")";
    };
    return cells.size() > 1 && std::all_of(cells.begin() + 1, cells.end(), isUnit);
}

bool namesOtherUnit(const SampleLine &line, TableSeparator separator)
{
    std::string text;
    for (const std::string_view cell : line.cells)
        text += lowerCase(cell) + (separator == TableSeparator::Blanks ? ' ' : '\t');
    const auto isThere = [&text](std::string_view word) { return text.find(word) != std::string::npos; };
    if (std::any_of(std::begin(kOtherFigures), std::end(kOtherFigures), isThere))
        return false;
    return std::any_of(std::begin(kOtherUnits), std::end(kOtherUnits),
                       [&](std::string_view unit) { return saysUnit(text, unit) || isRowOfUnit(line.cells, unit); });
}

bool namesCandela(const std::string &text)
{
    static constexpr std::string_view kNames[]{"cd",  "candela",     "candelas",    "kcd",
                                               "mcd", "kilocandela", "millicandela"};
    return std::any_of(std::begin(kNames), std::end(kNames),
                       [&text](std::string_view name) { return namesUnit(text, name); });
}

}  // namespace

ValueUnit unitOf(std::string_view beginning, const TableSample &sample, const TableReading &reading)
{
    if (namesBoth(beginning))
        return ValueUnit::Other;
    const ValueUnit unit = intensityOf(beginning);
    if (unit != ValueUnit::Candela || namesCandela(lowerCase(beginning)))
        return unit;
    // The names of columns are none of the whole table: those of percents are left out.
    const auto angles = static_cast<std::size_t>(reading.hasAngleRow ? reading.linesToSkip + 1 : 0);
    for (std::size_t at = 0; at < sample.first; ++at)
        if (sample.lines[at].number != angles && namesOtherUnit(sample.lines[at], sample.separator))
            return ValueUnit::Other;
    return unit;
}

}  // namespace penwright
