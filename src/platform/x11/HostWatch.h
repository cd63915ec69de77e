#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <functional>
#include <vector>

#include "platform/x11/X11Window.h"

namespace penwright {

/// Tells, from the event loop, that a watched window has been destroyed. The toolkit itself does not notice when a
/// window of its own dies with a foreign parent.
class HostWatch : public QAbstractNativeEventFilter {
public:
    explicit HostWatch(std::function<void()> gone);

    /// Watches a window of any process; false when the number names none, unless it has named one before.
    bool watch(x11::WindowId window);

    /// Watches a window of this program, whose events the toolkit asks for anyway.
    void watchOwn(x11::WindowId window);

    void forget(x11::WindowId window);

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    bool isWatched(x11::WindowId window) const;

    std::function<void()> m_gone;
    QObject m_here;  ///< a call that is still on its way ends with it
    std::vector<x11::WindowId> m_watched;
};

}  // namespace penwright
