#include "draft/DraftWords.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "core/CodePoints.h"

namespace penwright {
namespace {

constexpr std::size_t kLongestAbout = 60;  // bytes

constexpr std::array<std::string_view, 12> kMonths{"January",   "February", "March",    "April",
                                                   "May",       "June",     "July",     "August",
                                                   "September", "October",  "November", "December"};

std::string twoDigits(int number)
{
    return (number < 10 ? "0" : "") + std::to_string(number);
}

std::string momentText(const std::tm &time)
{
    const auto month = static_cast<std::size_t>(std::clamp(time.tm_mon, 0, 11));
    return std::to_string(time.tm_mday) + " " + std::string(kMonths[month]) + " " + twoDigits(time.tm_hour) + ":" +
           twoDigits(time.tm_min);
}

/// What a draft is about, short and on one line whatever was typed.
std::string shortAbout(const std::string &about)
{
    std::string text(withinBytes(about, kLongestAbout));
    if (text.size() < about.size())
        text += "...";
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return c < ' ' || c == 127; }, ' ');
    return text;
}

}  // namespace

std::string draftOffer(const DraftHead &head, const std::tm &time)
{
    const std::string about = head.about.empty() ? "" : " of " + shortAbout(head.about);
    return "Draft" + about + ", page " + std::to_string(head.page + 1) + ", " + momentText(time);
}

std::string lastFileOffer(const DraftHead &head, const std::tm &time)
{
    return "Start from " + (head.about.empty() ? "the last file" : shortAbout(head.about)) + ", " + momentText(time);
}

std::string putAsideText(int count)
{
    if (count <= 0)
        return "";
    if (count == 1)
        return "A draft could not be read and was put aside.";
    return std::to_string(count) + " drafts could not be read and were put aside.";
}

std::string takeEndText(TakeEnd end)
{
    switch (end) {
        case TakeEnd::Taken:
            break;
        case TakeEnd::InUse:
            return "Another wizard has taken this draft over.";
        case TakeEnd::Gone:
            return "This draft is not there any more.";
        case TakeEnd::Damaged:
            return "This draft could not be read and was put aside.";
        case TakeEnd::Failed:
            return "This draft cannot be read at the moment.";
    }
    return "";
}

std::string notKeptText(const std::string &reason)
{
    return "What you type is not kept as a draft: " + reason;
}

}  // namespace penwright
