#include "platform/x11/Display.h"

#include <cstdio>
#include <QByteArray>
#include <QtGlobal>

#include <xcb/xcb.h>

#include "platform/x11/QtMessages.h"

namespace penwright {

Display::Display()
{
    const QByteArray asked = qgetenv("QT_QPA_PLATFORM");
    const bool isWayland = asked.startsWith("wayland") && !qEnvironmentVariableIsEmpty("DISPLAY");
    if (asked.isEmpty() || isWayland)
        qputenv("QT_QPA_PLATFORM", "xcb");
    installMessageFilter();
    if (!qgetenv("QT_QPA_PLATFORM").startsWith("xcb"))
        return;
    m_connection = xcb_connect(nullptr, nullptr);
    m_isUsable = xcb_connection_has_error(m_connection) == 0;
    if (m_isUsable)
        return;
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        std::fprintf(stderr, "PenwrightPE: there is no X display: DISPLAY is not set.\n");
    else
        std::fprintf(stderr, "PenwrightPE: cannot open the X display \"%s\".\n", qgetenv("DISPLAY").constData());
}

Display::~Display()
{
    if (m_connection)
        xcb_disconnect(m_connection);
}

}  // namespace penwright
