#pragma once

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "support/ForeignLines.h"

namespace penwright::test {

using namespace std::chrono_literals;
using Milliseconds = std::chrono::milliseconds;

/// Asks `condition` until it answers true; false once `bound` has passed.
template <typename Condition>
bool waitUntil(Condition condition, Milliseconds bound = 30s)
{
    const auto end = std::chrono::steady_clock::now() + bound;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(2ms);
    }
    return true;
}

/// A child process whose standard input and output are pipes; standard error stays the test's own unless it is joined
/// to the output, without its foreign lines, or dropped. Killed, if it still runs, when this object goes.
class Process {
public:
    using Environment = std::vector<std::pair<std::string, std::string>>;
    enum class Errors { Inherited, Joined, Dropped };

    explicit Process(const std::vector<std::string> &command, const Environment &added = {},
                     Errors errors = Errors::Inherited)
        : m_errors(errors)
    {
        int input[2];
        int output[2];
        if (pipe2(input, O_CLOEXEC) != 0 || pipe2(output, O_CLOEXEC) != 0)
            throw std::runtime_error("no pipe");
        m_pid = fork();
        if (m_pid == 0) {
            dup2(input[0], STDIN_FILENO);
            dup2(output[1], STDOUT_FILENO);
            if (errors == Errors::Joined)
                dup2(output[1], STDERR_FILENO);
            if (errors == Errors::Dropped)
                dup2(open("/dev/null", O_WRONLY | O_CLOEXEC), STDERR_FILENO);
            run(command, added);
        }
        close(input[0]);
        close(output[1]);
        m_input = input[1];
        m_output = output[0];
    }
    Process(const Process &) = delete;
    Process &operator=(const Process &) = delete;
    ~Process()
    {
        if (!m_status) {
            signal(SIGKILL);
            waitForEnd(10s);
        }
        close(m_input);
        close(m_output);
    }

    pid_t pid() const { return m_pid; }
    void signal(int number) const { kill(m_pid, number); }

    void writeLine(const std::string &line)
    {
        const std::string text = line + "\n";
        if (write(m_input, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
            throw std::runtime_error("the process does not read");
    }

    /// The next line of output without its end; nothing when none comes in time or the output has ended.
    std::optional<std::string> readLine(Milliseconds bound = 60s)
    {
        const auto end = std::chrono::steady_clock::now() + bound;
        std::string line;
        do {
            while (m_unread.find('\n') == std::string::npos)
                if (!readMore(end))
                    return std::nullopt;
            const auto length = m_unread.find('\n');
            line = m_unread.substr(0, length);
            m_unread.erase(0, length + 1);
        } while (m_errors == Errors::Joined && isForeignLine(line));
        return line;
    }

    /// All output up to its end.
    std::string readAll(Milliseconds bound = 60s)
    {
        const auto end = std::chrono::steady_clock::now() + bound;
        while (readMore(end)) {
        }
        const std::string all = std::exchange(m_unread, {});
        return m_errors == Errors::Joined ? withoutForeignLines(all) : all;
    }

    /// The exit status, or minus the number of the signal that ended the process; nothing when it goes on running.
    std::optional<int> waitForEnd(Milliseconds bound = 60s)
    {
        waitUntil([this] { return hasEnded(); }, bound);
        return m_status;
    }

    bool hasEnded()
    {
        int status = 0;
        if (!m_status && waitpid(m_pid, &status, WNOHANG) == m_pid)
            m_status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
        return m_status.has_value();
    }

private:
    [[noreturn]] static void run(const std::vector<std::string> &command, const Environment &added)
    {
        prctl(PR_SET_PDEATHSIG, SIGKILL);  // a test that is killed leaves nothing behind
        for (const int number : {SIGHUP, SIGINT, SIGTERM})
            ::signal(number, SIG_DFL);  // whatever the test itself was told to ignore, under nohup for one
        for (const auto &[name, value] : added)
            setenv(name.c_str(), value.c_str(), 1);
        std::vector<char *> arguments;
        for (const std::string &word : command)
            arguments.push_back(const_cast<char *>(word.c_str()));
        arguments.push_back(nullptr);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }

    bool readMore(std::chrono::steady_clock::time_point end)
    {
        const auto left = std::chrono::duration_cast<Milliseconds>(end - std::chrono::steady_clock::now());
        pollfd ready{m_output, POLLIN, 0};
        if (left.count() <= 0 || poll(&ready, 1, static_cast<int>(left.count())) <= 0)
            return false;
        char bytes[4096];
        const ssize_t count = read(m_output, bytes, sizeof bytes);
        if (count > 0)
            m_unread.append(bytes, static_cast<std::size_t>(count));
        return count > 0;
    }

    Errors m_errors;
    pid_t m_pid = -1;
    int m_input = -1;
    int m_output = -1;
    std::string m_unread;
    std::optional<int> m_status;
};

}  // namespace penwright::test
