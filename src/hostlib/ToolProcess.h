#pragma once

#include <sys/types.h>

#include <string>

namespace penwright {

/// A tool's process. Its standard input is empty, its output the host's own.
class ToolProcess {
public:
    ToolProcess() = default;
    ToolProcess(const ToolProcess &) = delete;
    ToolProcess &operator=(const ToolProcess &) = delete;

    /// Kills the process if it still runs.
    ~ToolProcess();

    /// Starts `program`, looked for in $PATH when it has no slash, with one argument. std::runtime_error with the
    /// reason when it cannot be started.
    void start(const std::string &program, const std::string &argument);

    pid_t id() const { return m_id; }
    bool isRunning() const { return m_id > 0 && !m_hasEnded; }

    /// Looks whether a process that was running has ended.
    bool hasEnded();

    /// Exit status of a process that has ended by itself, -1 otherwise.
    int exitStatus() const { return m_exitStatus; }

    /// Ends the process at once; does nothing once it has been seen to have ended.
    void kill();

    /// The same, and returns when the process is gone.
    void killAndWait();

private:
    pid_t m_id = -1;
    bool m_hasEnded = false;
    int m_exitStatus = -1;
};

}  // namespace penwright
