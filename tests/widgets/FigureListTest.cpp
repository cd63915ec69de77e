#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>

#include "controls/FigureList.h"
#include "support/SpinUntil.h"

namespace penwright::test {
namespace {

class Figures : public testing::Test {
protected:
    void SetUp() override
    {
        list.showFigures({{"Lumens of the luminaire", "8,437 lm", ""},
                          {"Efficiency", "-", "The lamps give no lumens."},
                          {"Symmetry", "two halves, mirrored at plane 90-270", ""}});
        list.resize(600, 200);
        list.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&list, 60'000));
        QApplication::setActiveWindow(&list);
    }

    std::string heard(int row)
    {
        QAccessibleInterface *item = QAccessible::queryAccessibleInterface(&list)->child(row);
        return item->text(QAccessible::Name).toStdString();
    }

    int height(int row) { return list.visualItemRect(list.item(row)).height(); }

    FigureList list;
};

TEST_F(Figures, areHeardAsNameAndValueOrReason)
{
    EXPECT_EQ(heard(0), "Lumens of the luminaire: 8,437 lm");
    EXPECT_EQ(heard(1), "Efficiency: The lamps give no lumens.");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&list)->childCount(), 3);
}

TEST_F(Figures, haveTheReasonAsTheirToolTipAndNoneWhereThereIsAValue)
{
    EXPECT_EQ(list.item(0)->toolTip(), "");
    EXPECT_EQ(list.item(1)->toolTip(), "The lamps give no lumens.");
}

TEST_F(Figures, showTheReasonToWhoWalksByKeysToo)
{
    list.setFocus();
    EXPECT_EQ(list.currentRow(), 0);
    EXPECT_FALSE(QToolTip::isVisible());
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(QToolTip::text(), "The lamps give no lumens.");
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_TRUE(spinUntil([] { return !QToolTip::isVisible(); }));
}

TEST_F(Figures, areWrappedToTheWidthSoThatNothingIsCutOff)
{
    const int oneLine = height(0);
    EXPECT_EQ(height(2), oneLine);
    list.resize(260, 200);
    QCoreApplication::processEvents();
    EXPECT_GT(height(2), oneLine);
    list.resize(600, 200);
    QCoreApplication::processEvents();
    EXPECT_EQ(height(2), oneLine);
}

TEST_F(Figures, markTheCurrentOneWhileTheListHasTheFocusAlone)
{
    const auto ground = [this] { return list.viewport()->grab().toImage().pixelColor(2, height(0) / 2); };
    list.clearFocus();
    const QColor calm = ground();
    list.setFocus();
    EXPECT_NE(ground(), calm);
    list.clearFocus();
    EXPECT_EQ(ground(), calm);
}

TEST_F(Figures, keepTheCurrentRowWhenTheyAreShownAnew)
{
    list.setCurrentRow(2);
    list.showFigures({{"Lumens of the luminaire", "1 lm", ""}, {"Efficiency", "2 %", ""}});
    EXPECT_EQ(list.currentRow(), 1);
    EXPECT_EQ(heard(0), "Lumens of the luminaire: 1 lm");
}

}  // namespace
}  // namespace penwright::test
