#include <cstdio>
#include <exception>
#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>

#include "controls/OutlinedStyle.h"
#include "hostbench/HostWindow.h"
#include "hostbench/Walk.h"
#include "platform/x11/Display.h"

namespace {

constexpr const char *kUsage =
    "usage: hostbench [--new] [FILE...]\n"
    "       hostbench --walk FOLDER\n"
    "  FILE           IES files to look at\n"
    "  --new          start with one tool running\n"
    "  --walk FOLDER  need no user: make one file and a picture of each page in FOLDER\n";

struct Options {
    bool isUnderstood = true;
    bool startsTool = false;
    QString walkFolder;
    QStringList files;
};

Options optionsFrom(const QStringList &arguments)
{
    Options options;
    if (arguments.size() == 2 && arguments[0] == "--walk" && !arguments[1].isEmpty())
        options.walkFolder = QDir::cleanPath(QDir::current().absoluteFilePath(arguments[1]));
    else
        for (const QString &argument : arguments) {
            if (argument == "--new")
                options.startsTool = true;
            else if (argument.startsWith("--") || argument.isEmpty())
                options.isUnderstood = false;
            else
                options.files.append(argument);
        }
    return options;
}

QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

int fail(const QString &reason)
{
    std::fprintf(stderr, "hostbench: %s\n", qPrintable(reason));
    return 1;
}

/// What a walk that failed may have failed by; "" on a display of X11 alone.
QString reasonOfTheSession()
{
    if (!QGuiApplication::primaryScreen()->name().startsWith("XWAYLAND"))
        return {};
    return " (a Wayland session: its compositor may keep the keyboard from a window in another one; "
           "./run.sh --walk FOLDER walks on a display of its own)";
}

int walk(penwright::HostWindow &window, const QString &folder)
{
    if (QGuiApplication::platformName() != "xcb")
        return fail("the walk needs an X11 display");
    penwright::Walk path(window, folder);
    const QString failure = path.run();
    if (!failure.isEmpty())
        return fail(failure + reasonOfTheSession());
    std::printf("The walk made one file and a picture of each page:\n");
    for (const QString &left : path.left())
        std::printf("  %s\n", qPrintable(left));
    return 0;
}

int runHost(QApplication &application, const Options &options)
{
    penwright::HostStore store;
    penwright::HostWindow window(store, QCoreApplication::applicationDirPath() + "/PenwrightPE");
    if (!options.walkFolder.isEmpty())
        return walk(window, options.walkFolder);
    window.show();
    // From the event loop: the window is to be there when a tool moves in, or when a file cannot be opened.
    QTimer::singleShot(0, &window, [&] {
        if (!options.files.isEmpty())
            window.openFiles(options.files);
        if (options.startsTool)
            window.startTool();
    });
    return application.exec();
}

}  // namespace

int main(int argc, char **argv)
{
    const Options options = optionsFrom(argumentsOf(argc, argv));
    if (!options.isUnderstood) {
        std::fputs(kUsage, stderr);
        return 1;
    }
    const penwright::Display display("hostbench");
    if (!display.isUsable())
        return 1;

    // The walk has a settings store and drafts of its own, tool included: the user's are not touched.
    const QTemporaryDir walkSettings;
    if (!options.walkFolder.isEmpty())
        for (const char *name : {"XDG_CONFIG_HOME", "XDG_STATE_HOME"})
            qputenv(name, QFile::encodeName(walkSettings.path()));

    QApplication application(argc, argv);
    QApplication::setStyle("Fusion");
    penwright::OutlinedStyle::install();
    try {
        return runHost(application, options);
    } catch (const std::exception &error) {
        return fail(QString::fromStdString(error.what()));
    }
}
