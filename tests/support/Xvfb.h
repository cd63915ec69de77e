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
    enum class Manager { None, Openbox };

    explicit Xvfb(Manager manager = Manager::None)
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
        if (manager == Manager::Openbox)
            startOpenbox();
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

    void startOpenbox()
    {
        m_manager = std::make_unique<Process>(std::vector<std::string>{"openbox"});
        const auto manages = [] {
            return Process({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"}).readAll().find("window id") !=
                   std::string::npos;
        };
        if (!waitUntil(manages, 20s))
            throw std::runtime_error("openbox does not start");
    }

    TempFolder m_home;
    Process m_server;
    std::string m_display;
    std::unique_ptr<Process> m_manager;
};

}  // namespace penwright::test
