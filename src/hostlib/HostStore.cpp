#include <penwright_host/HostStore.h>

#include "core/StartupState.h"
#include "hostlib/OwnSection.h"
#include "platform/sqlite/SqliteSettingsStore.h"

namespace penwright {

HostStore::HostStore(const std::string &path) : m_settings(std::make_unique<SqliteSettingsStore>(path)) {}

HostStore::~HostStore() = default;

std::string HostStore::userPath()
{
    return SqliteSettingsStore::userPath();
}

std::string HostStore::ownSection(std::string_view host, std::string_view tag)
{
    return ownSectionName(host, tag);
}

int HostStore::removeLeftSections(std::string_view host)
{
    const std::string application = StartupState().SettingsApp;
    int removed = 0;
    for (const std::string &section : m_settings->sections(application))
        if (isLeftSection(section, host)) {
            m_settings->removeSection(application, section);
            ++removed;
        }
    return removed;
}

}  // namespace penwright
