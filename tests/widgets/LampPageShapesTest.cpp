#include <cmath>

#include "pages/luminaire/ShapeSketch.h"
#include "pages/luminaire/ShapeSketchView.h"
#include "support/SpinUntil.h"
#include "widgets/LampPageTest.h"
#include "widgets/PaintCounter.h"
#include "widgets/PaintNotes.h"

namespace penwright::test {
namespace {

/// What a shape makes of the page: "caption|on|text" for width, length and height, over boxes in which "7", "8" and
/// "9" stood, and what is then stored once each box to be filled holds "2".
struct ShapeCase {
    int position;
    std::string width;
    std::string length;
    std::string height;
    std::string stored;
};

void PrintTo(const ShapeCase &row, std::ostream *out)
{
    *out << "position " << row.position;
}

class LampShape : public LampPageTest, public testing::WithParamInterface<ShapeCase> {
protected:
    std::string look(const std::string &name)
    {
        const auto *label = find<QLabel>("lmpLab" + name);
        const QLineEdit *edit = box("txt" + name);
        EXPECT_EQ(label->isEnabled(), edit->isEnabled()) << name;
        EXPECT_EQ(label->text(), edit->accessibleName());
        return label->text().toStdString() + "|" + (edit->isEnabled() ? "on" : "off") + "|" +
               edit->text().toStdString();
    }

