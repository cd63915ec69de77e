// A program reduced to a window over a host and one situation that closing must get it out of.
//   closing_probe SITUATION HOST
// Prints "ready" once the situation is on the screen, then a transcript of what ended how.
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <QApplication>
#include <QComboBox>
#include <QDrag>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QTableWidget>
#include <QThread>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>
#include <string>

#include "platform/qt/Closing.h"
#include "platform/qt/OwnerWindow.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtEventWait.h"
#include "platform/qt/TerminationSignals.h"
#include "platform/x11/Display.h"
#include "platform/x11/X11Embedding.h"

using namespace penwright;
using namespace std::chrono_literals;

namespace {

void say(const std::string &text)
{
    std::printf("%s\n", text.c_str());
    std::fflush(stdout);
}

bool isModalUp()
{
    QWidget *modal = QApplication::activeModalWidget();
    return modal && modal->windowHandle()->isExposed();
}

bool isPopupUp()
{
    QWidget *popup = QApplication::activePopupWidget();
    return popup && popup->windowHandle()->isExposed();
}

class Probe {
public:
    Probe()
        : m_embedding([this] { m_closing.hostVanished(); }),
          m_signals(m_closing),
          m_dialogs(m_closing, m_owner),
          m_wait(m_closing, m_owner)
    {
        auto *layout = new QVBoxLayout(&m_window);
        m_combo = new QComboBox;
        m_combo->addItems({"one", "two", "three"});
        m_table = new QTableWidget(3, 3);
        layout->addWidget(m_combo);
        layout->addWidget(m_table);
        QObject::connect(m_table, &QTableWidget::itemChanged,
                         [](QTableWidgetItem *item) { say("committed " + item->text().toStdString()); });
        m_embedding.adopt(m_window.winId());
        m_owner.widget = &m_window;
        QObject::connect(&m_closing, &Closing::unwound, &m_window, [this] { finish(); });
    }

    void start(const std::string &situation, std::uint32_t host)
    {
        if (!m_embedding.watchHost(host))
            std::exit(3);
        if (situation != "window of its own")
            m_former = m_embedding.SetParent(host);
        m_embedding.MoveWindow(10, 10, {400, 300});
        if (situation != "hidden")
            m_window.show();
        QTimer::singleShot(0, &m_window, [this, situation] { enter(situation); });
    }

private:
    using Condition = std::function<bool()>;

    /// Says "ready" once `condition` answers true.
    void readyWhen(const Condition &condition)
    {
        auto *timer = new QTimer(&m_window);
        QObject::connect(timer, &QTimer::timeout, &m_window, [timer, condition] {
            if (!condition())
                return;
            timer->deleteLater();
            timer->stop();
            say("ready");
        });
        timer->start(5);
    }

    void enter(const std::string &situation)
    {
        const std::map<std::string, std::function<void()>> situations{
            {"hidden", [this] { readyWhen([] { return true; }); }},
            {"shown", [this] { readyWhen([this] { return m_window.windowHandle()->isExposed(); }); }},
            {"window of its own", [this] { readyWhen([this] { return m_window.windowHandle()->isExposed(); }); }},
            {"box", [this] { box("box", isModalUp); }},
            {"box over box", [this] { nestedBoxes(); }},
            {"box without an escape button", [this] { stubbornBox(); }},
            {"save dialog", [this] { saveDialog(); }},
            {"list of a combo box", [this] { comboPopup(); }},
            {"menu", [this] { menu(); }},
            {"cell editor", [this] { cellEditor(); }},
            {"wait", [this] { wait("wait", [] {}); }},
            {"wait in a box in a wait", [this] { waitInBoxInWait(); }},
            {"drag", [this] { drag(); }},
        };
        situations.at(situation)();
    }

    void box(const std::string &name, const Condition &isReady)
    {
        readyWhen(isReady);
        const Answer answer = m_dialogs.show({.text = "Really?", .flags = kYesNo + kExclamation});
        say(name + (answer == Answer::Dismissed ? " dismissed" : " answered"));
    }

    void nestedBoxes()
    {
        QTimer::singleShot(0, &m_window, [this] {
            QWidget *below = QApplication::activeModalWidget();
            box("upper box", [below] { return isModalUp() && QApplication::activeModalWidget() != below; });
        });
        box("lower box", [] { return false; });
    }

    void stubbornBox()
    {
        QMessageBox message(&m_window);
        message.addButton("One", QMessageBox::ApplyRole);
        message.addButton("Two", QMessageBox::ApplyRole);
        readyWhen(isModalUp);
        message.exec();
        say("box over");
    }

    void saveDialog()
    {
        readyWhen(isModalUp);
        const auto name = m_dialogs.chooseSaveName({.title = "Save", .filter = "All|*", .defaultSuffix = "ies"});
        say(name ? "name chosen" : "no name");
    }

    void comboPopup()
    {
        readyWhen(isPopupUp);
        m_combo->showPopup();
    }

    void menu()
    {
        QMenu menu(&m_window);
        menu.addAction("Copy");
        readyWhen(isPopupUp);
        say(menu.exec(m_window.mapToGlobal(QPoint(5, 5))) ? "entry chosen" : "no entry");
    }

    void cellEditor()
    {
        m_table->setCurrentCell(1, 1);
        m_table->edit(m_table->currentIndex());
        m_table->viewport()->findChild<QLineEdit *>()->insert("12");
        readyWhen([] { return true; });
    }

    void wait(const std::string &name, const std::function<void()> &meanwhile)
    {
        if (name == "wait")
            readyWhen([this] { return m_wait.isWaiting(); });
        QTimer::singleShot(0, &m_window, meanwhile);
        const WaitEnd end = m_wait.until([] { return false; }, 60s);
        say(name + (end == WaitEnd::Cancelled ? " cancelled" : " ended"));
    }

    void waitInBoxInWait()
    {
        wait("outer wait", [this] {
            QTimer::singleShot(0, &m_window, [this] {
                readyWhen([this] { return isModalUp() && m_wait.isWaiting(); });
                wait("inner wait", [] {});
            });
            box("box", [] { return false; });
        });
    }

    void drag()
    {
        auto *drag = new QDrag(&m_window);
        auto *data = new QMimeData;
        data->setText("12");
        drag->setMimeData(data);
        readyWhen([] { return QThread::currentThread()->loopLevel() > 1; });
        drag->exec();
        say("drag over");
    }

    void finish()
    {
        say("unwound at level " + std::to_string(QThread::currentThread()->loopLevel()));
        box("later box", [] { return false; });
        const WaitEnd end = m_wait.until([] { return false; }, 20ms);
        say(end == WaitEnd::TimedOut ? "last wait ran" : "last wait refused");
        m_embedding.giveBack(m_former);
        QCoreApplication::exit(0);
    }

    Closing m_closing;
    OwnerWindow m_owner;
    X11Embedding m_embedding;
    TerminationSignals m_signals;
    QtDialogs m_dialogs;
    QtEventWait m_wait;
    QWidget m_window;
    QComboBox *m_combo = nullptr;
    QTableWidget *m_table = nullptr;
    std::uint32_t m_former = 0;
};

}  // namespace

int main(int count, char **arguments)
{
    const penwright::Display display;
    if (!display.isUsable())
        return 1;
    QApplication application(count, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    if (count != 3)
        return 2;
    Probe probe;
    probe.start(arguments[1], static_cast<std::uint32_t>(std::strtoul(arguments[2], nullptr, 10)));
    return QApplication::exec();
}
