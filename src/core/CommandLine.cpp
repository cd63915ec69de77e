#include "core/CommandLine.h"

#include "core/NumberText.h"
#include "core/SplitCommandText.h"

namespace penwright {

void parseCommandLine(std::string_view commandLine, StartupState &start)
{
    const SplitText split = SplitCommandText(commandLine);
    if (split.fieldCount != 6)
        return;
    const auto field = [&split](int number) { return split.table(1, number); };
    const std::int32_t hostWindow = toInt32(leadingNumber(field(1)));
    const bool embed = leadingNumber(field(2)) != 0;
    const std::int16_t openFiles = toInt16(leadingNumber(field(5)));
    start.HostWindow = hostWindow;
    start.EmbedInHost = embed;
    start.HostInbox = field(3);
    start.InstanceTag = field(4);
    start.OpenFileCount = openFiles;
    start.ExchangeSection = field(6);
}

std::int32_t hostWindowOf(std::string_view commandLine)
{
    const SplitText split = SplitCommandText(commandLine);
    try {
        return split.lineCount > 0 ? toInt32(leadingNumber(split.table(1, 1))) : 0;
    } catch (const RunTimeError &) {
        return 0;
    }
}

}  // namespace penwright
