#include "review/FormatRules.h"

#include <algorithm>
#include <iterator>

#include "core/Blanks.h"

namespace penwright {
namespace {

using Names = std::string_view;

constexpr Names kShapesOf2002[]{"000", "++0", "+++", "--0", "--+", "---", "-+-", "+--", "-0-"};
constexpr Names kOlderShapes[]{"000", "++0", "+++", "-00", "-0+", "-0-", "0+-", "+0-", "-++", "+-+", "-+-", "+--"};

constexpr Names kRequiredIn2002[]{"[TEST]", "[TESTLAB]", "[ISSUEDATE]", "[MANUFAC]"};
constexpr Names kRequiredIn1991[]{"[TEST]", "[MANUFAC]"};

constexpr Names kUnknownIn2002[]{"[DATE]", "[BLOCK]", "[ENDBLOCK]"};
constexpr Names kUnknownIn1995[]{"[TESTLAB]", "[TESTDATE]", "[ISSUEDATE]", "[LAMPPOSITION]"};
constexpr Names kUnknownIn1991[]{"[TESTLAB]",   "[TESTDATE]", "[ISSUEDATE]", "[LAMPPOSITION]",
                                 "[NEARFIELD]", "[OTHER]",    "[SEARCH]"};

constexpr int kOlderLine = 80;
constexpr int kLineOf2002 = 253;

constexpr FormatRules kFormats[]{
    {"IESNA:LM-63-2002", "2002", kLineOf2002, kShapesOf2002, kRequiredIn2002, kUnknownIn2002},
    {"IESNA:LM-63-1995", "1995", kOlderLine, kOlderShapes, {}, kUnknownIn1995},
    {"IESNA91", "1991", kOlderLine, kOlderShapes, kRequiredIn1991, kUnknownIn1991},
};
constexpr FormatRules kLaterFormat{"", "", kLineOf2002, kShapesOf2002, {}, {}};
constexpr FormatRules kOldestFormat{"", "", kOlderLine, kOlderShapes, {}, {}};

}  // namespace

const FormatRules &formatRules(std::string_view firstLine)
{
    const std::string_view line = withoutOuterBlanks(firstLine);
    const auto format = std::find_if(std::begin(kFormats), std::end(kFormats),
                                     [line](const FormatRules &rules) { return rules.versionLine == line; });
    if (format != std::end(kFormats))
        return *format;
    return line.starts_with("IES") ? kLaterFormat : kOldestFormat;
}

}  // namespace penwright
