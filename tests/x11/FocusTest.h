#pragma once

#include <algorithm>
#include <string>

#include <QMessageBox>

#include "platform/x11/X11Window.h"

#include "x11/EmbeddedWizard.h"

namespace penwright::test {

/// A question as the wizard asks it.
inline const MessageBox kQuestion{.text = "Lose <b>all</b>?", .flags = kYesNo + kExclamation, .title = "A && title"};

/// The wizard in a host, as a program that has other windows too.
class Focus : public EmbeddedWizard {
protected:
    /// Typed with the pointer far away, so that only the focus can lead the keys to the wizard, and once the window
    /// manager has come to rest: one that turns to the host late has the keys until the wizard takes them back.
    void typeAndExpect(QLineEdit &box, const std::string &text)
    {
        movePointerAway();
        const auto hasTurned = [this] { return display.activeWindow() == host.topWindow() && display.focus() == id(); };
        ASSERT_TRUE(!hasManager() || spinUntil(hasTurned)) << display.activeWindow() << " " << display.focus();
        xdotool({"type", text});
        EXPECT_TRUE(spinUntil([&] { return box.text().toStdString() == text; }))
            << box.text().toStdString() << ", the keyboard is with "
            << (display.focus() == id()               ? "the wizard"
                : display.focus() == host.topWindow() ? "the host"
                                                      : "neither wizard nor host");
    }

    void giveFocusToHost()
    {
        host.obey("takefocus");
        ASSERT_TRUE(spinUntil([this] { return display.focus() == host.topWindow(); }));
    }

    /// As the help window is: of this program, a top-level window of its own, and at work.
    void openAnotherWindow()
    {
        another.resize(300, 200);
        another.move(900, 600);
        another.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&another, 60'000));
        another.activateWindow();
        x11::focus(static_cast<std::uint32_t>(another.winId()));
        ASSERT_TRUE(spinUntil([this] { return another.isActiveWindow() && display.focus() == another.winId(); }));
    }

    /// Whether the wizard takes back the focus that `begin` has given it from a host that takes it just then. Tried
    /// again where a busy machine was slower than the time for that.
    template <typename Begin>
    bool isTakenBackAfter(Begin begin)
    {
        const auto hasIt = [this] { return display.focus() == id() && window->isActiveWindow(); };
        for (int attempt = 0; attempt < 5; ++attempt) {
            begin();
            if (!spinUntil(hasIt))
                return false;
            host.obey("takefocus");
            if (QTest::qWaitFor(hasIt, 5000))
                return true;
        }
        return false;
    }

    QWidget another;
};

/// The wizard in a window that lies in the host's top-level window.
class NestedHost : public EmbeddedWizard {
protected:
    NestedHost() : EmbeddedWizard(HostProcess::Shape::Nested) {}
};

/// The wizard in a host under a window manager.
class WithManager : public EmbeddedWizard {
protected:
    /// Where a top-level window's frame stands among all frames; greater is higher.
    long stackingOf(std::uint32_t inFrame) const
    {
        std::uint32_t frame = inFrame;
        while (display.parentOf(frame) != display.root())
            frame = display.parentOf(frame);
        const auto frames = display.childrenOf(display.root());
        return std::find(frames.begin(), frames.end(), frame) - frames.begin();
    }
};

inline std::uint32_t idOf(const QWidget &widget)
{
    return static_cast<std::uint32_t>(widget.winId());
}

}  // namespace penwright::test
