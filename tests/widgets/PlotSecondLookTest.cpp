#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QSvgRenderer>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

#include <filesystem>

#include "plot/PlotExport.h"
#include "plot/PlotFonts.h"
#include "plot/PlotStatus.h"
#include "plot/PlotView.h"
#include "support/FakeDialogs.h"
#include "support/PlotTables.h"
#include "support/SpinUntil.h"
#include "support/TempFolder.h"

namespace penwright::test {
namespace {

const QString kLobeWords =
    "Vertical plane through horizontal angle 0: largest 1000 candela at 0 degrees; "
    "horizontal cone through vertical angle 60: largest 500 candela at 0 degrees.";

PlotTableCase lobeTable()
{
    return plotTable(
        "", kTypeC, {0}, {0, 30, 60, 90}, [](double, double v) { return std::round(1000 * cosine(v)); }, 0, 60);
}

/// A picture box with the line below it, as both programs show it.
class PlotSecondLook : public testing::Test {
protected:
    PlotSecondLook()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(view);
        layout->addWidget(status);
        status->follow(*view);
        view->setDialogs(dialogs);
        window.resize(400, 440);
        window.show();
        const PlotTableCase table = lobeTable();
        view->draw(table.record, table.cells, table.horizontal, table.vertical);
    }

    void SetUp() override
    {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window, 60'000));
        QApplication::setActiveWindow(&window);
    }

    QString reading() const { return window.findChild<QLabel *>("plotReading")->text(); }
    QToolButton *linear() const { return window.findChild<QToolButton *>("plotLinear"); }
    QMenu *menu() const { return view->findChild<QMenu *>("mnuPlot"); }

    /// Where a point of the plane's line stands in the view.
    QPoint placeOf(const PlotPoint &point) const
    {
        const QRectF area = view->contentsRect();
        const PlotPixel place = plotScales({area.x(), area.y(), area.width(), area.height()},
                                           PlotFonts(view->font()).room(), view->picture())
                                    .plane.placeOf(point);
        return QPointF(place.x, place.y).toPoint();
    }

    /// From elsewhere, because a pointer that is there already does not move.
    void pointAt(const QPoint &place)
    {
        QTest::mouseMove(view, QPoint(2, 2));
        QTest::mouseMove(view, place);
    }

    void choose(const char *action)
    {
        view->setFocus();
        QTest::keyClick(view, Qt::Key_Menu);
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, view->rect().center(),
                                view->mapToGlobal(view->rect().center()));
        QCoreApplication::sendEvent(view, &asked);
        ASSERT_TRUE(menu()->isVisible());
        menu()->setActiveAction(menu()->findChild<QAction *>(action));
        ASSERT_NE(menu()->activeAction(), nullptr) << action;
        QTest::keyClick(menu(), Qt::Key_Return);
        EXPECT_FALSE(menu()->isVisible());
    }

    /// What was asked and told but for names.
    std::string told() const
    {
        const std::size_t end = dialogs.transcript.rfind("[save|");
        return end == std::string::npos ? "" : dialogs.transcript.substr(dialogs.transcript.find('\n', end) + 1);
    }

    TempFolder folder;
    FakeDialogs dialogs;
    QWidget window;
    PlotView *view = new PlotView;
    PlotStatus *status = new PlotStatus;
};

TEST_F(PlotSecondLook, tellsTheValueUnderThePointerUntilItLeaves)
{
    const QString hint = reading();
    EXPECT_EQ(hint, "Point at a curve to read it");
    pointAt(placeOf({0, -1000}));
    EXPECT_EQ(reading(), "H 0, V 0: 1000 cd");
    pointAt(placeOf({433, -750}));
    EXPECT_EQ(reading(), "H 0, V 30: 866 cd");
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(view, &leave);
    EXPECT_EQ(reading(), hint);
}

TEST_F(PlotSecondLook, marksTheValueThatItTells)
{
    const QPoint place = placeOf({433, -750});
    const QImage before = view->grab().toImage();
    pointAt(place);
    const QImage marked = view->grab().toImage();
    const QRect around(place - QPoint(5, 5), QSize(11, 11));
    EXPECT_NE(marked.copy(around), before.copy(around));
    EXPECT_EQ(marked.copy(QRect(0, 0, 40, 40)), before.copy(QRect(0, 0, 40, 40)));
}

TEST_F(PlotSecondLook, screenReadersAreToldOnceThePointerRests)
{
    pointAt(placeOf({433, -750}));
    pointAt(placeOf({0, -1000}));
    EXPECT_EQ(view->accessibleDescription(), kLobeWords);
    EXPECT_TRUE(spinUntil([&] { return view->accessibleDescription() != kLobeWords; }));
    EXPECT_EQ(view->accessibleDescription(), kLobeWords + " H 0, V 0: 1000 cd");
}

TEST_F(PlotSecondLook, keysLeadAlongTheCurvesAndAreToldAtOnce)
{
    view->setFocus();
    QTest::keyClick(view, Qt::Key_End);
    QTest::keyClick(view, Qt::Key_End);
    EXPECT_EQ(view->accessibleDescription(), kLobeWords + " H 0, V 90: 0 cd");
    QTest::keyClick(view, Qt::Key_Left);
    EXPECT_EQ(reading(), "H 0, V 60: 500 cd");
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Right);
    EXPECT_EQ(reading(), "H 360, V 60: 500 cd");
    linear()->setFocus();
    EXPECT_EQ(reading(), "Point at a curve to read it");
}

