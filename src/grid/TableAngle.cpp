#include "grid/TableAngle.h"

#include <algorithm>
#include <string>

#include "core/Ascii.h"
#include "core/NumberText.h"
#include "grid/TableLines.h"
#include "grid/TableNumber.h"

namespace penwright {
namespace {

/// Small letters of ASCII, without blanks, brackets and what else stands between words and numbers.
std::string lettersOf(std::string_view text)
{
    constexpr std::string_view kBetween = " \t()[]{}=:_.-\"'";
    std::string letters;
    for (const char c : text)
        if (kBetween.find(c) == std::string_view::npos)
            letters += lowerCase(c);
    return letters;
}

struct WordRow {
    std::string_view letters;
    AngleWord word;
};

/// Words that stand before an angle or over angles, in small letters; gamma, theta and phi by their Greek letters too.
constexpr WordRow kWords[]{
    {"c", AngleWord::Horizontal},
    {"h", AngleWord::Horizontal},
    {"cplane", AngleWord::Horizontal},
    {"cplanes", AngleWord::Horizontal},
    {"cebene", AngleWord::Horizontal},
    {"cebenen", AngleWord::Horizontal},
    {"cangle", AngleWord::Horizontal},
    {"cwinkel", AngleWord::Horizontal},
    {"plane", AngleWord::Horizontal},
    {"planes", AngleWord::Horizontal},
    {"plan", AngleWord::Horizontal},
    {"plano", AngleWord::Horizontal},
    {"piano", AngleWord::Horizontal},
    {"vlak", AngleWord::Horizontal},
    {"ebene", AngleWord::Horizontal},
    {"halfplane", AngleWord::Horizontal},
    {"halbebene", AngleWord::Horizontal},
    {"horizontal", AngleWord::Horizontal},
    {"horizontalangle", AngleWord::Horizontal},
    {"horizontalangles", AngleWord::Horizontal},
    {"horiz", AngleWord::Horizontal},
    {"hangle", AngleWord::Horizontal},
    {"lateral", AngleWord::Horizontal},
    {"lateralangle", AngleWord::Horizontal},
    {"azimuth", AngleWord::Horizontal},
    {"azimut", AngleWord::Horizontal},
    {"azimuthangle", AngleWord::Horizontal},
    {"phi", AngleWord::Horizontal},
    {"\xCF\x86", AngleWord::Horizontal},
    {"\xCF\x95", AngleWord::Horizontal},
    {"\xCE\xA6", AngleWord::Horizontal},
    {"g", AngleWord::Vertical},
    {"v", AngleWord::Vertical},
    {"gamma", AngleWord::Vertical},
    {"gammaangle", AngleWord::Vertical},
    {"gammawinkel", AngleWord::Vertical},
    {"\xCE\xB3", AngleWord::Vertical},
    {"\xCE\x93", AngleWord::Vertical},
    {"theta", AngleWord::Vertical},
    {"\xCE\xB8", AngleWord::Vertical},
    {"\xCF\x91", AngleWord::Vertical},
    {"vertical", AngleWord::Vertical},
    {"verticalangle", AngleWord::Vertical},
    {"verticalangles", AngleWord::Vertical},
    {"vert", AngleWord::Vertical},
    {"vangle", AngleWord::Vertical},
    {"elevation", AngleWord::Vertical},
    {"elevationangle", AngleWord::Vertical},
    {"zenith", AngleWord::Vertical},
    {"polar", AngleWord::Vertical},
    {"polarangle", AngleWord::Vertical},
    {"angle", AngleWord::Any},
    {"angles", AngleWord::Any},
    {"winkel", AngleWord::Any},
    {"deg", AngleWord::Any},
    {"degree", AngleWord::Any},
    {"degrees", AngleWord::Any},
    {"grad", AngleWord::Any},
    {"\xC2\xB0", AngleWord::Any},
    {"\xC2\xBA", AngleWord::Any},
};

/// Signs and words for degrees behind a number, or behind the name of an angle.
constexpr std::string_view kDegrees[]{"\xC2\xB0", "\xC2\xBA", "\xCB\x9A", "degrees", "degree", "deg", "grad"};

/// Takes a sign or a word for degrees from the end of letters, unless they are nothing else; whether there was one.
bool takeDegrees(std::string &letters)
{
    for (const std::string_view mark : kDegrees)
        if (letters.ends_with(mark) && letters.size() > mark.size()) {
            letters.resize(letters.size() - mark.size());
            return true;
        }
    return false;
}

AngleWord wordOf(std::string_view letters)
{
    const auto row = std::find_if(std::begin(kWords), std::end(kWords),
                                  [letters](const WordRow &r) { return r.letters == letters; });
    return row == std::end(kWords) ? AngleWord::None : row->word;
}

/// The angle that letters before a number name: "c", "plane", and both together as in "Plane C0" and "I(C0)".
AngleWord wordBefore(std::string_view letters)
{
    static constexpr std::string_view kIntensities[]{"i", "intensity"};
    const AngleWord word = wordOf(letters);
    if (word != AngleWord::None || !letters.ends_with('c'))
        return word;
    letters.remove_suffix(1);
    const bool isIntensity =
        std::find(std::begin(kIntensities), std::end(kIntensities), letters) != std::end(kIntensities);
    return isIntensity || wordOf(letters) == AngleWord::Horizontal ? AngleWord::Horizontal : AngleWord::None;
}

/// What an angle says besides its number.
struct AngleParts {
    std::string_view number;
    AngleWord word = AngleWord::None;
    bool isMarked = false;
};

std::optional<AngleParts> angleParts(std::string_view cell)
{
    AngleParts parts;
    std::size_t begin = 0;
    while (begin < cell.size() && !isDigit(cell[begin]))
        ++begin;
    if (begin == cell.size())
        return std::nullopt;
    const std::size_t end = cell.find_last_of("0123456789") + 1;
    const std::string behind = lettersOf(cell.substr(end));
    const bool hasDegrees = std::find(std::begin(kDegrees), std::end(kDegrees), behind) != std::end(kDegrees);
    if (!behind.empty() && !hasDegrees)
        return std::nullopt;
    // A sign or a point that belongs to the number stands at its digits.
    while (begin > 0 && (cell[begin - 1] == '.' || cell[begin - 1] == '-' || cell[begin - 1] == '+'))
        --begin;
    const std::string before = lettersOf(cell.substr(0, begin));
    const bool isMinus = std::find(kMinusSigns.begin(), kMinusSigns.end(), before) != kMinusSigns.end();
    parts.number = cell.substr(isMinus ? 0 : begin, end - (isMinus ? 0 : begin));
    parts.word = before.empty() || isMinus ? AngleWord::None : wordBefore(before);
    if (!before.empty() && !isMinus && parts.word == AngleWord::None)
        return std::nullopt;
    parts.isMarked = hasDegrees || parts.word != AngleWord::None;
    return parts;
}

/// Whether two planes are the halves of one.
bool areOpposite(std::string_view first, std::string_view second)
{
    const auto degreesOf = [](std::string_view number) {
        std::string plain(number);
        std::replace(plain.begin(), plain.end(), ',', '.');
        return isNumeric(plain) ? leadingNumber(plain) : 0;
    };
    return degreesOf(second) - degreesOf(first) == 180;
}

/// The first of two planes in one cell; any other cell as it is.
std::string_view firstPlane(std::string_view cell)
{
    static constexpr std::array<std::string_view, 5> kStrokes{"-", "/", "+", "\xE2\x88\x92", "\xE2\x80\x93"};
    const std::size_t digit = cell.find_first_of("0123456789");
    const std::string_view behind = cell.substr(std::min(digit, cell.size()));
    std::size_t stroke = std::string_view::npos;
    std::size_t length = 0;
    for (const std::string_view sign : kStrokes)
        if (const std::size_t place = behind.find(sign); place < stroke) {
            stroke = place;
            length = sign.size();
        }
    if (stroke == std::string_view::npos)
        return cell;
    stroke += digit;
    const std::optional<AngleParts> first = angleParts(withoutCellBlanks(cell.substr(0, stroke)));
    const std::optional<AngleParts> second = angleParts(withoutCellBlanks(cell.substr(stroke + length)));
    const bool areTwo =
        first && second && (first->word == AngleWord::Horizontal || areOpposite(first->number, second->number));
    return areTwo ? withoutCellBlanks(cell.substr(0, stroke)) : cell;
}

/// The one angle that a heading names, without a unit of intensities behind it, as "C0 [cd/klm]" has one. What then is
/// a bare number is a value.
std::string_view oneAngle(std::string_view cell)
{
    if (cell.find_first_of("dD") == std::string_view::npos)
        return firstPlane(cell);
    const std::size_t digit = cell.find_first_of("0123456789");
    const std::string letters = lowerCase(cell);
    std::size_t unit = letters.find("cd", std::min(digit, cell.size()));
    if (unit == std::string::npos)
        return firstPlane(cell);
    if (unit > 0 && (letters[unit - 1] == 'k' || letters[unit - 1] == 'm')) {
        --unit;
        if (letters.find('/', unit) != std::string::npos)
            return cell;  // no unit of a table is kcd/klm
    }
    constexpr std::string_view kBetween = " ([,/";
    const std::string_view angle = firstPlane(cell.substr(0, cell.find_last_not_of(kBetween, unit - 1) + 1));
    const std::optional<AngleParts> parts = angleParts(angle);
    return parts && parts->isMarked ? angle : cell;
}

}  // namespace

std::optional<TableAngle> tableAngle(std::string_view cell, const TableReading &reading)
{
    if (const std::optional<double> bare = tableNumber(cell, reading))
        return TableAngle{*bare, AngleWord::None, false};
    const std::optional<AngleParts> parts = angleParts(oneAngle(cell));
    const std::optional<double> degrees = parts ? tableNumber(parts->number, reading) : std::nullopt;
    if (!degrees)
        return std::nullopt;
    return TableAngle{*degrees, parts->word, parts->isMarked};
}

bool isLikeAngle(std::string_view cell)
{
    const std::optional<AngleParts> parts = angleParts(oneAngle(cell));
    return parts && isLikeNumber(parts->number);
}

AngleWord angleWord(std::string_view heading)
{
    std::string letters = lettersOf(heading);
    const AngleWord word = wordOf(letters);
    return word == AngleWord::None && takeDegrees(letters) ? wordOf(letters) : word;
}

bool isSummary(std::string_view heading)
{
    static constexpr std::string_view kMeans[]{"ave",
                                               "avg",
                                               "mean",
                                               "mittel",
                                               "durchschnitt",
                                               "moyen",
                                               "media",
                                               "prom",
                                               "gemiddeld",
                                               "total",
                                               "sum",
                                               "gesamt",
                                               "totaal",
                                               "somm",
                                               "\xC3\xB8",
                                               "\xC3\x98",
                                               "\xE2\x8C\x80",
                                               "\xE5\xB9\xB3\xE5\x9D\x87",  // average, in Chinese and Japanese
                                               "\xE5\x90\x88\xE8\xAE\xA1",
                                               "\xE5\x90\x88\xE8\xA8\x88"};  // sum
    static constexpr std::string_view kExtremes[]{"max", "maximum", "imax", "maxcd", "min", "minimum", "imin", "mincd"};
    static constexpr std::string_view kFluxes[]{"lumen", "flux", "lm", "zonal"};
    const std::string letters = lettersOf(heading);
    const auto isThere = [&letters](std::string_view word) { return letters.find(word) != std::string::npos; };
    // The unit of intensities has lumens in it too.
    const bool isIntensity = isThere("cd") || isThere("candela");
    // Whole words, for they are parts of many others.
    const bool isExtreme = std::find(std::begin(kExtremes), std::end(kExtremes), letters) != std::end(kExtremes);
    // A column of percents, but not one of values whose angle is named too.
    const bool isPercent = isThere("%") && std::none_of(letters.begin(), letters.end(), isDigit);
    return isExtreme || isPercent || std::any_of(std::begin(kMeans), std::end(kMeans), isThere) ||
           (!isIntensity && std::any_of(std::begin(kFluxes), std::end(kFluxes), isThere));
}

}  // namespace penwright
