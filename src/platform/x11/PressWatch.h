#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <functional>

#include "platform/x11/X11Window.h"

namespace penwright {

/// Sees the user's presses: the keys that come to this program, and mouse buttons wherever the pointer is.
class PressWatch : public QAbstractNativeEventFilter {
public:
    /// `pressed` runs from the event loop after each press of a mouse button in any window of the display.
    explicit PressWatch(std::function<void()> pressed);

    /// When the latest press was; none yet is no time.
    x11::Time time() const { return m_time; }

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    std::function<void()> m_pressed;
    QObject m_here;  ///< a call that is still on its way ends with it
    x11::Time m_time = x11::kNoTime;
};

}  // namespace penwright
