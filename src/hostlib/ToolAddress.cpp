#include <penwright_host/ToolAddress.h>

#include <limits>
#include <string_view>
#include <utility>

#include "core/StartupState.h"
#include "hostlink/RecordText.h"

namespace penwright {

namespace {

/// What would cut the command line or a command short, the end of an argument included.
constexpr std::string_view kNotInText{",\r\n\0", 4};

std::string textProblem(const std::string &name, std::string_view text)
{
    if (text.empty())
        return "the " + name + " is empty";
    if (text.find_first_of(kNotInText) != std::string_view::npos)
        return "the " + name + " holds a comma or a line end";
    return {};
}

bool isValueOfRecord(std::string_view name)
{
    for (int fileNumber = 1; fileNumber <= kMaxFiles; ++fileNumber)
        for (const std::string_view word : kRecordWords)
            if (name == recordValueName(word, fileNumber))
                return true;
    return false;
}

}  // namespace

std::string addressProblem(const ToolAddress &address)
{
    if (address.window < 1 || address.window > std::numeric_limits<std::int32_t>::max())
        return "the window is " + std::to_string(address.window) + ", not 1 to 2147483647";
    if (address.openFiles < 0 || address.openFiles > std::numeric_limits<std::int16_t>::max())
        return "the number of files is " + std::to_string(address.openFiles) + ", not 0 to 32767";
    for (const auto &[name, text] :
         {std::pair{"inbox", address.inbox}, std::pair{"tag", address.tag}, std::pair{"section", address.section}})
        if (std::string problem = textProblem(name, text); !problem.empty())
            return problem;
    if (address.inbox == std::string(kToolName) + '|' + address.tag)
        return "the inbox is the tool's own";
    if (isValueOfRecord(address.inbox))
        return "the inbox is \"" + address.inbox + "\", a value of a record";
    return {};
}

}  // namespace penwright
