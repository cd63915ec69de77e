#pragma once

#include <chrono>
#include <functional>
#include <utility>

namespace penwright {

/// How long a tool waits for somebody to want something of it, where no host's window tells by its end that nobody
/// will.
class Patience {
public:
    using Time = std::chrono::steady_clock::time_point;

    /// Tells the time; a clock that only runs forward.
    using Clock = std::function<Time()>;

    static constexpr std::chrono::minutes kLimit{10};

    /// Begins to wait.
    explicit Patience(Clock clock) : m_clock(std::move(clock)), m_since(m_clock()) {}

    /// Somebody wanted something: begins to wait anew.
    void renew() { m_since = m_clock(); }

    bool isOver() const { return m_clock() - m_since >= kLimit; }

private:
    Clock m_clock;
    Time m_since;
};

}  // namespace penwright
