#include "hostbench/FileView.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolButton>

#include "hostbench/SampleLuminaire.h"
#include "plot/PlotView.h"
#include "review/Figures.h"
#include "review/Photometry.h"
#include "review/Remarks.h"
#include "support/SpinUntil.h"

namespace penwright {
namespace {

class FileViewTest : public testing::Test {
protected:
    FileViewTest()
    {
        m_view.resize(900, 500);
        m_view.followPalette();
        m_view.show();
    }

    void show(HeldFile file) { m_view.showFile(std::make_shared<const HeldFile>(std::move(file))); }
    QComboBox *choice(const char *name) const { return m_view.findChild<QComboBox *>(name); }
    PlotView *picture() const { return m_view.findChild<PlotView *>("polarPicture"); }

    /// Pixels of the picture that are nearer to a colour than antialiasing comes to any other.
    int count(const QColor &colour) const
    {
        const QImage image = picture()->grab().toImage();
        int pixels = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                pixels += std::abs(pixel.red() - colour.red()) + std::abs(pixel.green() - colour.green()) +
                              std::abs(pixel.blue() - colour.blue()) <
                          40;
            }
        return pixels;
    }

    FileView m_view;
};

TEST_F(FileViewTest, showsThePlaneOfTheLargestValueAndACone)
{
    show({sampleLuminaire(), false, {}});
    EXPECT_EQ(choice("plane")->currentText(), "0\u00b0");
    EXPECT_EQ(choice("cone")->currentText(), "45\u00b0");
    EXPECT_EQ(choice("plane")->count(), 5);
    EXPECT_EQ(choice("cone")->count(), 37);
    EXPECT_GT(count(picture()->look().plane), 200);
    EXPECT_GT(count(picture()->look().cone), 200);
    EXPECT_TRUE(picture()->accessibleDescription().contains("2480.4"))
        << qPrintable(picture()->accessibleDescription());
}

TEST_F(FileViewTest, theLargestValueNeedNotBeTheFirst)
{
    PhotometricRecord record = sampleLuminaire();
    record.Candela(4, 13) = 9000;
    show({record, false, {}});
    EXPECT_EQ(choice("plane")->currentText(), "67.5\u00b0");
    EXPECT_EQ(choice("cone")->currentText(), "60\u00b0");
    EXPECT_TRUE(picture()->accessibleDescription().contains("9000"));
}

TEST_F(FileViewTest, anotherPlaneIsAnotherPicture)
{
    show({sampleLuminaire(), false, {}});
    const QString before = picture()->accessibleDescription();
    const QImage picturedBefore = picture()->grab().toImage();
    choice("plane")->setFocus();
    QTest::keyClick(choice("plane"), Qt::Key_End);
    EXPECT_EQ(choice("plane")->currentText(), "90\u00b0");
    EXPECT_NE(picture()->accessibleDescription(), before);
    EXPECT_NE(picture()->grab().toImage(), picturedBefore);
}

TEST_F(FileViewTest, typeBHasNoCone)
{
    PhotometricRecord record = sampleLuminaire();
    record.PhotometricType = kTypeB;
    show({record, false, {}});
    EXPECT_FALSE(choice("cone")->isVisible());
    EXPECT_GT(count(picture()->look().plane), 100);
    EXPECT_EQ(count(picture()->look().cone), 0);
    show({sampleLuminaire(), false, {}});
    EXPECT_TRUE(choice("cone")->isVisible());
}

TEST_F(FileViewTest, withoutAFileTheGridIsEmpty)
{
    show({sampleLuminaire(), false, {}});
    m_view.clear();
    EXPECT_EQ(m_view.findChild<QPlainTextEdit *>("fileText")->toPlainText(), "");
    EXPECT_EQ(count(picture()->look().plane), 0);
    EXPECT_FALSE(choice("plane")->isEnabled());
    EXPECT_EQ(picture()->accessibleDescription(), "");
}

TEST_F(FileViewTest, aRecordWhoseListsDisagreeShowsWhy)
{
    PhotometricRecord torn = sampleLuminaire();
    torn.NumVertAngles = 40;
    show({torn, false, {}});
    EXPECT_EQ(m_view.findChild<QPlainTextEdit *>("fileText")->toPlainText(), "Subscript out of range");
    EXPECT_EQ(count(picture()->look().plane), 0);
}

TEST_F(FileViewTest, figuresOfTheFileStandBelowThePicture)
{
    const QListWidget &figures = *m_view.findChild<QListWidget *>("figureList");
    EXPECT_FALSE(figures.isVisible());
    show({sampleLuminaire(), false, {}});
    EXPECT_TRUE(figures.isVisible());
    const PhotometricRecord record = sampleLuminaire();
    const std::vector<Figure> expected = figuresOf(record, photometryOf(record));
    ASSERT_EQ(figures.count(), static_cast<int>(expected.size()));
    const QString first = figures.item(0)->data(Qt::AccessibleTextRole).toString();
    EXPECT_TRUE(first.contains(QString::fromStdString(expected[0].text + " " + std::string(expected[0].unit))))
        << qPrintable(first);
    m_view.clear();
    EXPECT_FALSE(figures.isVisible());
}

TEST_F(FileViewTest, remarksOnTheFileStandBelowTheText)
{
    const QListWidget &remarks = *m_view.findChild<QListWidget *>("remarkList");
    PhotometricRecord odd = sampleLuminaire();
    odd.LumensPerLamp = 100;
    show({odd, false, {}});
    const std::vector<Remark> expected = remarksOf(odd, photometryOf(odd));
    ASSERT_GT(expected.size(), 1U);
    ASSERT_EQ(remarks.count(), static_cast<int>(expected.size()));
    EXPECT_EQ(remarks.item(0)->text(), QString::fromStdString(expected[0].text));
    EXPECT_TRUE(remarks.isVisible());
}

TEST_F(FileViewTest, withoutRemarksTheTextHasTheirRoom)
{
    PhotometricRecord odd = sampleLuminaire();
    odd.LumensPerLamp = 100;
    show({odd, false, {}});
    const QWidget &text = *m_view.findChild<QPlainTextEdit *>("fileText");
    ASSERT_TRUE(test::spinUntil([&] { return text.height() < m_view.height() - 100; }));
    const int beside = text.height();
    PhotometricRecord plain = sampleLuminaire();
    plain.TiltIncl = false;
    plain.LumensPerLamp = 8000;
    ASSERT_TRUE(remarksOf(plain, photometryOf(plain)).empty());
    show({plain, false, {}});
    EXPECT_FALSE(m_view.findChild<QListWidget *>("remarkList")->isVisible());
    EXPECT_TRUE(test::spinUntil([&] { return text.height() > beside + 50; }));
}

TEST_F(FileViewTest, aFileOfTheDiskIsShownAsItStandsThere)
{
    show({sampleLuminaire(), true, "IESNA:LM-63-2002\r\n  as  it stands\r\n"});
    EXPECT_EQ(m_view.findChild<QPlainTextEdit *>("fileText")->toPlainText(), "IESNA:LM-63-2002\n  as  it stands");
}

TEST_F(FileViewTest, thePictureIsReadAndHasALinearView)
{
    show({sampleLuminaire(), false, {}});
    auto *linear = m_view.findChild<QToolButton *>("plotLinear");
    QTest::mouseClick(linear, Qt::LeftButton);
    EXPECT_EQ(picture()->shape(), PlotShape::Linear);
    picture()->setFocus();
    QTest::keyClick(picture(), Qt::Key_Right);
    EXPECT_EQ(m_view.findChild<QLabel *>("plotReading")->text(), "H 180, V 180: 912.8 cd");
}

TEST_F(FileViewTest, ofAMillionValuesTheFirstLinesAreShownAtOnce)
{
    PhotometricRecord large = sampleLuminaire();
    large.NumHorzAngles = large.NumVertAngles = 1000;
    large.HorAngles.resize(1000);
    large.VertAngles.resize(1000);
    large.Candela.reset(1000, 1000);
    for (int i = 1; i <= 1000; ++i) {
        large.HorAngles(i) = static_cast<float>(i - 1) * 90 / 999;
        large.VertAngles(i) = static_cast<float>(i - 1) * 180 / 999;
        for (int v = 1; v <= 1000; ++v)
            large.Candela(i, v) = 1000 - v;
    }
    show({large, false, {}});
    EXPECT_LT(m_view.findChild<QPlainTextEdit *>("fileText")->blockCount(), 2100);
    EXPECT_EQ(choice("plane")->count(), 1000);
}

TEST_F(FileViewTest, curvesStandOutOnDarkToo)
{
    const QPalette light = QApplication::palette();
    show({sampleLuminaire(), false, {}});
    const QColor onLight = picture()->look().plane;
    QApplication::setPalette(QPalette(Qt::darkGray, Qt::black));
    EXPECT_TRUE(test::spinUntil([&] { return picture()->look().plane.lightness() > onLight.lightness() + 40; }));
    EXPECT_GT(count(picture()->look().plane), 200);
    QApplication::setPalette(light);
}

}  // namespace
}  // namespace penwright
