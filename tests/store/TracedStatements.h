#pragma once

#include <sqlite3.h>

#include <functional>
#include <string>

namespace penwright::test {

/// Hands every statement that a connection of this process begins to run to a routine, for connections opened while
/// this lives; one at a time.
class TracedStatements {
public:
    explicit TracedStatements(std::function<void(const std::string &sql)> onStatement)
    {
        s_onStatement = std::move(onStatement);
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(&trace));
    }
    TracedStatements(const TracedStatements &) = delete;
    TracedStatements &operator=(const TracedStatements &) = delete;
    ~TracedStatements()
    {
        sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&trace));
        s_onStatement = nullptr;
    }

private:
    static int trace(sqlite3 *database, const char **, const void *)
    {
        return sqlite3_trace_v2(database, SQLITE_TRACE_STMT, &begun, nullptr);
    }

    static int begun(unsigned, void *, void *, void *sql)
    {
        if (s_onStatement)
            s_onStatement(static_cast<const char *>(sql));
        return 0;
    }

    inline static std::function<void(const std::string &)> s_onStatement;
};

}  // namespace penwright::test
