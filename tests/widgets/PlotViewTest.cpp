#include <gtest/gtest.h>

#include <QImage>
#include <QTest>

#include <cmath>
#include <memory>
#include <numbers>

#include "platform/RunTimeError.h"
#include "plot/PlotFonts.h"
#include "plot/PlotLook.h"
#include "plot/PlotView.h"
#include "support/PlotTables.h"
#include "support/SpinUntil.h"
#include "widgets/PaintCounter.h"

namespace penwright::test {
namespace {

bool isBlue(const QColor &colour)
{
    return colour.blue() - colour.red() > 100 && colour.blue() - colour.green() > 100;
}

bool isRed(const QColor &colour)
{
    return colour.red() - colour.blue() > 100 && colour.red() - colour.green() > 100;
}

using ColourTest = bool (*)(const QColor &);

QRect boundsOf(const QImage &image, ColourTest wanted)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (wanted(image.pixelColor(x, y)))
                bounds |= QRect(x, y, 1, 1);
    return bounds;
}

class PlotViewTest : public testing::Test {
protected:
    PlotViewTest() { view.resize(301, 301); }

    void draw(const PlotTableCase &table) { view.draw(table.record, table.cells, table.horizontal, table.vertical); }

    QImage picture() { return view.grab().toImage(); }

    PlotFrame frame() const
    {
        const QRectF area = view.contentsRect();
        return plotFrame({area.x(), area.y(), area.width(), area.height()}, PlotFonts(view.font()).room(), 1);
    }

    /// Whether the colour is on the picture within a pixel of a place: shares of the outer ring's radius, y up.
    bool has(const QImage &image, ColourTest wanted, double x, double y) const
    {
        const PlotPixel place = frame().placeOf({x, y});
        const QPoint pixel(static_cast<int>(std::floor(place.x)), static_cast<int>(std::floor(place.y)));
        return !boundsOf(image.copy(QRect(pixel - QPoint(1, 1), QSize(3, 3))), wanted).isEmpty();
    }

