#include "platform/x11/Display.h"

#include <cstdio>
#include <QByteArray>
#include <QtGlobal>

#include <xcb/xcb.h>

#include "platform/x11/QtMessages.h"

namespace penwright {

Display::Display(const char *program)
{
    const QByteArray asked = qgetenv("QT_QPA_PLATFORM");
    const bool isWayland = asked.startsWith("wayland") && !qEnvironmentVariableIsEmpty("DISPLAY");
    if (asked.isEmpty() || isWayland)
        qputenv("QT_QPA_PLATFORM", "xcb");
    installMessageFilter(program);
    if (!qgetenv("QT_QPA_PLATFORM").startsWith("xcb"))
        return;
    m_connection = xcb_connect(nullptr, nullptr);
    m_isUsable = xcb_connection_has_error(m_connection) == 0;
    if (m_isUsable)
        return;
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        std::fprintf(stderr, "%s: there is no X display: DISPLAY is not set.\n", program);
    else
        std::fprintf(stderr, "%s: cannot open the X display \"%s\".\n", program, qgetenv("DISPLAY").constData());
}

Display::~Display()
{
    if (m_connection)
        xcb_disconnect(m_connection);
}

}  // namespace penwright
