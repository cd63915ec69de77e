#include "platform/x11/QtMessages.h"

#include <unistd.h>
#include <cstdio>
#include <QString>
#include <QtGlobal>

namespace penwright {
namespace {

QtMessageHandler previousHandler = nullptr;

// A dialog over a window that is another process's child has that window as its transient parent for a moment; the
// toolkit remarks on it each time, before X11Focus puts the host's top-level window in its place.
bool isTransientParentRemark(const QString &text)
{
    return text.startsWith("QWidgetWindow(") && text.endsWith(" must be a top level window.");
}

void filterMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtWarningMsg && isTransientParentRemark(text))
        return;
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "PenwrightPE: %s\n", qPrintable(text.section('\n', 0, 0)));
        _exit(1);
    }
    previousHandler(type, context, text);
}

}  // namespace

void installMessageFilter()
{
    if (!previousHandler)
        previousHandler = qInstallMessageHandler(filterMessage);
}

}  // namespace penwright
