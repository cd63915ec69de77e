#pragma once

#include <cstdint>
#include <sstream>
#include <stdexcept>
#include <string>

#include "support/Process.h"

namespace penwright::test {

/// A foreign process with a window that the wizard can be embedded in.
class HostProcess {
public:
    enum class Shape { Plain, Nested };

    explicit HostProcess(Shape shape = Shape::Plain) : m_process({BARE_HOST, shape == Shape::Nested ? "nested" : ""})
    {
        std::istringstream line(m_process.readLine().value_or(""));
        std::string word;
        if (!(line >> word >> m_window >> m_topWindow))
            throw std::runtime_error("the bare host does not start");
    }

    std::uint32_t window() const { return m_window; }
    std::uint32_t topWindow() const { return m_topWindow; }

    /// Returns once the display has carried out the command.
    void obey(const std::string &command)
    {
        m_process.writeLine(command);
        if (m_process.readLine() != "done")
            throw std::runtime_error("the bare host does not answer");
    }

    void kill() { m_process.signal(SIGKILL); }

private:
    Process m_process;
    std::uint32_t m_window = 0;
    std::uint32_t m_topWindow = 0;
};

}  // namespace penwright::test
