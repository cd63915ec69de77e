#include <gtest/gtest.h>

#include <QTest>
#include <QtWidgets>
#include <vector>

#include "controls/RemarkList.h"
#include "support/SpinUntil.h"

namespace penwright::test {
namespace {

const std::string kLong =
    "The table gives 12,400 lm, more than the lamps' 8,900 lm: check lumens, lamps and multiplier.";

class Remarks : public testing::Test {
protected:
    void SetUp() override
    {
        list.showRemarks({kLong, "Without dimensions glare cannot be calculated.", "Many programs refuse tilt data."});
        list.resize(300, 240);
        QObject::connect(&list, &RemarkList::rowChosen, [this](int row) { chosen.push_back(row); });
        QObject::connect(&list, &RemarkList::whyAsked, [this](int row) { asked.push_back(row); });
        list.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&list, 60'000));
        QApplication::setActiveWindow(&list);
        list.setFocus();
    }

    QRect rectOf(int row) { return list.visualItemRect(list.item(row)); }
    QPoint sentence(int row) { return rectOf(row).topLeft() + QPoint(20, 12); }
    QPoint why(int row) { return rectOf(row).topRight() + QPoint(-18, 12); }
    void click(const QPoint &place) { QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place); }
    void doubleClick(const QPoint &place)
    {
        click(place);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
        EXPECT_TRUE(chosen.empty());
        QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, place);
    }

    RemarkList list;
    std::vector<int> chosen;
    std::vector<int> asked;
};

TEST_F(Remarks, areHeardAsTheirSentences)
{
    QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(&list);
    ASSERT_EQ(heard->childCount(), 3);
    EXPECT_EQ(heard->child(0)->text(QAccessible::Name).toStdString(), kLong);
}

TEST_F(Remarks, areChosenByEnterWhereTheListIsEnteredAtTheFirst)
{
    QTest::keyClick(&list, Qt::Key_Return);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Enter);
    EXPECT_EQ(chosen, (std::vector<int>{0, 1}));
    EXPECT_TRUE(asked.empty());
}

TEST_F(Remarks, areChosenByADoubleClickOnceItIsReleased)
{
    doubleClick(sentence(2));
    EXPECT_EQ(chosen, std::vector<int>{2});
}

TEST_F(Remarks, chooseNothingByOneClickNorBelowThem)
{
    click(sentence(1));
    doubleClick(rectOf(2).bottomLeft() + QPoint(20, 20));
    EXPECT_TRUE(chosen.empty());
    EXPECT_EQ(list.currentRow(), 1);
}

TEST_F(Remarks, askWhyByTheWordAndByF1)
{
    list.offerWhy();
    click(why(1));
    EXPECT_EQ(asked, std::vector<int>{1});
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_F1);
    EXPECT_EQ(asked, (std::vector<int>{1, 2}));
    EXPECT_TRUE(chosen.empty());
}

TEST_F(Remarks, askWhyOnceWhenTheWordIsClickedTwice)
{
    list.offerWhy();
    doubleClick(why(0));
    EXPECT_EQ(asked, std::vector<int>{0});
    EXPECT_TRUE(chosen.empty());
}

TEST_F(Remarks, askNothingWhenTheButtonIsReleasedElsewhere)
{
    list.offerWhy();
    QTest::mousePress(list.viewport(), Qt::LeftButton, {}, why(0));
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, sentence(0));
    EXPECT_TRUE(asked.empty());
}

TEST_F(Remarks, haveNoWordWhereNobodyCanSayWhy)
{
    click(why(1));
    QTest::keyClick(&list, Qt::Key_F1);
    EXPECT_TRUE(asked.empty());
    const QImage without = list.viewport()->grab().toImage();
    list.offerWhy();
    EXPECT_NE(list.viewport()->grab().toImage(), without);
}

TEST_F(Remarks, keepTheWordReadableInTheCurrentOneInADarkPaletteToo)
{
    QPalette dark(Qt::darkGray, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::Highlight, Qt::darkBlue);
    dark.setColor(QPalette::Link, Qt::cyan);
    list.setPalette(dark);
    list.offerWhy();
    const auto hasColour = [this](int row, const QColor &colour) {
        const QImage image = list.viewport()->grab(QRect(why(row) - QPoint(20, 12), QSize(38, 22))).toImage();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) == colour)
                    return true;
        return false;
    };
    EXPECT_FALSE(hasColour(0, Qt::cyan));
    EXPECT_TRUE(hasColour(1, Qt::cyan));
    dark.setColor(QPalette::Link, Qt::blue);  // as the toolkit leaves it on a dark ground
    list.setPalette(dark);
    EXPECT_FALSE(hasColour(1, Qt::blue));
}

TEST_F(Remarks, showAHandOverTheWord)
{
    list.offerWhy();
    QTest::mouseMove(list.viewport(), why(0));
    EXPECT_TRUE(spinUntil([this] { return list.viewport()->cursor().shape() == Qt::PointingHandCursor; }));
    QTest::mouseMove(list.viewport(), sentence(0));
    EXPECT_TRUE(spinUntil([this] { return list.viewport()->cursor().shape() == Qt::ArrowCursor; }));
}

TEST_F(Remarks, takeNoMoreHeightThanTheyNeedWhereTheyAreToFit)
{
    list.setMinimumHeight(10);
    list.fitHeight();
    list.resize(300, 400);
    const auto needed = [this] { return rectOf(list.count() - 1).bottom() + 1 + 2 * list.frameWidth(); };
    EXPECT_TRUE(spinUntil([&] { return list.height() == needed(); })) << list.height() << " " << needed();
    list.showRemarks({kLong});
    list.resize(300, 400);
    EXPECT_TRUE(spinUntil([&] { return list.height() == needed(); })) << list.height() << " " << needed();
    list.setMinimumHeight(60);
    list.resize(900, 400);
    EXPECT_TRUE(spinUntil([this] { return list.height() == 60; })) << list.height();
}

TEST_F(Remarks, areWrappedBesideTheWord)
{
    const int height = rectOf(0).height();
    EXPECT_GT(height, rectOf(2).height());
    list.resize(900, 240);
    QCoreApplication::processEvents();
    EXPECT_EQ(rectOf(0).height(), rectOf(2).height());
    list.resize(190, 240);
    list.offerWhy();
    QCoreApplication::processEvents();
    EXPECT_GT(rectOf(0).height(), height);
}

}  // namespace
}  // namespace penwright::test
