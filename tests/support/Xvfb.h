#pragma once

#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>

#include "support/Process.h"
#include "support/TempFolder.h"

namespace penwright::test {

/// An X display of its own for one test process, which picks a free number, and a home folder that is not the user's.
/// Sets DISPLAY, HOME and the XDG folders, so it must be made before the toolkit reads them.
class Xvfb {
public:
    /// `manager` is the command that starts a window manager, as a shell reads it; "" for none.
    explicit Xvfb(const std::string &manager = "")
        : m_server({"Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset", "-r"},
                   {}, Process::Errors::Dropped)
    {
        const auto number = m_server.readLine();
        if (!number)
            throw std::runtime_error("Xvfb does not start");
        set("DISPLAY", ":" + *number);
        set("HOME", m_home.path().string());
        for (const char *name :
             {"XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            set(name, m_home.file(name));
        std::filesystem::create_directory(m_home.file("XDG_RUNTIME_DIR"));
        std::filesystem::permissions(m_home.file("XDG_RUNTIME_DIR"), std::filesystem::perms::owner_all);
        if (!manager.empty())
            startManager(manager);
    }

    const std::string &display() const { return m_display; }
    const std::filesystem::path &home() const { return m_home.path(); }

private:
    void set(const std::string &name, const std::string &value)
    {
        if (name == "DISPLAY")
            m_display = value;
        setenv(name.c_str(), value.c_str(), 1);
    }

    void startManager(const std::string &command)
    {
        m_manager = std::make_unique<Process>(std::vector<std::string>{"sh", "-c", "exec " + command});
        const auto manages = [] {
            return Process({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"}).readAll().find("window id") !=
                   std::string::npos;
        };
        if (!waitUntil(manages, 60s))
            throw std::runtime_error("the window manager does not start: " + command);
    }

    TempFolder m_home;
    Process m_server;
    std::string m_display;
    std::unique_ptr<Process> m_manager;
};

/// The command of the window manager that tests are to run under, from the environment; "" for none.
inline std::string managerAskedFor()
{
    const char *manager = std::getenv("PENWRIGHT_TEST_MANAGER");
    return manager ? manager : "";
}

}  // namespace penwright::test
