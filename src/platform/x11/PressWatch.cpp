#include "platform/x11/PressWatch.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <utility>

namespace penwright {

PressWatch::PressWatch(std::function<void()> pressed) : m_pressed(std::move(pressed))
{
    x11::watchPresses();
    qApp->installNativeEventFilter(this);
}

bool PressWatch::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto press = x11::pressOf(message);
    if (!press)
        return false;
    m_time = x11::laterOf(m_time, press->time);
    if (!press->isAnywhere)
        return false;
    QMetaObject::invokeMethod(&m_here, m_pressed, Qt::QueuedConnection);
    return true;  // the toolkit has not asked for it
}

}  // namespace penwright
