#include "hostbench/StillPicture.h"

#include <gtest/gtest.h>

namespace penwright {
namespace {

QImage filled(Qt::GlobalColor color)
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

/// How many looks at `images`, which take turns, it takes until the picture is still; 100 when it never is.
int looksUntilStill(StillPicture &picture, const std::vector<QImage> &images)
{
    for (int look = 0; look < 100; ++look)
        if (picture.look(images[look % images.size()]))
            return look;
    return 100;
}

TEST(StillPicture, isStillAfterEightLooksThatShowNothingNew)
{
    StillPicture picture;
    EXPECT_EQ(looksUntilStill(picture, {filled(Qt::red)}), 8);
    EXPECT_EQ(looksUntilStill(picture, {filled(Qt::blue)}), 8);
}

TEST(StillPicture, aCaretThatBlinksAtEveryLookIsAtRest)
{
    StillPicture picture;
    EXPECT_EQ(looksUntilStill(picture, {filled(Qt::red), filled(Qt::white)}), 9);
}

TEST(StillPicture, whatIsTypedOnIsNot)
{
    StillPicture picture;
    EXPECT_EQ(looksUntilStill(picture, {filled(Qt::red), filled(Qt::white), filled(Qt::blue)}), 100);
}

TEST(StillPicture, norIsThePictureBeforeWithItsCaretOrWithout)
{
    StillPicture picture;
    looksUntilStill(picture, {filled(Qt::red), filled(Qt::white)});
    picture.turn();
    EXPECT_EQ(looksUntilStill(picture, {filled(Qt::red)}), 100);
    EXPECT_EQ(looksUntilStill(picture, {filled(Qt::white)}), 100);
    EXPECT_EQ(looksUntilStill(picture, {filled(Qt::blue)}), 8);
    picture.turn();
    EXPECT_EQ(looksUntilStill(picture, {filled(Qt::red)}), 8) << "that was long ago";
}

TEST(StillPicture, norIsNone)
{
    StillPicture picture;
    EXPECT_EQ(looksUntilStill(picture, {QImage()}), 100);
}

}  // namespace
}  // namespace penwright
