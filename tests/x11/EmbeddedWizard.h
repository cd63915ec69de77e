#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <QWindow>
#include <string>
#include <vector>

#include "platform/qt/Closing.h"
#include "platform/qt/OwnerWindow.h"
#include "platform/qt/QtDialogs.h"
#include "platform/x11/X11Embedding.h"
#include "platform/x11/X11Window.h"
#include "support/DialogDriver.h"
#include "support/ForeignLines.h"
#include "support/Xvfb.h"
#include "x11/DisplayQuery.h"
#include "x11/HostProcess.h"

namespace penwright::test {

inline bool hasManager()
{
    return !managerAskedFor().empty();
}

/// Moves the pointer, clicks and types as a user does, through the display.
inline void xdotool(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "xdotool");
    Process process(arguments);
    ASSERT_TRUE(spinUntil([&] { return process.hasEnded(); }));
    ASSERT_EQ(process.waitForEnd(), 0);
}

inline void movePointerAway()
{
    xdotool({"mousemove", "1270", "1015"});
}

inline void clickAt(QWidget &widget)
{
    const QPointF place = QPointF(widget.mapToGlobal(widget.rect().center())) * widget.devicePixelRatioF();
    xdotool({"mousemove", std::to_string(qRound(place.x())), std::to_string(qRound(place.y())), "click", "1"});
}

/// Knows when the display has obeyed all that the program asked for up to now, and the program has seen what came of
/// it: sets a property that nobody reads, over the program's own connection, and waits for the word of it.
class EventBarrier : public QAbstractNativeEventFilter {
public:
    explicit EventBarrier(std::uint32_t window) : m_window(window)
    {
        qApp->installNativeEventFilter(this);
        auto *connection = qApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, kMark, XCB_ATOM_STRING, 8, 0, nullptr);
        xcb_flush(connection);
    }
    bool isReached() const { return m_time != x11::kNoTime; }

    /// When the display obeyed, by its clock.
    x11::Time time() const { return m_time; }

    bool nativeEventFilter(const QByteArray &, void *message, qintptr *) override
    {
        const auto *event = static_cast<const xcb_property_notify_event_t *>(message);
        const bool isProperty = (event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY && event->window == m_window;
        if (isProperty && event->atom == kMark && !isReached())
            m_time = event->time;
        return false;
    }

private:
    static constexpr xcb_atom_t kMark = XCB_ATOM_NOTICE;
    std::uint32_t m_window;
    x11::Time m_time = x11::kNoTime;
};

/// A window as large as a page, with two text boxes and a button, to be embedded in a host process.
class EmbeddedWizard : public testing::Test {
protected:
    explicit EmbeddedWizard(HostProcess::Shape shape = HostProcess::Shape::Plain)
        : host(shape),
          embedding([this] { closing.hostVanished(); }),
          dialogs(closing, owner),
          window(std::make_unique<QWidget>())
    {
        auto *layout = new QVBoxLayout(window.get());
        first = new QLineEdit;
        first->setMinimumSize(500, 40);
        second = new QLineEdit;
        button = new QPushButton("Next >");
        layout->addWidget(first);
        layout->addWidget(second);
        layout->addWidget(button);
        embedding.adopt(window->winId());
        owner.widget = window.get();
    }

    void SetUp() override
    {
        waitUntilShown(host);
        movePointerAway();
    }

    /// Waits until the window is on the screen and the window manager, when there is one, has turned to it.
    void waitUntilShown(const HostProcess &process)
    {
        const auto isShown = [&] {
            return display.isViewable(process.window()) && (!hasManager() || display.focus() == process.topWindow());
        };
        ASSERT_TRUE(spinUntil(isShown));
    }

    void embed()
    {
        ASSERT_TRUE(embedding.watchHost(host.window()));
        ASSERT_NE(embedding.SetParent(host.window()), 0u);
    }

    void embedAndShow()
    {
        embed();
        embedding.MoveWindow(20, 30, {700, 400});
        show();
        ASSERT_TRUE(spinUntil([this] { return display.focus() == id() && window->isActiveWindow(); }));
    }

    void show()
    {
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get(), 60'000));
    }

    /// Moves the pointer to a place of the host's window where the wizard is not.
    void pointBeside()
    {
        const Rectangle place = display.onScreen(host.topWindow());
        xdotool({"mousemove", std::to_string(place.x + 60), std::to_string(place.y + place.height - 40)});
    }

    void clickBeside()
    {
        pointBeside();
        xdotool({"click", "1"});
    }

    /// Lets all that the display told of the window, and what the program made of it, go by.
    void settle()
    {
        for (int turn = 0; turn < 3; ++turn) {
            const EventBarrier barrier(id());
            ASSERT_TRUE(spinUntil([&] { return barrier.isReached(); }));
        }
    }

    /// The display's clock.
    x11::Time displayTime()
    {
        const EventBarrier barrier(id());
        EXPECT_TRUE(spinUntil([&] { return barrier.isReached(); }));
        return barrier.time();
    }

    /// Whether the keyboard is where it belongs once the host has been pressed under a dialog: with the dialog. Some
    /// window managers turn to what is pressed whatever dialogs it has; the host has the keyboard then, and no other.
    bool isWithDialog(const QWidget &box) const
    {
        const std::string manager = managerAskedFor();
        const bool turnsToThePressed = manager.starts_with("i3") || manager.starts_with("icewm");
        return display.focus() == (turnsToThePressed ? host.topWindow() : static_cast<std::uint32_t>(box.winId()));
    }

    std::uint32_t id() const { return static_cast<std::uint32_t>(window->winId()); }

    DisplayQuery display;
    HostProcess host;
    Closing closing;
    OwnerWindow owner;
    X11Embedding embedding;
    QtDialogs dialogs;
    std::unique_ptr<QWidget> window;
    QLineEdit *first = nullptr;
    QLineEdit *second = nullptr;
    QPushButton *button = nullptr;
};

}  // namespace penwright::test
