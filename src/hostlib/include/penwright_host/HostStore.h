#pragma once

#include <memory>
#include <string>

namespace penwright {

class SettingsStore;

/// The settings store through which a host and its tools speak, as one open connection for any number of tools. Used by
/// one thread at a time.
class HostStore {
public:
    /// Opens the store at `path`, or makes it. std::runtime_error that names file and reason when that fails.
    explicit HostStore(const std::string &path = userPath());
    HostStore(const HostStore &) = delete;
    HostStore &operator=(const HostStore &) = delete;
    ~HostStore();

    /// Where tools look: "Lumentor/settings.sqlite3" under $XDG_CONFIG_HOME, or under ~/.config.
    static std::string userPath();

private:
    friend class HostedTool;
    std::unique_ptr<SettingsStore> m_settings;
};

}  // namespace penwright
