#pragma once

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/Process.h"

namespace penwright::test {

/// A display with room for the host's window at twice its size, with or without a window manager.
class Screen {
public:
    explicit Screen(bool isManaged)
        : m_server({"Xvfb", "-displayfd", "1", "-screen", "0", "2600x1800x24", "-nolisten", "tcp", "-noreset"})
    {
        m_name = ":" + m_server.readLine().value_or("no display");
        if (!isManaged)
            return;
        m_manager = std::make_unique<Process>(std::vector<std::string>{"openbox"}, display());
        const auto manages = [this] {
            return Process({"xprop", "-root", "_NET_SUPPORTING_WM_CHECK"}, display()).readAll().find("window id") !=
                   std::string::npos;
        };
        if (!waitUntil(manages, std::chrono::seconds(20)))
            throw std::runtime_error("openbox does not start");
    }

    const std::string &name() const { return m_name; }

private:
    Process::Environment display() const { return {{"DISPLAY", m_name}}; }

    Process m_server;
    std::string m_name;
    std::unique_ptr<Process> m_manager;
};

inline Process::Environment environment(const std::string &display, const std::filesystem::path &home, int scale = 1)
{
    return {{"DISPLAY", display},
            {"QT_QPA_PLATFORM", ""},
            {"QT_SCALE_FACTOR", std::to_string(scale)},
            {"LSAN_OPTIONS", "print_suppressions=0:suppressions=" LEAK_SUPPRESSIONS},
            {"HOME", home.string()},
            {"XDG_RUNTIME_DIR", home.string()},
            {"XDG_CONFIG_HOME", (home / "config").string()},
            {"XDG_STATE_HOME", (home / "state").string()}};
}

}  // namespace penwright::test
