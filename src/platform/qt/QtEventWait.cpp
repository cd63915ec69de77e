#include "platform/qt/QtEventWait.h"

#include <chrono>
#include <exception>
#include <QAbstractButton>
#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <QWindow>

#include "platform/qt/Closing.h"
#include "platform/qt/OwnerWindow.h"

namespace penwright {
namespace {

using namespace std::chrono_literals;

bool isInput(QEvent::Type type)
{
    switch (type) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease:
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            return true;
        default:
            return false;
    }
}

/// The first widget among an object and its parents. Shortcuts and actions reach their widget this way.
QWidget *widgetOf(QObject *object)
{
    while (object && !object->isWidgetType())
        object = object->parent();
    return static_cast<QWidget *>(object);
}

/// Holds input off a window, its popups included, under a wait cursor. Dialogs over it keep theirs.
class HeldOff : public QObject {
public:
    explicit HeldOff(QWidget *window) : m_window(window)
    {
        if (!m_window)
            return;
        QApplication::setOverrideCursor(Qt::WaitCursor);
        qApp->installEventFilter(this);
    }

    ~HeldOff() override
    {
        if (!m_window)
            return;
        QApplication::restoreOverrideCursor();
        // A button that was held when the wait began has not seen its release.
        for (auto *button : m_window->findChildren<QAbstractButton *>())
            button->setDown(false);
    }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        const bool isClose = event->type() == QEvent::Close && event->spontaneous();
        if ((!isInput(event->type()) && !isClose) || !isHeld(object))
            return false;
        event->setAccepted(!isClose);
        return true;
    }

private:
    bool isHeld(QObject *object) const
    {
        if (object->isWindowType())
            return object == m_window->windowHandle();
        QWidget *widget = widgetOf(object);
        while (widget && widget->window()->windowType() == Qt::Popup && widget->window()->parentWidget())
            widget = widget->window()->parentWidget();
        return widget && widget->window() == m_window;
    }

    QWidget *m_window;
};

class Depth {
public:
    explicit Depth(int &depth) : m_depth(depth) { ++m_depth; }
    Depth(const Depth &) = delete;
    Depth &operator=(const Depth &) = delete;
    ~Depth() { --m_depth; }

private:
    int &m_depth;
};

}  // namespace

bool QtEventWait::isUnloading() const
{
    return m_closing.isClosing();
}

WaitEnd QtEventWait::until(const std::function<bool()> &done, std::chrono::milliseconds limit)
{
    if (!m_closing.mayWait())
        return WaitEnd::Cancelled;
    const Depth depth(m_depth);
    const HeldOff heldOff(m_owner.widget);
    QEventLoop loop;
    QTimer poll;
    const auto start = std::chrono::steady_clock::now();
    std::exception_ptr failure;
    const auto look = [&] {
        if (!m_closing.mayWait())
            return loop.exit(static_cast<int>(WaitEnd::Cancelled));
        try {
            if (done())
                return loop.exit(static_cast<int>(WaitEnd::Done));
        } catch (...) {
            failure = std::current_exception();  // carried past the event loop, which must not see it
            return loop.exit(static_cast<int>(WaitEnd::Cancelled));
        }
        if (std::chrono::steady_clock::now() - start >= limit)
            loop.exit(static_cast<int>(WaitEnd::TimedOut));
    };
    QObject::connect(&poll, &QTimer::timeout, &loop, look);
    poll.start(10ms);
    QMetaObject::invokeMethod(&loop, look, Qt::QueuedConnection);
    const int result = loop.exec();
    if (failure)
        std::rethrow_exception(failure);
    // Whatever ends the program's own loop ends this one too, with a status that says nothing about `done`.
    return result <= 0 ? WaitEnd::Cancelled : static_cast<WaitEnd>(result);
}

}  // namespace penwright
