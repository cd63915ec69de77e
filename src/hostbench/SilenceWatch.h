#pragma once

#include <chrono>
#include <functional>

namespace penwright {

/// Knows when a tool has fallen silent: it has taken no command for 5 seconds though one waits. A tool that has taken
/// all of them cannot be told from one that is stopped, so that it is to be asked something every 3 seconds.
class SilenceWatch {
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    static constexpr std::chrono::seconds kPatience{5};
    static constexpr std::chrono::seconds kAskEvery{3};

    explicit SilenceWatch(Clock clock);

    /// What a look at the link has found.
    enum class Finding { Nothing, AskSomething, FellSilent, SpokeAgain };

    /// To be called after each look. `hasTaken`: the tool has taken a command since the last look; `isAllTaken`: none
    /// waits for it.
    Finding look(bool hasTaken, bool isAllTaken);

    bool isSilent() const { return m_isSilent; }

private:
    Clock m_clock;
    std::chrono::steady_clock::time_point m_since;  ///< it spoke last, or was last asked nothing
    bool m_wasIdle = false;
    bool m_isSilent = false;
};

}  // namespace penwright
