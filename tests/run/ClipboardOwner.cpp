// Another program that a user has copied from: it owns the clipboard with a file's text until it is ended.
#include <QClipboard>
#include <QFile>
#include <QGuiApplication>

#include <cstdio>

int main(int count, char **arguments)
{
    const QGuiApplication app(count, arguments);
    QFile file(count == 2 ? QString::fromLocal8Bit(arguments[1]) : QString());
    if (!file.open(QIODevice::ReadOnly))
        return 1;
    QGuiApplication::clipboard()->setText(QString::fromUtf8(file.readAll()));
    QGuiApplication::processEvents();
    std::puts("copied");
    std::fflush(stdout);
    return QGuiApplication::exec();
}
