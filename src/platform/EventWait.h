#pragma once

#include <chrono>
#include <functional>

namespace penwright {

/// How a wait ended. `Cancelled`: the program began to unload, or the host is gone; act on nothing more.
enum class WaitEnd { Cancelled = 0, Done, TimedOut };

/// Waits while window events, timers and host commands go on, and keys and clicks on the wizard are held off.
class EventWait {
public:
    virtual ~EventWait() = default;

    /// Returns once `done` answers true or `limit` has passed, by a clock that only runs forward. `done` is asked at
    /// least once. A wait that is still open when unloading begins ends as cancelled; one that the unloading itself
    /// starts, with the stack unwound, runs as any other, unless the host is gone.
    virtual WaitEnd until(const std::function<bool()> &done, std::chrono::milliseconds limit) = 0;

    /// Whether a wait runs: what a screen reader presses meanwhile is refused too.
    virtual bool isWaiting() const = 0;

    /// Whether the program has begun to unload: a routine that wakes from a wait or a dialog goes no further.
    virtual bool isUnloading() const = 0;
};

}  // namespace penwright