TEST_F(PlotSecondLook, anotherPictureIsReadAtTheSamePlace)
{
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Home);
    QTest::keyClick(view, Qt::Key_End);
    PlotTableCase table = lobeTable();
    table.cells(1, 4) = 77.0F;
    view->draw(table.record, table.cells, 0, 60);
    EXPECT_EQ(reading(), "H 0, V 90: 77 cd");
}

TEST_F(PlotSecondLook, zerosAloneAreNotRead)
{
    const PlotTableCase zeros = plotTable(
        "", kTypeC, {0}, {0, 90}, [](double, double) { return 0; }, 0, 0);
    view->draw(zeros.record, zeros.cells, 0, 0);
    pointAt({100, 100});
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Right);
    EXPECT_EQ(reading(), "Point at a curve to read it");
}

TEST_F(PlotSecondLook, theSwitchShowsTheLinearView)
{
    linear()->setFocus();
    const QImage polar = view->grab().toImage();
    QTest::keyClick(linear(), Qt::Key_Space);
    EXPECT_EQ(view->shape(), PlotShape::Linear);
    EXPECT_NE(view->grab().toImage(), polar);
    pointAt(placeOf({30, 866}));
    EXPECT_EQ(reading(), "H 0, V 30: 866 cd");
    const PlotTableCase table = lobeTable();
    view->draw(table.record, table.cells, table.horizontal, table.vertical);
    EXPECT_EQ(view->picture().curves.shape, PlotShape::Linear);
    QTest::keyClick(linear(), Qt::Key_Space);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(view, &leave);
    EXPECT_EQ(view->grab().toImage(), polar);
}

TEST_F(PlotSecondLook, theMenuShowsTheLinearViewToo)
{
    choose("linearView");
    EXPECT_TRUE(linear()->isChecked());
    choose("linearView");
    EXPECT_FALSE(linear()->isChecked());
    EXPECT_EQ(view->shape(), PlotShape::Polar);
}

TEST_F(PlotSecondLook, theFocusIsSeen)
{
    linear()->setFocus();
    const QImage before = view->grab().toImage();
    view->setFocus(Qt::TabFocusReason);
    EXPECT_NE(view->grab().toImage(), before);
}

/// Pixels near a colour.
int count(const QImage &image, const QColor &colour)
{
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            pixels += image.pixelColor(x, y) == colour;
    return pixels;
}

TEST_F(PlotSecondLook, copiesThePicture)
{
    QGuiApplication::clipboard()->clear();
    choose("copyPicture");
    const QImage copied = QGuiApplication::clipboard()->image();
    EXPECT_GE(copied.width(), 1280);
    EXPECT_GT(count(copied, kPaperLook.plane), 500);
    EXPECT_GT(count(copied, kPaperLook.cone), 500);
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasFormat("image/svg+xml"));
    QGuiApplication::clipboard()->clear();
    view->setFocus();
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_FALSE(QGuiApplication::clipboard()->image().isNull());
}

TEST_F(PlotSecondLook, savesAPictureThatReadersOfSvgShow)
{
    const std::string path = folder.file("lobe.svg");
    dialogs.names = {path};
    choose("saveSvg");
    EXPECT_EQ(dialogs.transcript, "[save|Save Picture|SVG pictures (*.svg)|*.svg|svg]\n");
    EXPECT_EQ(dialogs.proposedName, "candela-plot-H0.svg");
    const QByteArray text = QByteArray::fromStdString(contentOf(path));
    EXPECT_TRUE(text.contains(">H 0<"));
    EXPECT_TRUE(text.contains("Vertical Plane Through Horizontal Angle 0"));
    EXPECT_TRUE(text.contains("largest 1000 candela at 0 degrees"));
    QSvgRenderer drawing(text);
    ASSERT_TRUE(drawing.isValid());
    QImage image(drawing.defaultSize(), QImage::Format_RGB32);
    QPainter painter(&image);
    drawing.render(&painter);
    painter.end();
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::white));
    EXPECT_GT(count(image, kPaperLook.plane), 200);
    EXPECT_GT(count(image, kPaperLook.cone), 200);
}

TEST_F(PlotSecondLook, savesAPngUnderANameThatSaysSo)
{
    dialogs.names = {folder.file("EL-2054.5K")};
    choose("savePng");
    EXPECT_EQ(QImage(QString::fromStdString(folder.file("EL-2054.5K.png"))), plotImage(view->picture()));
}

TEST_F(PlotSecondLook, aFileThatIsThereIsReplacedOnRequestOnly)
{
    const std::string path = folder.file("there.png");
    std::ofstream(path) << "before";
    dialogs.names = {path, path};
    dialogs.answers = {Answer::No, Answer::Yes};
    choose("savePng");
    EXPECT_EQ(contentOf(path), "before");
    EXPECT_EQ(told(), "[Save Picture|52] " + path + " exists already. Replace it?\n");
    choose("savePng");
    EXPECT_FALSE(QImage(QString::fromStdString(path)).isNull());
}

TEST_F(PlotSecondLook, whyAFileWasNotSavedIsOneSentence)
{
    const std::string path = folder.file("nowhere/lobe.svg");
    dialogs.names = {path};
    choose("saveSvg");
    EXPECT_EQ(told(), "[Save Picture|48] " + path + " was not saved: No such file or directory\n");
}

TEST_F(PlotSecondLook, nothingIsSavedWithoutAName)
{
    dialogs.names = {std::nullopt};
    choose("saveSvg");
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
    EXPECT_EQ(told(), "");
}

}  // namespace
}  // namespace penwright::test
