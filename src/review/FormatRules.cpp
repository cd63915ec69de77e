#include "review/FormatRules.h"

#include <algorithm>
#include <iterator>

#include "core/Blanks.h"
#include "core/FormatYear.h"

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

constexpr int kOldest = 1986;
constexpr int kLatest = 2019;

constexpr FormatRules kFormats[]{
    {kOldest, kOlderLine, kOlderShapes, {}, {}},
    {1991, kOlderLine, kOlderShapes, kRequiredIn1991, kUnknownIn1991},
    {1995, kOlderLine, kOlderShapes, {}, kUnknownIn1995},
    {2002, kLineOf2002, kShapesOf2002, kRequiredIn2002, kUnknownIn2002},
    {kLatest, kLineOf2002, kShapesOf2002, {}, {}},
};

}  // namespace

const FormatRules &formatRules(std::string_view firstLine)
{
    const int named = formatYear(firstLine);
    const int other = withoutOuterBlanks(firstLine).starts_with("IES") ? kLatest : kOldest;
    const int year = named > 0 ? named : other;
    return *std::find_if(std::begin(kFormats), std::end(kFormats),
                         [year](const FormatRules &rules) { return rules.year == year; });
}

}  // namespace penwright
