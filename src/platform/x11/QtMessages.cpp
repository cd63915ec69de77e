#include "platform/x11/QtMessages.h"

#include <unistd.h>
#include <cstdio>
#include <QString>
#include <QtGlobal>
#include <string_view>

namespace penwright {
namespace {

QtMessageHandler previousHandler = nullptr;
const char *programName = nullptr;

// A dialog over a window that is another process's child has that window as its transient parent for a moment; the
// toolkit remarks on it each time, before X11Focus puts the host's top-level window in its place.
bool isTransientParentRemark(const QString &text)
{
    return text.startsWith("QWidgetWindow(") && text.endsWith(" must be a top level window.");
}

// What is said of each platform that cannot be loaded, before the one line that ends the program.
bool isPlatformRemark(const QMessageLogContext &context)
{
    return context.category && std::string_view(context.category) == "qt.qpa.plugin";
}

void filterMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtWarningMsg && (isTransientParentRemark(text) || isPlatformRemark(context)))
        return;
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s: %s (QT_QPA_PLATFORM is \"%s\"%s)\n", programName,
                     qPrintable(text.section('\n', 0, 0)), qgetenv("QT_QPA_PLATFORM").constData(),
                     qEnvironmentVariableIsEmpty("DISPLAY") ? "; DISPLAY is not set" : "");
        _exit(1);
    }
    previousHandler(type, context, text);
}

}  // namespace

void installMessageFilter(const char *program)
{
    if (previousHandler)
        return;
    programName = program;
    previousHandler = qInstallMessageHandler(filterMessage);
}

}  // namespace penwright
