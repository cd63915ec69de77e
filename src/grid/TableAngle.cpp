#include "grid/TableAngle.h"

#include <algorithm>
#include <string>

#include "core/Ascii.h"
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
    {"ebene", AngleWord::Horizontal},
    {"halfplane", AngleWord::Horizontal},
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

AngleWord wordOf(const std::string &letters)
{
    const auto row = std::find_if(std::begin(kWords), std::end(kWords),
                                  [&letters](const WordRow &r) { return r.letters == letters; });
    return row == std::end(kWords) ? AngleWord::None : row->word;
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
    parts.word = before.empty() || isMinus ? AngleWord::None : wordOf(before);
    if (!before.empty() && !isMinus && parts.word == AngleWord::None)
        return std::nullopt;
    parts.isMarked = hasDegrees || parts.word != AngleWord::None;
    return parts;
}

/// The first of two planes in one cell; any other cell as it is.
std::string_view firstPlane(std::string_view cell)
{
    const std::size_t digit = cell.find_first_of("0123456789");
    const std::size_t stroke = digit == std::string_view::npos ? digit : cell.find_first_of("-/", digit);
    if (stroke == std::string_view::npos)
        return cell;
    const std::optional<AngleParts> first = angleParts(withoutCellBlanks(cell.substr(0, stroke)));
    const std::optional<AngleParts> second = angleParts(withoutCellBlanks(cell.substr(stroke + 1)));
    const bool areTwo = first && second && first->word == AngleWord::Horizontal;
    return areTwo ? withoutCellBlanks(cell.substr(0, stroke)) : cell;
}

}  // namespace

std::optional<TableAngle> tableAngle(std::string_view cell, const TableReading &reading)
{
    const std::optional<AngleParts> parts = angleParts(firstPlane(cell));
    const std::optional<double> degrees = parts ? tableNumber(parts->number, reading) : std::nullopt;
    if (!degrees)
        return std::nullopt;
    return TableAngle{*degrees, parts->word, parts->isMarked};
}

bool isLikeAngle(std::string_view cell)
{
    const std::optional<AngleParts> parts = angleParts(firstPlane(cell));
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
    static constexpr std::string_view kMeans[]{"ave",   "avg",      "mean",     "mittel",      "durchschnitt",
                                               "moyen", "media",    "prom",     "gemiddeld",   "total",
                                               "sum",   "\xC3\xB8", "\xC3\x98", "\xE2\x8C\x80"};
    static constexpr std::string_view kFluxes[]{"lumen", "flux", "lm", "zonal"};
    const std::string letters = lettersOf(heading);
    const auto isThere = [&letters](std::string_view word) { return letters.find(word) != std::string::npos; };
    // The unit of intensities has lumens in it too.
    const bool isIntensity = isThere("cd") || isThere("candela");
    return std::any_of(std::begin(kMeans), std::end(kMeans), isThere) ||
           (!isIntensity && std::any_of(std::begin(kFluxes), std::end(kFluxes), isThere));
}

}  // namespace penwright
