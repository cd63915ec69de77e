#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <memory>
#include <string>

#include "platform/RunTimeError.h"
#include "platform/sqlite/SqliteSettingsStore.h"
#include "support/Process.h"
#include "support/TempFolder.h"

namespace penwright::test {

/// Another process that shares the store.
class Peer {
public:
    explicit Peer(const std::string &path) : m_process({STORE_PEER, path}) {}

    void tell(const std::string &line) { m_process.writeLine(line); }
    std::string answer() { return m_process.readLine(60s).value_or("(no answer)"); }

    /// Runs SQL and returns its rows, each ended by a line end; throws what went wrong.
    std::string sql(const std::string &statements)
    {
        tell("sql " + statements);
        std::string rows;
        for (std::string line = answer(); line != "ok"; line = answer()) {
            if (line.rfind("error: ", 0) == 0 || line == "(no answer)")
                throw std::runtime_error(statements + ": " + line);
            rows += line + "\n";
        }
        return rows;
    }

    Process &process() { return m_process; }

private:
    Process m_process;
};

/// A store in a folder of its own, opened by the test itself as the tool opens it, and by other processes.
class StoreTest : public testing::Test {
protected:
    std::unique_ptr<SqliteSettingsStore> open() const { return std::make_unique<SqliteSettingsStore>(path); }

    void write(const std::string &name, std::string_view data) { store().write("Lumentor_PE", "Sec", name, data); }
    std::string read(const std::string &name) { return store().read("Lumentor_PE", "Sec", name, "(none)"); }
    std::optional<std::string> peek(const std::string &name) { return store().peek("Lumentor_PE", "Sec", name); }
    std::string pop(const std::string &name) { return store().pop("Lumentor_PE", "Sec", name); }

    SqliteSettingsStore &store()
    {
        if (!m_store)
            m_store = open();
        return *m_store;
    }
    void closeStore() { m_store.reset(); }

    TempFolder folder;
    const std::string path = folder.file("config/Lumentor/settings.sqlite3");

private:
    std::unique_ptr<SqliteSettingsStore> m_store;
};

/// The number of the error that `action` raises, with a new line and its description; "no error".
template <typename Action>
std::string errorOf(Action action)
{
    try {
        action();
        return "no error";
    } catch (const RunTimeError &error) {
        return std::to_string(error.number()) + "\n" + error.description();
    }
}

/// Runs `body` in a child process and returns the text that it returns; "(died)" when it does not end by itself.
inline std::string inChild(const std::function<std::string()> &body)
{
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    const pid_t child = fork();
    if (child == 0) {
        const std::string text = body();
        const bool sent = write(ends[1], text.data(), text.size()) == static_cast<ssize_t>(text.size());
        _exit(sent ? 0 : 1);
    }
    close(ends[1]);
    std::string text;
    char bytes[4096];
    for (ssize_t count; (count = ::read(ends[0], bytes, sizeof bytes)) > 0;)
        text.append(bytes, static_cast<std::size_t>(count));
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? text : "(died)";
}

/// The same as a user for whom modes count: they do not for the superuser.
inline std::string inOrdinaryChild(const std::function<std::string()> &body)
{
    return inChild([&body]() -> std::string {
        constexpr int kNobody = 65534;
        if (geteuid() == 0 && (setgid(kNobody) != 0 || setuid(kNobody) != 0))
            return "cannot become an ordinary user";
        return body();
    });
}

}  // namespace penwright::test
