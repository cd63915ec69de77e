#include "hostlink/HostPost.h"

#include <string>

#include "platform/SettingsStore.h"

namespace penwright {
namespace {

using namespace std::chrono_literals;

constexpr auto kLimit = 3s;

}  // namespace

int HostPost::PostToHost(std::string_view keyBase, std::string_view keySuffix, std::string_view text)
{
    std::string name(keyBase);
    if (!keySuffix.empty())
        name.append("|").append(keySuffix);
    m_services.store.write(m_start.SettingsApp, m_start.ExchangeSection, name, text);
    const auto taken = [&] { return m_services.store.peek(m_start.SettingsApp, m_start.ExchangeSection, name) == ""; };
    m_lastEnd = m_services.wait.until(taken, kLimit);
    return 0;
}

int HostPost::postCommand(std::string_view word)
{
    return PostToHost(m_start.HostInbox, "", std::string(word) + m_start.ToolName + "," + m_start.InstanceTag);
}

}  // namespace penwright
