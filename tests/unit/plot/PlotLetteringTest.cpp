#include "plot/PlotLettering.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <set>
#include <string>
#include <vector>

#include "core/CodePoints.h"

namespace penwright::test {
namespace {

/// A font in which every character is 6 pixels wide and 8 high.
PlotTextRoom evenRoom()
{
    const auto width = [](std::string_view text) { return 6.0 * static_cast<double>(codePointCount(text)); };
    return {.plainHeight = 8, .figureHeight = 8, .figureWidth = width, .letterSize = [width](std::string_view text) {
                return PlotTextSize{width(text), 8};
            }};
}

class PlotLetteringTest : public testing::Test {
protected:
    void letter(double side, bool typeC, double largest)
    {
        frame = plotFrame({0, 0, side, side}, evenRoom(), largest);
        lettering = plotLettering(frame, evenRoom(), typeC, plotRings(largest));
    }

    /// A place as seen from the centre, x to the right and y up.
    PlotPoint fromCentre(double x, double y) const { return {x - frame.centre.x, frame.centre.y - y}; }

    /// The middle of a figure; it stands there once.
    PlotPoint placeOf(const std::vector<PlotFigure> &figures, const std::string &text) const
    {
        std::vector<PlotPoint> found;
        for (const PlotFigure &figure : figures)
            if (figure.text == text)
                found.push_back(
                    fromCentre(figure.box.left + figure.box.width / 2, figure.box.top + figure.box.height / 2));
        EXPECT_EQ(found.size(), 1U) << text;
        return found.empty() ? PlotPoint() : found.front();
    }

    PlotPoint letterAt(const std::string &text) const
    {
        for (const PlotLetter &letter : lettering.letters)
            if (letter.text == text)
                return fromCentre(letter.begin.x, letter.begin.y);
        ADD_FAILURE() << "no letter " << text;
        return {};
    }

    std::multiset<std::string> degrees() const
    {
        std::multiset<std::string> texts;
        for (const PlotFigure &figure : lettering.degrees)
            texts.insert(figure.text);
        return texts;
    }

