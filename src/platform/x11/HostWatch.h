#pragma once

#include <QAbstractNativeEventFilter>

#include <vector>

#include "platform/x11/X11Window.h"

namespace penwright {

class Closing;

/// Tells Closing, from the event loop, that a watched window has been destroyed. The toolkit itself does not notice
/// when a window of its own dies with a foreign parent.
class HostWatch : public QAbstractNativeEventFilter {
public:
    explicit HostWatch(Closing &closing);

    /// Watches a window of any process; false when the number names none.
    bool watch(x11::WindowId window);

    /// Watches a window of this program, whose events the toolkit asks for anyway.
    void watchOwn(x11::WindowId window);

    void forget(x11::WindowId window);

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    Closing &m_closing;
    std::vector<x11::WindowId> m_watched;
};

}  // namespace penwright
