#include "platform/x11/HostWatch.h"

#include <algorithm>
#include <QCoreApplication>
#include <QMetaObject>

#include <xcb/xcb.h>

#include "platform/qt/Closing.h"

namespace penwright {

HostWatch::HostWatch(Closing &closing) : m_closing(closing)
{
    qApp->installNativeEventFilter(this);
}

bool HostWatch::watch(x11::WindowId window)
{
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

bool HostWatch::nativeEventFilter(const QByteArray &eventType, void *message, qintptr * /*result*/)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & 0x7f) != XCB_DESTROY_NOTIFY)
        return false;
    const auto destroyed = static_cast<const xcb_destroy_notify_event_t *>(message)->window;
    if (std::find(m_watched.begin(), m_watched.end(), destroyed) != m_watched.end())
        QMetaObject::invokeMethod(&m_closing, &Closing::hostVanished, Qt::QueuedConnection);
    return false;
}

}  // namespace penwright
