#include "plot/PlotField.h"

#include <algorithm>

#include "PlotTest.h"

namespace penwright::test {
namespace {

/// Each character is 6 wide and a capital letter 8 high.
const PlotTextRoom kRoom{.plainHeight = 10,
                         .figureHeight = 8,
                         .figureWidth = [](std::string_view text) { return 6.0 * static_cast<double>(text.size()); },
                         .letterSize =
                             [](std::string_view) {
                                 return PlotTextSize{7, 8};
                             }};

PlotPicture lobe(PlotShape shape = PlotShape::Linear, std::int16_t type = kTypeC)
{
    const PlotTableCase table = plotTable(
        "", type, {0, 90, 180}, anglesTo(90, 5), [](double, double v) { return 500 * cosine(v); }, 0, 60);
    return plotPicture(table.record, table.cells, table.horizontal, table.vertical, shape);
}

bool isIn(const PlotBox &box, const PlotBox &area)
{
    return box.left >= area.left && box.top >= area.top && box.left + box.width <= area.left + area.width &&
           box.top + box.height <= area.top + area.height;
}

std::vector<std::string> textsOf(const std::vector<PlotFigure> &figures)
{
    std::vector<std::string> texts;
    for (const PlotFigure &figure : figures)
        texts.push_back(figure.text);
    return texts;
}

TEST(PlotField, theLargestValueIsAtTheUpperEdgeAndZeroAtTheLower)
{
    const PlotField field = plotField({10, 20, 300, 200}, kRoom, lobe());
    const PlotScale plane = field.scale(field.plane);
    EXPECT_NEAR(plane.placeOf({0, 500}).y, field.box.top, 1e-6);
    EXPECT_DOUBLE_EQ(plane.placeOf({0, 0}).y, field.box.top + field.box.height);
    EXPECT_DOUBLE_EQ(plane.placeOf({-90, 0}).x, field.box.left);
    EXPECT_DOUBLE_EQ(plane.placeOf({90, 0}).x, field.box.left + field.box.width);
    EXPECT_DOUBLE_EQ(field.scale(field.cone).placeOf({360, 0}).x, field.box.left + field.box.width);
}

TEST(PlotField, everyFigureStaysInTheArea)
{
    const PlotBox area{0, 0, 180, 160};
    const PlotField field = plotField(area, kRoom, lobe());
    ASSERT_TRUE(field.lettered);
    const PlotLettering lettering = fieldLettering(field, kRoom, lobe());
    for (const auto *figures : {&lettering.degrees, &lettering.candelas})
        for (const PlotFigure &figure : *figures)
            EXPECT_TRUE(isIn(figure.box, area)) << figure.text;
    for (const PlotLetter &letter : lettering.letters)
        EXPECT_LE(letter.begin.x + kRoom.letterSize(letter.text).width, area.width) << letter.text;
}

TEST(PlotField, lettersStandOnTheRightBesideTheAnglesThatTheyName)
{
    const PlotField field = plotField({0, 0, 180, 160}, kRoom, lobe());
    const std::vector<PlotLetter> letters = fieldLettering(field, kRoom, lobe()).letters;
    ASSERT_EQ(letters.size(), 2U);
    EXPECT_EQ(letters[0].text, "V");
    EXPECT_EQ(letters[0].begin.y, field.box.top + field.box.height);
    EXPECT_EQ(letters[1].text, "H");
    EXPECT_EQ(letters[1].begin.y, field.box.top + 8);
    for (const PlotLetter &letter : letters)
        EXPECT_GT(letter.begin.x, field.box.left + field.box.width) << letter.text;
}

TEST(PlotField, noFigureCoversAnother)
{
    for (const double width : {120.0, 180.0, 400.0}) {
        const PlotField field = plotField({0, 0, width, 160}, kRoom, lobe());
        const std::vector<PlotFigure> degrees = fieldLettering(field, kRoom, lobe()).degrees;
        for (std::size_t i = 1; i < degrees.size(); ++i)
            if (degrees[i].box.top == degrees[i - 1].box.top)
                EXPECT_GT(degrees[i].box.left, degrees[i - 1].box.left + degrees[i - 1].box.width) << width;
    }
}

TEST(PlotField, typeCCountsFromNadirOnBothSidesAndOnceAround)
{
    const PlotField field = plotField({0, 0, 700, 400}, kRoom, lobe());
    EXPECT_EQ(textsOf(fieldLettering(field, kRoom, lobe()).degrees),
              (std::vector<std::string>{"90°", "60°", "30°", "0°", "30°", "60°", "90°", "0°", "45°", "90°", "135°",
                                        "180°", "225°", "270°", "315°", "360°"}));
}

TEST(PlotField, typeBHasOneAxisAsListed)
{
    const PlotPicture picture = lobe(PlotShape::Linear, kTypeB);
    const PlotField field = plotField({0, 0, 700, 400}, kRoom, picture);
    const PlotLettering lettering = fieldLettering(field, kRoom, picture);
    EXPECT_EQ(textsOf(lettering.degrees), (std::vector<std::string>{"0°", "15°", "30°", "45°", "60°", "75°", "90°"}));
    EXPECT_EQ(lettering.letters.size(), 1U);
    EXPECT_TRUE(lettering.marks.empty());
}

TEST(PlotField, candelaStandOnTheLeftAtTheirHeights)
{
    const PlotField field = plotField({0, 0, 400, 300}, kRoom, lobe());
    const PlotLettering lettering = fieldLettering(field, kRoom, lobe());
    EXPECT_EQ(textsOf(lettering.candelas), (std::vector<std::string>{"500", "400", "300", "200", "100", "0"}));
    for (const PlotFigure &figure : lettering.candelas)
        EXPECT_LT(figure.box.left + figure.box.width, field.box.left) << figure.text;
}

TEST(PlotField, horizontalAngleZeroIsMarkedAtBothEnds)
{
    const PlotField field = plotField({0, 0, 400, 300}, kRoom, lobe());
    const std::vector<PlotMark> marks = fieldLettering(field, kRoom, lobe()).marks;
    ASSERT_EQ(marks.size(), 2U);
    EXPECT_DOUBLE_EQ(marks[0].tip.x, field.box.left);
    EXPECT_DOUBLE_EQ(marks[1].tip.x, field.box.left + field.box.width);
    EXPECT_DOUBLE_EQ(marks[0].tip.y, field.box.top);
    for (const PlotMark &mark : marks) {
        EXPECT_DOUBLE_EQ(mark.left.x, mark.tip.x - 4);
        EXPECT_DOUBLE_EQ(mark.right.x, mark.tip.x + 4);
        EXPECT_DOUBLE_EQ(mark.left.y, mark.tip.y + 8);
        EXPECT_DOUBLE_EQ(mark.right.y, mark.tip.y + 8);
    }
}

TEST(PlotField, smallAreasHaveTheGridAlone)
{
    for (const PlotBox &area : {PlotBox{0, 0, 60, 60}, PlotBox{0, 0, 1, 1}, PlotBox{0, 0, 0, 0}}) {
        const PlotField field = plotField(area, kRoom, lobe());
        EXPECT_FALSE(field.lettered);
        EXPECT_GE(field.box.width, 0);
        EXPECT_GE(field.box.height, 0);
        EXPECT_TRUE(fieldLettering(field, kRoom, lobe()).degrees.empty());
    }
}

TEST(PlotScales, areThoseOfTheShape)
{
    const PlotBox area{0, 0, 300, 300};
    const PlotScales polar = plotScales(area, kRoom, lobe(PlotShape::Polar));
    const PlotFrame frame = plotFrame(area, kRoom, lobe(PlotShape::Polar).curves.largest());
    EXPECT_EQ(polar.plane.origin.x, frame.centre.x);
    EXPECT_EQ(polar.cone.perY, frame.perCandela);
    const PlotField field = plotField(area, kRoom, lobe());
    const PlotScales linear = plotScales(area, kRoom, lobe());
    EXPECT_EQ(linear.plane.perX, field.box.width / 180);
    EXPECT_EQ(linear.cone.perX, field.box.width / 360);
}

TEST(PlotShapes, curvesRunTheSameWayWhicheverShapeTheyHadBefore)
{
    PlotPicture turned = lobe(PlotShape::Polar);
    reshape(turned.curves, PlotShape::Linear);
    const PlotPicture linear = lobe(PlotShape::Linear);
    ASSERT_EQ(turned.curves.plane.runs.size(), linear.curves.plane.runs.size());
    for (std::size_t run = 0; run < linear.curves.plane.runs.size(); ++run)
        for (std::size_t i = 0; i < linear.curves.plane.runs[run].size(); ++i) {
            EXPECT_EQ(turned.curves.plane.runs[run][i].x, linear.curves.plane.runs[run][i].x);
            EXPECT_EQ(turned.curves.plane.runs[run][i].y, linear.curves.plane.runs[run][i].y);
        }
    EXPECT_EQ(linear.curves.plane.runs[0].back().x, 90);
    EXPECT_EQ(linear.curves.plane.runs[1].back().x, -90);
    EXPECT_EQ(linear.curves.plane.runs[0].front().y, 500);
}

}  // namespace
}  // namespace penwright::test
