#include <gtest/gtest.h>

#include <QWidget>

#include "platform/x11/X11Embedding.h"
#include "platform/x11/X11Window.h"

namespace penwright::test {
namespace {

TEST(DisplayTime, laterOfTwoIsFoundInEitherOrder)
{
    static constexpr struct {
        x11::Time one;
        x11::Time later;
    } kPairs[]{
        {5, 7},          {7, 7},           {x11::kNoTime, 7}, {x11::kNoTime, 0xFFFFFFF0}, {x11::kNoTime, x11::kNoTime},
        {1, 0x7FFFFFFF}, {0xFFFFFFF0, 16},  // when the clock has started anew
    };
    for (const auto &[one, later] : kPairs) {
        EXPECT_EQ(x11::laterOf(one, later), later) << one;
        EXPECT_EQ(x11::laterOf(later, one), later) << one;
    }
}

/// On a display without X11 windows the wizard is a plain window.
class WithoutX11 : public testing::Test {
protected:
    WithoutX11() { embedding.adopt(window.winId()); }

    X11Embedding embedding{[] {}};
    QWidget window;
};

TEST_F(WithoutX11, embeddingChangesNothing)
{
    EXPECT_FALSE(embedding.watchHost(42));
    EXPECT_EQ(embedding.SetParent(42), 0u);
    EXPECT_TRUE(window.isWindow());
    EXPECT_FALSE(embedding.isShown());
}

TEST_F(WithoutX11, movesAndShowsItsOwnWindow)
{
    embedding.MoveWindow(11, 22, {333, 222});
    EXPECT_FALSE(embedding.isShown());
    window.show();
    EXPECT_EQ(window.geometry(), QRect(11, 22, 333, 222));
    EXPECT_EQ(embedding.size(), (PixelSize{333, 222}));
    embedding.MoveWindow(1, 2, {300, 200});
    EXPECT_EQ(window.geometry(), QRect(1, 2, 300, 200));
    EXPECT_TRUE(embedding.isShown());
    EXPECT_DOUBLE_EQ(embedding.twipsPerPixel(), 15.0);
}

TEST_F(WithoutX11, isHiddenWhenGivenBack)
{
    window.show();
    embedding.raise();
    embedding.takeFocus();
    embedding.giveBack(42);
    EXPECT_FALSE(embedding.isShown());
}

TEST(NothingAdopted, changesNothing)
{
    X11Embedding embedding([] {});
    embedding.adopt(42);
    EXPECT_EQ(embedding.SetParent(42), 0u);
    embedding.MoveWindow(1, 2, {3, 4});
    embedding.raise();
    embedding.takeFocus();
    embedding.giveBack(42);
    EXPECT_FALSE(embedding.isShown());
    EXPECT_EQ(embedding.size(), PixelSize{});
}

}  // namespace
}  // namespace penwright::test
