#include "hostlink/HostPost.h"

#include <string>

#include "platform/SettingsStore.h"

namespace penwright {
namespace {

using namespace std::chrono_literals;

constexpr auto kLimit = 3s;

}  // namespace

WaitEnd HostPost::post(std::string_view name, std::string_view text)
{
    m_store.write(m_start.SettingsApp, m_start.ExchangeSection, name, text);
    const auto isTaken = [&] { return m_store.peek(m_start.SettingsApp, m_start.ExchangeSection, name) == ""; };
    return m_wait.until(isTaken, kLimit);
}

WaitEnd HostPost::postCommand(std::string_view word)
{
    return post(m_start.HostInbox, std::string(word) + m_start.ToolName + "," + m_start.InstanceTag);
}

int HostPost::PostToHost(std::string_view keyBase, std::string_view keySuffix, std::string_view text)
{
    std::string name(keyBase);
    if (!keySuffix.empty())
        name.append("|").append(keySuffix);
    post(name, text);
    return 0;
}

}  // namespace penwright
