#include <penwright_host/HostStore.h>

#include "platform/sqlite/SqliteSettingsStore.h"

namespace penwright {

HostStore::HostStore(const std::string &path) : m_settings(std::make_unique<SqliteSettingsStore>(path)) {}

HostStore::~HostStore() = default;

std::string HostStore::userPath()
{
    return SqliteSettingsStore::userPath();
}

}  // namespace penwright
