#include "platform/x11/HostWatch.h"

#include <algorithm>
#include <QCoreApplication>
#include <QMetaObject>
#include <utility>

#include <xcb/xcb.h>

namespace penwright {

HostWatch::HostWatch(std::function<void()> gone) : m_gone(std::move(gone))
{
    qApp->installNativeEventFilter(this);
}

bool HostWatch::watch(x11::WindowId window)
{
    if (isWatched(window))
        return true;
    if (!x11::watch(window))
        return false;
    m_watched.push_back(window);
    return true;
}

void HostWatch::watchOwn(x11::WindowId window)
{
    m_watched.push_back(window);
}

void HostWatch::forget(x11::WindowId window)
{
    m_watched.erase(std::remove(m_watched.begin(), m_watched.end(), window), m_watched.end());
}

bool HostWatch::isWatched(x11::WindowId window) const
{
    return std::find(m_watched.begin(), m_watched.end(), window) != m_watched.end();
}

bool HostWatch::nativeEventFilter(const QByteArray &eventType, void *message, qintptr * /*result*/)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & 0x7f) != XCB_DESTROY_NOTIFY)
        return false;
    const auto destroyed = static_cast<const xcb_destroy_notify_event_t *>(message)->window;
    if (isWatched(destroyed))
        QMetaObject::invokeMethod(&m_here, m_gone, Qt::QueuedConnection);
    return false;
}

}  // namespace penwright