    static std::string signedText(float value)
    {
        return (std::signbit(value) ? "-" : "+") + std::to_string(static_cast<int>(std::fabs(value)));
    }
};

INSTANTIATE_TEST_SUITE_P(Table, LampShape,
                         testing::ValuesIn(std::vector<ShapeCase>{
                             {0, "Width: (90-270)|off|0", "Length: (0-180)|off|0", "Height:|off|0", "+0 +0 +0"},
                             {1, "Width: (90-270)|on|7", "Length: (0-180)|on|8", "Height:|off| 0", "+2 +2 +0"},
                             {2, "Width: (90-270)|on|7", "Length: (0-180)|on|8", "Height:|on|9", "+2 +2 +2"},
                             {3, "Diameter > 0|on|", "Length: (0-180)|off|0", "Height:|off|0", "-2 -2 +0"},
                             {4, "Width > 0|on|", "Length: (0-180)|on|8", "Height:|off|0", "-2 -2 +0"},
                             {5, "Diameter > 0|on|", "Length: (0-180)|off|0", "Height:|on|", "-2 -2 +2"},
                             {6, "Width (90-270)|on|", "Length: (0-180)|on|", "Height:|on|", "-2 -2 +2"},
                             {7, "Diameter > 0|on|", "Length: (0-180)|off|0", "Vertical Diameter > 0|off|0",
                              "+2 +0 +0"},
                             {8, "Width (90-270)|on|", "Length: (0-180)|on|", "Height|on|", "-2 -2 -2"},
                             {9, "Width:|off|0", "Length: (0-180)|on|", "Diameter > 0|on|", "-0 -2 -2"},
                             {10, "Width:|on|", "Length: (0-180)|on|", "Height|on|", "-2 +2 -2"},
                             {11, "Width:|on|", "Length: (0-180)|off|0", "Diameter > 0|on|", "-2 +0 -2"},
                             {12, "Width: (90-270)|on|", "Length: (0-180)|on|", "Height|on|", "+2 -2 -2"},
                             {13, "Diameter|on|", "Length: (0-180)|off|0", "Height|off|", "fails"},
                             {14, "Width: (90-270)|on|", "Length: (0-180)|off|0", "Height|on|", "-2 +0 -2"},
                         }));

TEST_P(LampShape, setsCaptionsStatesAndTexts)
{
    typeInto("txtWidth", "7");
    typeInto("txtLength", "8");
    typeInto("txtHeight", "9");
    pickShape(GetParam().position);
    EXPECT_EQ(look("Width"), GetParam().width);
    EXPECT_EQ(look("Length"), GetParam().length);
    EXPECT_EQ(look("Height"), GetParam().height);
    EXPECT_TRUE(
        find("lmpPicHousing")->accessibleDescription().startsWith(shapes()->itemText(GetParam().position) + ":"));
}

TEST_P(LampShape, storesItsSigns)
{
    typePower();
    pickShape(GetParam().position);
    for (const char *name : {"txtWidth", "txtLength", "txtHeight"})
        if (box(name)->isEnabled())
            typeInto(name, "2");
    const std::string warnings = warningsOfNext();
    if (GetParam().stored == "fails") {
        EXPECT_EQ(warnings, "Height is empty.\r\n");
        EXPECT_EQ(shownPage(), kLampPage);
        EXPECT_EQ(record(), PhotometricRecord());
        return;
    }
    EXPECT_EQ(warnings, "");
    EXPECT_EQ(shownPage(), kKeywordPage);
    EXPECT_EQ(signedText(record().Width) + " " + signedText(record().Length) + " " + signedText(record().Height),
              GetParam().stored);
}

TEST_P(LampShape, lookIsTheSameWhenItIsSelectedFromCode)
{
    setText("txtWidth", "7");
    setText("txtLength", "8");
    setText("txtHeight", "9");
    shapes()->setCurrentIndex(GetParam().position);
    EXPECT_EQ(look("Width"), GetParam().width);
    EXPECT_EQ(look("Length"), GetParam().length);
    EXPECT_EQ(look("Height"), GetParam().height);
}

using LampShapes = LampPageTest;

TEST_F(LampShapes, typedValueDoesNotSurviveAShapeThatEmptiesItsBox)
{
    pickShape(2);
    typeInto("txtWidth", "4");
    pickShape(1);
    EXPECT_EQ(text("txtWidth"), "4");
    pickShape(3);
    EXPECT_EQ(text("txtWidth"), "");
    pickShape(1);
    EXPECT_EQ(text("txtWidth"), "");
    EXPECT_TRUE(box("txtLength")->isEnabled());
}

TEST_F(LampShapes, currentShapeChosenAgainChangesNothing)
{
    pickShape(3);
    typeInto("txtWidth", "4");
    pickShape(3);
    EXPECT_EQ(text("txtWidth"), "4");
}

TEST_F(LampShapes, faultInADisabledBoxFocusesTheListOfShapes)
{
    typePower();
    pickShape(13);
    typeInto("txtWidth", "2");
    EXPECT_EQ(warningsOfNext(), "Height is empty.\r\n");
    EXPECT_EQ(focusName(), "lmpCmbShape");
}

TEST_F(LampShapes, noShapeLeavesTheBoxesAsTheyAre)
{
    pickShape(5);
    typeInto("txtWidth", "4");
    shapes()->setCurrentIndex(-1);
    EXPECT_EQ(text("txtWidth"), "4");
    EXPECT_EQ(find<QLabel>("lmpLabWidth")->text(), "Diameter > 0");
    EXPECT_FALSE(box("txtLength")->isEnabled());
    EXPECT_TRUE(find("lmpPicHousing")->accessibleDescription().startsWith("No shape:"));
}

TEST_F(LampShapes, withNoneChosenNextStoresTheBoxesAsTyped)
{
    typePower();
    typeInto("txtWidth", "-2");
    typeInto("txtLength", "3");
    typeInto("txtHeight", "-4");
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(record().Width, -2);
    EXPECT_EQ(record().Length, 3);
    EXPECT_EQ(record().Height, -4);
}

TEST_F(LampShapes, longestNameIsNotCutOffInTheOpenList)
{
    shapes()->showPopup();
    QAbstractItemView *view = shapes()->view();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view->window(), 60'000));
    EXPECT_GE(view->viewport()->width(), view->sizeHintForColumn(0));
    EXPECT_EQ(shapes()->count(), static_cast<int>(kShapeCount));
    EXPECT_GE(shapes()->maxVisibleItems(), shapes()->count());
    shapes()->hidePopup();
}

/// How many pixels of a picture are nearly of a colour.
int countNear(const QImage &picture, const QColor &colour)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            count += std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green()) +
                         std::abs(pixel.blue() - colour.blue()) <
                     30;
        }
    }
    return count;
}

TEST(ShapeSketchViewTest, drawsInTheTextColourOfAnyPalette)
{
    for (const auto &[ink, paper] : {std::pair(Qt::black, Qt::white), std::pair(Qt::white, Qt::black)}) {
        ShapeSketchView view;
        view.resize(240, 180);
        QPalette palette;
        palette.setColor(QPalette::Text, ink);
        palette.setColor(QPalette::Base, paper);
        view.setPalette(palette);
        view.setShape(2);
        const QImage picture = view.grab().toImage();
        EXPECT_GT(countNear(picture, ink), 500);
        EXPECT_GT(countNear(picture, paper), picture.width() * picture.height() / 2);
    }
}

