#include "platform/qt/Display.h"

#include <cstdio>
#include <QByteArray>
#include <QtGlobal>

#include <xcb/xcb.h>

#include "platform/qt/QtMessages.h"

namespace penwright {
namespace {

bool displayOpens()
{
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const bool opens = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return opens;
}

}  // namespace

bool prepareDisplay()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb");
    installMessageFilter();
    if (!qgetenv("QT_QPA_PLATFORM").startsWith("xcb") || displayOpens())
        return true;
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        std::fprintf(stderr, "PenwrightPE: there is no X display: DISPLAY is not set.\n");
    else
        std::fprintf(stderr, "PenwrightPE: cannot open the X display \"%s\".\n", qgetenv("DISPLAY").constData());
    return false;
}

}  // namespace penwright
