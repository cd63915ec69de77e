#include "plot/PlotPainter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>

#include "plot/PlotFonts.h"
#include "plot/PlotLettering.h"
#include "support/PlotTables.h"
#include "widgets/PaintNotes.h"

namespace penwright::test {
namespace {

PlotPicture lobePicture()
{
    const PlotTableCase table = plotTable(
        "", kTypeC, {0}, anglesTo(90, 5), [](double, double v) { return 500 * cosine(v); }, 0, 45);
    return plotPicture(table.record, table.cells, table.horizontal, table.vertical);
}

TEST(PlotPainter, paintsEachTextWhereItsRuleHasIt)
{
    for (const double side : {300.0, 40.0}) {
        const PlotPicture picture = lobePicture();
        PaintNotes notes;
        NotedPaper paper(notes);
        QPainter painter(&paper);
        paintPlot(painter, QRectF(0, 0, side, side), QFont(), picture, kPaperLook);
        painter.end();

        const PlotTextRoom room = PlotFonts(QFont()).room();
        const PlotFrame frame = plotFrame({0, 0, side, side}, room, 500);
        const PlotLettering lettering = plotLettering(frame, room, true, picture.rings);
        const auto isPaintedNear = [&](const std::string &text, double x, double y) {
            const auto [begin, end] = notes.texts.equal_range(text);
            return std::any_of(begin, end, [&](const auto &noted) {
                return std::abs(noted.second.x() - x) < 1.5 && std::abs(noted.second.y() - y) < 3;
            });
        };
        for (const auto *figures : {&lettering.degrees, &lettering.candelas})
            for (const PlotFigure &figure : *figures)
                EXPECT_TRUE(isPaintedNear(figure.text, figure.box.left, figure.box.top + figure.box.height))
                    << side << " " << figure.text;
        for (const PlotLetter &letter : lettering.letters)
            EXPECT_TRUE(isPaintedNear(letter.text, letter.begin.x, letter.begin.y)) << side << " " << letter.text;
        EXPECT_EQ(notes.texts.size(), lettering.degrees.size() + lettering.candelas.size() + lettering.letters.size());
    }
}

TEST(PlotPainter, drawsTheGridWithAThinPenOfItsColour)
{
    PlotLook look = kPaperLook;
    look.grid = QColor(1, 2, 3);
    PaintNotes notes;
    NotedPaper paper(notes);
    QPainter painter(&paper);
    paintPlot(painter, QRectF(0, 0, 300, 300), QFont(), lobePicture(), look);
    painter.end();
    constexpr std::size_t kSpokes = 12;
    constexpr std::size_t kTicks = 36;
    EXPECT_EQ(notes.lines.size(), kSpokes + kTicks);  // rings and curves are no lines
    for (const PaintNotes::Line &line : notes.lines) {
        EXPECT_EQ(line.pen.color(), look.grid);
        EXPECT_EQ(line.pen.widthF(), 1);
        EXPECT_EQ(line.pen.style(), Qt::SolidLine);
    }
}

TEST(PlotPainter, paintsInTheColoursGivenAndNoOther)
{
    const PlotLook look{.paper = Qt::black,
                        .grid = QColor(0, 60, 0),
                        .figures = QColor(0, 120, 0),
                        .letters = QColor(0, 180, 0),
                        .plane = QColor(0, 240, 0),
                        .cone = QColor(0, 250, 0)};
    QImage image(300, 300, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    paintPlot(painter, QRectF(0, 0, 300, 300), QFont(), lobePicture(), look);
    painter.end();
    std::set<int> greens;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            ASSERT_EQ(pixel.red() + pixel.blue(), 0) << x << ", " << y;
            greens.insert(pixel.green());
        }
    for (const QColor &colour : {look.paper, look.grid, look.plane, look.cone})
        EXPECT_EQ(greens.count(colour.green()), 1U) << colour.green();
}

TEST(PlotPainter, coloursOfAPaletteStandOutOnItsGround)
{
    QPalette dark(Qt::darkGray, Qt::black);
    for (const QPalette &palette : {QPalette(Qt::lightGray, Qt::white), dark}) {
        const PlotLook look = plotLook(palette);
        EXPECT_EQ(look.paper, palette.color(QPalette::Base));
        const auto apart = [&](const QColor &colour) { return std::abs(colour.lightness() - look.paper.lightness()); };
        EXPECT_GT(apart(look.plane), 90);
        EXPECT_GT(apart(look.cone), 90);
        EXPECT_GT(apart(look.figures), 150);
        EXPECT_GT(apart(look.letters), 150);
        EXPECT_GT(apart(look.grid), 30);
        EXPECT_LT(apart(look.grid), 90);
    }
}

}  // namespace
}  // namespace penwright::test
