#pragma once

#include "platform/EventWait.h"

class QWidget;

namespace penwright {

class Closing;

/// Waits in a nested event loop with a monotonic clock.
class QtEventWait : public EventWait {
public:
    explicit QtEventWait(const Closing &closing) : m_closing(closing) {}

    /// The window whose keys and clicks are held off, under a wait cursor, while a wait runs.
    void setHeldOff(QWidget *window) { m_window = window; }

    WaitEnd until(const std::function<bool()> &done, std::chrono::milliseconds limit) override;

    bool isUnloading() const override;

    /// Whether a wait runs: what a screen reader presses meanwhile is refused too.
    bool isWaiting() const { return m_depth > 0; }

private:
    const Closing &m_closing;
    QWidget *m_window = nullptr;
    int m_depth = 0;
};

}  // namespace penwright
