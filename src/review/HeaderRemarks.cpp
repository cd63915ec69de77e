#include <algorithm>

#include "core/Blanks.h"
#include "core/CodePoints.h"
#include "core/NumberText.h"
#include "review/RemarkRules.h"
#include "review/ShownNumber.h"

namespace penwright {
namespace {

std::string_view keyOf(std::string_view line)
{
    const std::size_t end = line.starts_with('[') ? line.find(']') : std::string_view::npos;
    return end == std::string_view::npos ? std::string_view() : line.substr(0, end + 1);
}

bool isAscii(std::string_view line)
{
    return std::all_of(line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

struct KeywordLine {
    int row = 0;  ///< of the first line that says something, or the last one that does not; 0 without a line
    bool isFilled = false;
};

KeywordLine lineOf(const PhotometricRecord &record, std::string_view keyword)
{
    KeywordLine line;
    for (int i = 1; i <= record.Keywords.size() && !line.isFilled; ++i)
        if (keyOf(record.Keywords(i)) == keyword) {
            const auto value = std::string_view(record.Keywords(i)).substr(keyword.size());
            line = {i, !withoutOuterBlanks(value).empty()};
        }
    return line;
}

}  // namespace

void checkKeywords(const Reviewed &file, RuleRemarks &remarks)
{
    const std::string year = std::to_string(file.format.year);
    for (const std::string_view keyword : file.format.required) {
        const KeywordLine line = lineOf(file.record, keyword);
        if (line.row == 0)
            remarks.add({RecordField::Keywords},
                        [&] { return std::string(keyword) + " is missing; the " + year + " format requires it."; });
        else if (!line.isFilled)
            remarks.add({RecordField::Keywords, line.row},
                        [&] { return std::string(keyword) + " is empty; the " + year + " format requires it."; });
    }
    const auto &unknown = file.format.unknown;
    for (int row = 1; row <= file.record.Keywords.size(); ++row) {
        const std::string_view key = keyOf(file.record.Keywords(row));
        if (std::find(unknown.begin(), unknown.end(), key) != unknown.end())
            remarks.add({RecordField::Keywords, row},
                        [&] { return std::string(key) + " is unknown to the " + year + " format."; });
    }
}

void checkKeywordText(const Reviewed &file, RuleRemarks &remarks)
{
    for (int row = 1; row <= file.record.Keywords.size(); ++row) {
        const std::string &line = file.record.Keywords(row);
        const RecordPlace place{RecordField::Keywords, row};
        const std::string begin = "Row " + std::to_string(row);
        if (line.find("TILT") != std::string::npos)
            remarks.add(place, [&] { return begin + " contains TILT; some programs stop there."; });
        if (!isAscii(line))
            remarks.add(place, [&] { return begin + " has letters beyond ASCII; some programs garble them."; });
        if (withoutOuterBlanks(line).empty())
            remarks.add(place, [&] { return begin + " is empty; some programs stop there."; });
        if (const int characters = codePointCount(line); characters > file.format.mostCharacters)
            remarks.add(place, [&] {
                return begin + " has " + std::to_string(characters) + " characters; some programs take only " +
                       std::to_string(file.format.mostCharacters) + ".";
            });
    }
}

void checkTiltData(const Reviewed &file, RuleRemarks &remarks)
{
    const PhotometricRecord &record = file.record;
    if (!record.TiltIncl)
        return;
    const int count = std::min({int{record.NumTiltAngles}, record.TiltAngles.size(), record.TiltMultipliers.size()});
    bool isToldWithAFactor = false;
    for (int i = 1; i <= count; ++i) {
        const float factor = record.TiltMultipliers(i);
        if (factor != 0 && !(factor > 1.5F) && (i > 1 || factor == 1))
            continue;
        isToldWithAFactor = true;
        remarks.add({RecordField::TiltMultipliers, i}, [&] {
            return "Many programs refuse tilt data; the factor at " + generalText(record.TiltAngles(i)) +
                   " degrees is " + typedText(double{factor}) + (i == 1 ? ", the first one should be 1." : ".");
        });
    }
    if (!isToldWithAFactor)
        remarks.add({RecordField::TiltIncl}, [] { return std::string("Many programs refuse tilt data."); });
}

}  // namespace penwright
