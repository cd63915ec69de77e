#include <string>

#include "core/Ascii.h"
#include "grid/TableAxes.h"
#include "grid/TableLines.h"
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

}  // namespace

TableReading guessTable(std::string_view text)
{
    TableReading reading;
    const std::string_view beginning = sampleText(text);
    const TableSample sample = tableSample(beginning);
    reading.separator = sample.separator;
    if (sample.width == 0)
        return reading;
    reading.isPerKilolumen = namesKilolumen(beginning);
    findSigns(sample, reading);
    findAxes(sample, reading);
    return reading;
}

}  // namespace penwright
