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
    StillPicture picture({});
    EXPECT_EQ(looksUntilStill(picture, {filled(Qt::red)}), 8);
    EXPECT_EQ(looksUntilStill(picture, {filled(Qt::blue)}), 8);
    EXPECT_EQ(picture.image(), filled(Qt::blue));
}

TEST(StillPicture, aCaretThatBlinksAtEveryLookIsAtRest)
{
    StillPicture picture({});
    EXPECT_EQ(looksUntilStill(picture, {filled(Qt::red), filled(Qt::white)}), 9);
}

TEST(StillPicture, whatIsTypedOnIsNot)
{
    StillPicture picture({});
    EXPECT_EQ(looksUntilStill(picture, {filled(Qt::red), filled(Qt::white), filled(Qt::blue)}), 100);
}

TEST(StillPicture, norIsThePictureBefore)
{
    StillPicture picture(filled(Qt::red));
    EXPECT_EQ(looksUntilStill(picture, {filled(Qt::red)}), 100);
    EXPECT_FALSE(picture.look(filled(Qt::white)));
    EXPECT_EQ(looksUntilStill(picture, {filled(Qt::white)}), 7);
}

TEST(StillPicture, norIsNone)
{
    StillPicture picture({});
    EXPECT_EQ(looksUntilStill(picture, {QImage()}), 100);
}

}  // namespace
}  // namespace penwright