TEST(ShapeSketchViewTest, outlinesAreTwoPixelsWideAndHiddenEdgesDottedWithOne)
{
    ShapeSketchView view;
    view.resize(240, 180);
    for (int position = 0; position < static_cast<int>(kShapeCount); ++position) {
        view.setShape(position);
        PaintNotes notes;
        NotedPaper paper(notes);
        view.render(&paper, {}, {}, {});
        const ShapeSketch sketch = sketchOfShape(position);
        ASSERT_EQ(notes.lines.size(), sketch.strokes.size()) << position;
        for (std::size_t i = 0; i < notes.lines.size(); ++i) {
            const QPen &pen = notes.lines[i].pen;
            const StrokeKind kind = sketch.strokes[i].kind;
            EXPECT_EQ(pen.widthF(), kind == StrokeKind::Outline ? 2 : 1) << position << " " << i;
            EXPECT_EQ(pen.style() == Qt::SolidLine, kind != StrokeKind::Hidden) << position << " " << i;
        }
    }
}

TEST(ShapeSketchViewTest, labelsStandBesideTheEndsOfTheirLines)
{
    ShapeSketchView view;
    view.resize(240, 180);
    const QFontMetricsF font(view.fontMetrics());
    const double scale = std::min(240 / kSketchWidth, 180 / kSketchHeight);
    const QPointF origin((240 - scale * kSketchWidth) / 2, (180 - scale * kSketchHeight) / 2);
    for (int position = -1; position < static_cast<int>(kShapeCount); ++position) {
        view.setShape(position);
        PaintNotes notes;
        NotedPaper paper(notes);
        view.render(&paper, {}, {}, {});
        const ShapeSketch sketch = sketchOfShape(position);
        ASSERT_EQ(notes.texts.size(), sketch.labels.size()) << position;
        for (const SketchLabel &label : sketch.labels) {
            const auto noted = notes.texts.find(std::string(label.text));
            ASSERT_NE(noted, notes.texts.end()) << label.text;
            const QSizeF size(font.horizontalAdvance(QString::fromStdString(noted->first)), font.capHeight());
            const QPointF middle = noted->second + QPointF(size.width() / 2, -size.height() / 2);
            const QPointF apart = middle - origin - scale * QPointF(label.end.x, label.end.y);
            const double along = apart.x() * label.away.x + apart.y() * label.away.y;
            EXPECT_LT(std::abs(apart.x() * label.away.y - apart.y() * label.away.x), 3) << position << noted->first;
            EXPECT_GT(along, 3) << position << noted->first;
            EXPECT_LT(along, 8 + (size.width() + size.height()) / 2) << position << noted->first;
        }
    }
}

TEST(ShapeSketchViewTest, isPaintedAnewForAnotherShape)
{
    PaintCounter counter;
    ShapeSketchView view;
    view.resize(240, 180);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view, 60'000));
    QCoreApplication::processEvents();
    view.installEventFilter(&counter);
    view.setShape(2);
    EXPECT_TRUE(spinUntil([&] { return counter.paints == 1; }));
    view.setShape(7);
    EXPECT_TRUE(spinUntil([&] { return counter.paints == 2; }));
}

TEST(ShapeSketchViewTest, growsWithTheWidget)
{
    ShapeSketchView view;
    view.setShape(2);
    view.resize(200, 150);
    const int small = countNear(view.grab().toImage(), view.palette().color(QPalette::Text));
    view.resize(600, 450);
    const int large = countNear(view.grab().toImage(), view.palette().color(QPalette::Text));
    EXPECT_GT(large, 2 * small);
    EXPECT_LT(large, 5 * small);  // the lines grow longer, not thicker
}

TEST(ShapeSketchViewTest, showsEachShapeInAPictureOfItsOwn)
{
    ShapeSketchView view;
    view.resize(240, 180);
    std::vector<QImage> pictures{view.grab().toImage()};
    for (int position = 0; position < static_cast<int>(kShapeCount); ++position) {
        view.setShape(position);
        const QImage picture = view.grab().toImage();
        for (const QImage &other : pictures)
            EXPECT_NE(picture, other) << position;
        pictures.push_back(picture);
    }
    view.setShape(kShapeCount);
    EXPECT_EQ(view.grab().toImage(), pictures.front());
}

}  // namespace
}  // namespace penwright::test
