#pragma once

#include "platform/EventWait.h"

namespace penwright {

class Closing;
struct OwnerWindow;

/// Waits in a nested event loop with a monotonic clock. The owner's keys and clicks are held off meanwhile, under a
/// wait cursor.
class QtEventWait : public EventWait {
public:
    QtEventWait(const Closing &closing, const OwnerWindow &owner) : m_closing(closing), m_owner(owner) {}

    WaitEnd until(const std::function<bool()> &done, std::chrono::milliseconds limit) override;

    bool isWaiting() const override { return m_depth > 0; }
    bool isUnloading() const override;

private:
    const Closing &m_closing;
    const OwnerWindow &m_owner;
    int m_depth = 0;
};

}  // namespace penwright
