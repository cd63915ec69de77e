#pragma once

#include <memory>
#include <string>
#include <string_view>

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

    /// A name for the section of one tool that tells whose it is: `host`, this process and `tag`. Two hosts, and two
    /// processes of one, never get the same; two tools of one process need tags of their own.
    static std::string ownSection(std::string_view host, std::string_view tag);

    /// Removes the sections that `ownSection` has named for `host` in processes that are gone, killed ones: to be
    /// called when the host starts. Sections of other hosts and of processes that run stay, and those of processes
    /// that cannot be seen from here, as those in a container. How many were removed.
    int removeLeftSections(std::string_view host);

private:
    friend class HostedTool;
    std::unique_ptr<SettingsStore> m_settings;
};

}  // namespace penwright
