#pragma once

#include <functional>

#include "platform/EventWait.h"

namespace penwright::test {

/// A wait whose clock is moved by hand: each turn of the loop runs `onTurn` and takes 10 milliseconds.
class FakeEventWait : public EventWait {
public:
    WaitEnd until(const std::function<bool()> &done, std::chrono::milliseconds limit) override
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

    bool isUnloading() const override { return cancelled; }

    bool cancelled = false;
    std::chrono::milliseconds elapsed{0};  ///< how long the last wait that timed out took
    std::function<void()> onTurn;
};

}  // namespace penwright::test
