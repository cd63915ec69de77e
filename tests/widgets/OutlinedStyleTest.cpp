// Fields, boxes, options and marks are seen in palettes where the toolkit's own outlines are not.
#include "controls/OutlinedStyle.h"

#include <gtest/gtest.h>

#include <memory>
#include <QTest>
#include <QtWidgets>
#include <string>

#include "controls/SeparatorLine.h"
#include "grid/GridLinesStyle.h"

namespace penwright::test {
namespace {

struct PaletteCase {
    std::string name;
    QColor ground;
    QColor base;
    QColor text;
};

void PrintTo(const PaletteCase &palette, std::ostream *out)
{
    *out << palette.name;
}

QPalette paletteOf(const PaletteCase &given)
{
    QPalette palette(given.text, given.ground, given.ground, given.ground, given.ground, given.text, given.text,
                     given.base, given.ground);
    palette.setColor(QPalette::Highlight, Qt::blue);
    return palette;
}

class Outlined : public testing::TestWithParam<PaletteCase> {
protected:
    void SetUp() override
    {
        QApplication::setStyle("Fusion");
        OutlinedStyle::install();
        QApplication::setPalette(paletteOf(GetParam()));
    }

    void TearDown() override
    {
        QApplication::setStyle("Fusion");
        QApplication::setPalette(QApplication::style()->standardPalette());
    }

    /// Whether each edge of a rectangle of a control shows a line of another lightness than the ground.
    testing::AssertionResult isSeen(QWidget &control, const QRect &rect)
    {
        control.ensurePolished();
        const QImage image = control.grab().toImage();
        const QPoint centre = rect.center();
        const auto differs = [&](const QPoint &at) {
            const bool isInside = image.rect().contains(at);
            return isInside && std::abs(image.pixelColor(at).lightness() - GetParam().ground.lightness()) > 70;
        };
        for (int edge = 0; edge < 4; ++edge) {
            bool isLine = false;
            for (int in = -1; in < 3; ++in)
                isLine = isLine || differs(edge == 0   ? QPoint(rect.left() + in, centre.y())
                                           : edge == 1 ? QPoint(rect.right() - in, centre.y())
                                           : edge == 2 ? QPoint(centre.x(), rect.top() + in)
                                                       : QPoint(centre.x(), rect.bottom() - in));
            if (!isLine)
                return testing::AssertionFailure() << "edge " << edge;
        }
        return testing::AssertionSuccess();
    }

    testing::AssertionResult isSeen(QWidget &control)
    {
        control.resize(control.sizeHint().expandedTo({60, 30}));
        return isSeen(control, control.rect());
    }

    template <typename Button>
    testing::AssertionResult isMarkSeen(QStyle::SubElement mark)
    {
        Button button;
        button.resize(button.sizeHint().expandedTo({60, 30}));
        QStyleOptionButton option;
        option.initFrom(&button);
        return isSeen(button, button.style()->subElementRect(mark, &option, &button));
    }
};

INSTANTIATE_TEST_SUITE_P(Palettes, Outlined,
                         testing::Values(PaletteCase{"white", Qt::white, Qt::white, Qt::black},
                                         PaletteCase{"black", Qt::black, Qt::black, Qt::white},
                                         PaletteCase{"dark", QColor(0x20, 0x20, 0x20), QColor(0x18, 0x18, 0x18),
                                                     Qt::white}));

TEST_P(Outlined, fieldsAndListsAreSeen)
{
    QLineEdit line;
    EXPECT_TRUE(isSeen(line));
    QPlainTextEdit text;
    EXPECT_TRUE(isSeen(text));
    QTableView table;
    EXPECT_TRUE(isSeen(table));
    QComboBox list;
    EXPECT_TRUE(isSeen(list));
    list.setEditable(true);
    EXPECT_TRUE(isSeen(list));
    QSpinBox figure;
    EXPECT_TRUE(isSeen(figure));
}

TEST_P(Outlined, tablesWithLinesOfTheirOwnAreSeen)
{
    QTableView table;
    auto *lines = new GridLinesStyle;
    lines->setParent(&table);
    table.setStyle(lines);
    EXPECT_TRUE(isSeen(table));
}

TEST_P(Outlined, buttonsAndMarksAreSeen)
{
    QPushButton button("Next >");
    EXPECT_TRUE(isSeen(button));
    EXPECT_TRUE(isMarkSeen<QCheckBox>(QStyle::SE_CheckBoxIndicator));
    EXPECT_TRUE(isMarkSeen<QRadioButton>(QStyle::SE_RadioButtonIndicator));
}

TEST_P(Outlined, separatorsAreSeen)
{
    SeparatorLine line;
    line.resize(60, 1);
    EXPECT_TRUE(isSeen(line, line.rect()));
}

TEST_P(Outlined, groupsAreSeen)
{
    QGroupBox group;
    group.resize(120, 100);
    EXPECT_TRUE(isSeen(group, group.rect().adjusted(0, group.fontMetrics().height() + 3, 0, 0)));
}

TEST(OutlinedStyleTest, addsNothingWhereTheToolkitsOutlinesAreSeen)
{
    EXPECT_FALSE(addedOutline(QPalette(Qt::black, QColor(0xef, 0xef, 0xef), Qt::white, Qt::black, Qt::gray, Qt::black,
                                       Qt::white, Qt::white, QColor(0xef, 0xef, 0xef))));
    EXPECT_TRUE(addedOutline(QPalette(Qt::black)));
}

}  // namespace
}  // namespace penwright::test