    PlotFrame frame;
    PlotLettering lettering;
};

TEST_F(PlotLetteringTest, lettersStandAtTheEndsOfTheirAxes)
{
    for (const double side : {300.0, 40.0}) {
        letter(side, true, 100);
        EXPECT_EQ(frame.lettered, side > 100);
        EXPECT_GT(letterAt("V").x, 0);
        EXPECT_GT(letterAt("V").y, frame.radius / 4) << side;
        EXPECT_GT(letterAt("H").x, frame.radius / 4) << side;
        EXPECT_GT(letterAt("H").y, 0);
        EXPECT_LT(letterAt("H").y, frame.radius);
    }
}

// A figure's gap, and another for what would touch it, are 3 pixels each.
TEST_F(PlotLetteringTest, lettersStandTwoGapsBesideTheFiguresOfTheirAxes)
{
    letter(300, true, 100);
    EXPECT_EQ(letterAt("V").x, 4 * 6 / 2 + 2 * 3);
    EXPECT_EQ(letterAt("H").y, 8 / 2 + 2 * 3);
}

TEST_F(PlotLetteringTest, typeCCountsFromNadirUpOnBothSides)
{
    letter(300, true, 0);
    EXPECT_EQ(degrees(), (std::multiset<std::string>{"0°", "30°", "30°", "60°", "60°", "90°", "90°", "120°", "120°",
                                                     "150°", "150°", "180°"}));
    EXPECT_LT(placeOf(lettering.degrees, "0°").y, -frame.radius);
    EXPECT_GT(placeOf(lettering.degrees, "180°").y, frame.radius);
}

TEST_F(PlotLetteringTest, ringOf70PixelsIsTheSmallestWithAFigureAtEachSpoke)
{
    letter(300, true, 0);
    for (const auto &[radius, figures] : {std::pair(69.9, 4U), std::pair(70.0, 12U)}) {
        frame.radius = radius;
        EXPECT_EQ(plotLettering(frame, evenRoom(), true, plotRings(0)).degrees.size(), figures) << radius;
    }
}

TEST_F(PlotLetteringTest, typeBCountsFromTheRightUpAndDown)
{
    letter(300, false, 0);
    EXPECT_EQ(degrees(), (std::multiset<std::string>{"-90°", "-60°", "-30°", "0°", "30°", "60°", "90°"}));
    EXPECT_GT(placeOf(lettering.degrees, "0°").x, frame.radius);
    EXPECT_GT(placeOf(lettering.degrees, "90°").y, frame.radius);
    EXPECT_LT(placeOf(lettering.degrees, "-90°").y, -frame.radius);
}

TEST_F(PlotLetteringTest, degreesStandInTheirDirectionsJustOutsideTheRing)
{
    for (const bool typeC : {true, false}) {
        letter(300, typeC, 0);
        for (const PlotFigure &figure : lettering.degrees) {
            const PlotPoint middle =
                fromCentre(figure.box.left + figure.box.width / 2, figure.box.top + figure.box.height / 2);
            const double direction = std::atan2(middle.y, middle.x) * 180 / std::numbers::pi;
            const double fromNadir = std::abs(direction + 90);
            EXPECT_NEAR(std::stod(figure.text), typeC ? std::min(fromNadir, 360 - fromNadir) : direction, 3);
            const double toItsBox = std::hypot(std::cos(direction * std::numbers::pi / 180) * figure.box.width / 2,
                                               std::sin(direction * std::numbers::pi / 180) * figure.box.height / 2);
            EXPECT_NEAR(std::hypot(middle.x, middle.y) - toItsBox, frame.radius + 3, 1.5) << figure.text;
        }
    }
}

TEST_F(PlotLetteringTest, candelasHangInsideTheirRings)
{
    letter(300, true, 500);
    for (const PlotFigure &figure : lettering.candelas) {
        const double ring = frame.radius * std::stod(figure.text) / 500;
        const double top = fromCentre(0, figure.box.top).y;
        EXPECT_LT(top, ring) << figure.text;
        EXPECT_GT(top, ring - 8) << figure.text << ": nearer to its ring than it is high";
    }
    EXPECT_EQ(lettering.candelas.size(), 5U);
}

TEST_F(PlotLetteringTest, middlingPicturesHaveDegreesAtTheAxesAlone)
{
    letter(160, true, 0);
    EXPECT_EQ(degrees(), (std::multiset<std::string>{"0°", "90°", "90°", "180°"}));
}

TEST_F(PlotLetteringTest, degreesStayInTheBoxBesideTheRing)
{
    for (const double side : {150.0, 160.0, 300.0, 700.0}) {
        letter(side, true, 0);
        ASSERT_TRUE(frame.lettered) << side;
        for (const PlotFigure &figure : lettering.degrees) {
            EXPECT_GE(figure.box.left, 0) << side << " " << figure.text;
            EXPECT_GE(figure.box.top, 0) << side << " " << figure.text;
            EXPECT_LE(figure.box.left + figure.box.width, side) << figure.text;
            EXPECT_LE(figure.box.top + figure.box.height, side) << figure.text;
        }
    }
}

TEST_F(PlotLetteringTest, ringsBearTheirCandelasBesideTheUpperAxis)
{
    for (const bool typeC : {true, false}) {
        letter(300, typeC, 500);
        for (const char *candela : {"100", "200", "300", "400", "500"}) {
            EXPECT_EQ(placeOf(lettering.candelas, candela).x > 0, typeC) << candela;
            EXPECT_GT(placeOf(lettering.candelas, candela).y, 0) << candela;
        }
        EXPECT_GT(placeOf(lettering.candelas, "500").y, placeOf(lettering.candelas, "400").y);
    }
}

TEST_F(PlotLetteringTest, candelasWithoutRoomAreLeftOutFromTheInside)
{
    letter(160, true, 500);
    std::vector<std::string> texts;
    for (const PlotFigure &figure : lettering.candelas)
        texts.push_back(figure.text);
    EXPECT_EQ(texts, (std::vector<std::string>{"500", "300"}));
}

TEST_F(PlotLetteringTest, smallPicturesHaveLettersAlone)
{
    letter(40, true, 500);
    EXPECT_EQ(lettering.letters.size(), 2U);
    EXPECT_TRUE(lettering.degrees.empty());
    EXPECT_TRUE(lettering.candelas.empty());
}

TEST_F(PlotLetteringTest, horizontalAngleZeroIsMarkedAtTheRightOfTypeC)
{
    for (const double side : {40.0, 300.0}) {
        letter(side, true, 500);
        ASSERT_EQ(lettering.marks.size(), 1U);
        EXPECT_DOUBLE_EQ(lettering.marks[0].tip.x, frame.centre.x + frame.radius);
        EXPECT_DOUBLE_EQ(lettering.marks[0].tip.y, frame.centre.y);
        EXPECT_LT(lettering.marks[0].left.x, lettering.marks[0].tip.x);
    }
    ASSERT_EQ(lettering.letters.size(), 3U);
    EXPECT_EQ(lettering.letters[2].text, "H 0");
    EXPECT_GT(lettering.letters[2].begin.x, frame.centre.x + frame.radius);
    EXPECT_GT(lettering.letters[2].begin.y, frame.centre.y);
    letter(300, false, 500);
    EXPECT_TRUE(lettering.marks.empty());
    EXPECT_EQ(lettering.letters.size(), 2U);
}

TEST_F(PlotLetteringTest, nothingIsMarkedWhereASecondPlaneStandsInThePlaceOfTheCone)
{
    letter(300, true, 500);
    const std::size_t figures = lettering.degrees.size();
    const PlotLettering planes = plotLettering(frame, evenRoom(), true, plotRings(500), true);
    EXPECT_TRUE(planes.marks.empty());
    EXPECT_EQ(planes.letters.size(), 2U);
    EXPECT_EQ(planes.degrees.size(), figures);
}

}  // namespace
}  // namespace penwright::test
