#include <QClipboard>

#include <xcb/xcb.h>

#include <memory>

#include "platform/Freed.h"
#include "widgets/GridViewTest.h"

namespace penwright::test {
namespace {

/// Another program that owns the clipboard and never answers when it is asked for it.
class SilentOwner {
public:
    SilentOwner()
    {
        xcb_connection_t *display = m_display.get();
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(display)).data;
        const xcb_window_t window = xcb_generate_id(display);
        xcb_create_window(display, 0, window, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                          XCB_COPY_FROM_PARENT, 0, nullptr);
        const std::string name = "CLIPBOARD";
        const auto atom = freed(xcb_intern_atom_reply(
            display, xcb_intern_atom(display, 0, static_cast<std::uint16_t>(name.size()), name.c_str()), nullptr));
        xcb_set_selection_owner(display, window, atom->atom, XCB_CURRENT_TIME);
        const auto owner =
            freed(xcb_get_selection_owner_reply(display, xcb_get_selection_owner(display, atom->atom), nullptr));
        m_owns = owner->owner == window;
    }

    bool owns() const { return m_owns; }

private:
    std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> m_display{xcb_connect(nullptr, nullptr),
                                                                           xcb_disconnect};
    bool m_owns = false;
};

class Clipboard : public GridTest {
protected:
    void SetUp() override
    {
        table.cells = {{"A1", "B1"}, {"A2", "B2"}};
        show();
        ASSERT_TRUE(QTest::qWaitFor([this] { return grid->hasFocus(); }, 60'000));
    }
    TextTable &table = ownTable(2, 2);
};

TEST_F(Clipboard, ownerThatNeverAnswersIsGivenUpAndCostsNothingTyped)
{
    const SilentOwner owner;
    ASSERT_TRUE(owner.owns());
    type("12");
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(focus(), "editor");
    type("3");
    press(Qt::Key_Return);
    EXPECT_EQ(table.all(), "123|B1 / A2|B2");
    press(Qt::Key_V, Qt::ControlModifier);
    settle();
    EXPECT_EQ(table.all(), "123|B1 / A2|B2");
    EXPECT_EQ(dialogs.transcript, "");
}

}  // namespace
}  // namespace penwright::test