    PlotView view;
};

PlotTableCase lobe(float vertical = 45)
{
    return plotTable(
        "", kTypeC, {0}, anglesTo(90, 5), [](double, double v) { return 1000 * cosine(v); }, 0, vertical);
}

PlotTableCase sphere()
{
    return plotTable(
        "", kTypeC, {0}, anglesTo(90, 5), [](double, double) { return 70; }, 0, 90);
}

TEST_F(PlotViewTest, curvesHaveTheirColoursWhereTheirPointsAre)
{
    draw(lobe());
    const QImage image = picture();
    EXPECT_TRUE(has(image, isBlue, 0, -1));
    for (const double degrees : {10.0, 30.0, 50.0, 60.0, 80.0}) {
        const double x = cosine(degrees) * std::sin(degrees * std::numbers::pi / 180);
        const double y = -cosine(degrees) * cosine(degrees);
        EXPECT_TRUE(has(image, isBlue, x, y)) << degrees;
        EXPECT_TRUE(has(image, isBlue, -x, y)) << degrees;
        EXPECT_FALSE(has(image, isBlue, x, -y)) << degrees;
    }
    for (int degrees = 0; degrees < 360; degrees += 15)
        EXPECT_TRUE(has(image, isRed, std::sqrt(0.5) * cosine(degrees), std::sqrt(0.5) * cosine(degrees - 90)))
            << degrees;
}

TEST_F(PlotViewTest, typeBStandsOnTheRightWithoutRed)
{
    draw(plotTable(
        "", kTypeB, {0}, anglesTo(90, 5, -90), [](double, double v) { return v == 90 ? 0 : 10; }, 0, 0));
    const QImage image = picture();
    EXPECT_TRUE(has(image, isBlue, 1, 0));
    EXPECT_TRUE(has(image, isBlue, 0, -1));
    EXPECT_FALSE(has(image, isBlue, 0, 1));
    EXPECT_FALSE(has(image, isBlue, -1, 0));
    EXPECT_TRUE(boundsOf(image, isRed).isEmpty());
}

TEST_F(PlotViewTest, isRoundInEveryShapeOfTheBox)
{
    draw(sphere());
    for (const QSize size : {QSize(301, 301), QSize(500, 200), QSize(150, 420), QSize(64, 90), QSize(33, 33)}) {
        view.resize(size);
        const QRect red = boundsOf(picture(), isRed);
        const double across = 2 * frame().radius;
        EXPECT_NEAR(red.width(), across, 2) << size.width();
        EXPECT_NEAR(red.height(), across, 2) << size.width();
        EXPECT_GE(across, 0.6 * std::min(size.width(), size.height())) << size.width();
    }
}

TEST_F(PlotViewTest, linesAreOneLogicalPixelWideAndSharpAtEveryScale)
{
    draw(sphere());
    for (const int scale : {1, 2, 3}) {
        QImage image(view.size() * scale, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        view.render(&image);
        const int column = static_cast<int>(frame().centre.x * scale);
        int lines = 0;
        for (int y = 0; y < image.height() / 2; ++y)
            lines += isRed(image.pixelColor(column, y)) ? 1 : 0;
        EXPECT_EQ(lines, scale);
        const int top = static_cast<int>((frame().centre.y - frame().radius) * scale);
        EXPECT_LT(image.pixelColor(column, top).green(), 40) << scale;
    }
}

TEST_F(PlotViewTest, closePointsAreNotPale)
{
    draw(plotTable(
        "", kTypeC, evenAngles(1000, 360), {0, 90}, [](double, double) { return 5; }, 0, 90));
    const PlotPixel top = frame().placeOf({0, 1});
    EXPECT_LT(picture().pixelColor(QPointF(top.x, top.y).toPoint() - QPoint(1, 1)).green(), 80);
}

TEST_F(PlotViewTest, whatIsZeroOrBlankShowsTheGridAlone)
{
    for (const PlotTableCase &table : plotTables()) {
        if (table.name != "zeros only" && table.name != "blanks only")
            continue;
        draw(table);
        const QImage image = picture();
        EXPECT_TRUE(boundsOf(image, isBlue).isEmpty()) << table.name;
        EXPECT_TRUE(boundsOf(image, isRed).isEmpty()) << table.name;
        // On the right the mark of H 0 covers the end of its axis, and its text has pixels of every grey.
        const QImage left = image.copy(0, 0, static_cast<int>(frame().centre.x) + 1, image.height());
        const QRect grid = boundsOf(left, [](const QColor &colour) { return colour == kPaperLook.grid; });
        EXPECT_NEAR(grid.height(), 2 * frame().radius + 1, 1) << table.name;
    }
}

TEST_F(PlotViewTest, aLoneValueIsSeen)
{
    draw(plotTable(
        "", kTypeB, {0}, {0, 30, 90}, [](double, double v) { return v == 30 ? 9 : -1; }, 0, 0));
    EXPECT_TRUE(has(picture(), isBlue, cosine(30), 0.5));
}

TEST_F(PlotViewTest, isTheSameInADarkPalette)
{
    draw(lobe());
    const QImage light = picture();
    QPalette dark(QColor(40, 40, 40));
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    view.setPalette(dark);
    const QRect inside = view.contentsRect();
    EXPECT_EQ(picture().copy(inside), light.copy(inside));
}

TEST_F(PlotViewTest, isPaintedAnewAfterEveryDraw)
{
    PaintCounter counter;
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view, 60'000));
    QCoreApplication::processEvents();
    view.installEventFilter(&counter);
    draw(lobe());
    EXPECT_TRUE(spinUntil([&] { return counter.paints == 1; }));
    draw(sphere());
    EXPECT_TRUE(spinUntil([&] { return counter.paints == 2; }));
}

TEST_F(PlotViewTest, isEmptyBeforeTheFirstDraw)
{
    EXPECT_TRUE(boundsOf(picture(), isBlue).isEmpty());
    EXPECT_EQ(view.accessibleName(), "Candela plot");
    EXPECT_EQ(view.accessibleDescription(), "No values.");
}

TEST_F(PlotViewTest, everyTableIsPaintedAtEverySize)
{
    for (const PlotTableCase &table : plotTables()) {
        draw(table);
        for (const QSize size :
             {QSize(1, 1), QSize(3, 60), QSize(60, 3), QSize(9, 9), QSize(40, 40), QSize(900, 700)}) {
            view.resize(size);
            EXPECT_EQ(picture().size(), size) << table.name;
        }
    }
}

TEST_F(PlotViewTest, aPassThatFailsKeepsThePictureBefore)
{
    draw(lobe());
    const QImage before = picture();
    const QString description = view.accessibleDescription();
    const auto failure = [&](const PlotTableCase &table) {
        try {
            draw(table);
        } catch (const RunTimeError &error) {
            return error.number();
        }
        return 0;
    };

    PlotTableCase table = sphere();
    table.record.VertAngles.resize(3);
    EXPECT_EQ(failure(table), 9);
    table = sphere();
    table.cells(1, 1) = 1e200;
    EXPECT_EQ(failure(table), 6);

    EXPECT_EQ(picture(), before);
    EXPECT_EQ(view.accessibleDescription(), description);
}

TEST_F(PlotViewTest, tellsInWordsWhatItShows)
{
    draw(lobe(60));
    EXPECT_EQ(view.accessibleDescription(),
              "Vertical plane through horizontal angle 0: largest 1000 candela at 0 degrees; "
              "horizontal cone through vertical angle 60: largest 500 candela at 0 degrees.");
}

}  // namespace
}  // namespace penwright::test
