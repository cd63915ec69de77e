// The least Qt program with a window: what start-up is measured against. It makes a hidden window with its native
// part and ends after the time of one poll interval.

#include <QApplication>
#include <QTimer>
#include <QWidget>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QWidget window;
    window.winId();
    QTimer::singleShot(100, [] { QCoreApplication::exit(0); });
    return QApplication::exec();
}
