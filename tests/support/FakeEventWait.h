#pragma once

#include <functional>

#include "platform/EventWait.h"

namespace penwright::test {

/// A wait whose clock is moved by hand: each turn of the loop runs `onTurn` and takes 10 milliseconds.
class FakeEventWait : public EventWait {
public:
    WaitEnd until(const std::function<bool()> &done, std::chrono::milliseconds limit) override
    {
        waiting = true;
        const WaitEnd end = turnUntil(done, limit);
        waiting = false;
        return end;
    }

    bool isWaiting() const override { return waiting; }
    bool isUnloading() const override { return cancelled; }

    bool cancelled = false;
    bool waiting = false;
    std::chrono::milliseconds elapsed{0};  ///< how long the last wait that timed out took
    std::function<void()> onTurn;

private:
    WaitEnd turnUntil(const std::function<bool()> &done, std::chrono::milliseconds limit)
    {
        for (std::chrono::milliseconds waited{0}; !cancelled; waited += std::chrono::milliseconds(10)) {
            if (onTurn)
                onTurn();
            if (done())
                return WaitEnd::Done;
            if (waited > limit)
                return elapsed = waited, WaitEnd::TimedOut;
        }
        return WaitEnd::Cancelled;
    }
};

}  // namespace penwright::test
