#include <algorithm>
#include <set>

#include "core/IesText.h"
#include "plot/MainPlanes.h"
#include "review/Figures.h"
#include "review/Photometry.h"
#include "review/Remarks.h"
#include "support/TempFolder.h"
#include "widgets/ReviewTest.h"

namespace penwright::test {
namespace {

TEST_F(Review, showsEachFigureWithItsUnit)
{
    showRecord(goodRecord());
    const std::vector<Figure> expected = figuresOf(record(), photometryOf(record()));
    ASSERT_EQ(figures()->count(), static_cast<int>(expected.size()));
    for (int row = 0; const Figure &figure : expected)
        EXPECT_EQ(spoken(*figures(), row++), figure.name + ": " + valueWithUnit(figure));
    EXPECT_EQ(spoken(*figures(), 0).substr(0, 27), "Lumens of the luminaire: 6,");
    EXPECT_EQ(spoken(*figures(), 1), "Lumens of the lamps: 10,000 lm");
}

TEST_F(Review, saysWhyAFigureIsMissingInTheToolTipAndToAScreenReader)
{
    PhotometricRecord absolute = goodRecord();
    absolute.LumensPerLamp = -1;
    showRecord(absolute);
    EXPECT_EQ(figures()->item(1)->text(), "Lumens of the lamps");
    EXPECT_EQ(figures()->item(1)->toolTip(), "The values are absolute: the lamps have no lumens.");
    EXPECT_EQ(spoken(*figures(), 1), "Lumens of the lamps: The values are absolute: the lamps have no lumens.");
    EXPECT_EQ(figures()->item(0)->toolTip(), "");
}

TEST_F(Review, showsTheRemarksInTheOrderOfTheirWeight)
{
    PhotometricRecord odd = goodRecord();
    odd.InputWatts = 10000;
    odd.LumensPerLamp = 1000;
    odd.Width = 600;
    odd.Keywords(3) = "[TESTLAB]";
    showRecord(odd);
    const std::vector<Remark> expected = remarksOf(record(), photometryOf(record()));
    ASSERT_GE(expected.size(), 4u);
    ASSERT_EQ(remarks()->count(), static_cast<int>(expected.size()));
    for (int row = 0; const Remark &remark : expected)
        EXPECT_EQ(spoken(*remarks(), row++), remark.text);
    EXPECT_EQ(find<QLabel>("labRemarks")->text().toStdString(), "Remarks (" + std::to_string(expected.size()) + ")");
}

TEST_F(Review, thePictureIsReadInTheLineOfTheTabs)
{
    showRecord(goodRecord());
    auto *reading = find<QLabel>("reviewReading");
    auto *picture = find<QWidget>("reviewPicture");
    EXPECT_FALSE(reading->isVisible());
    picture->setFocus();
    QTest::keyClick(picture, Qt::Key_Home);
    QTest::keyClick(picture, Qt::Key_End);
    EXPECT_EQ(reading->text(), "H 0, V 90: 0 cd");
    QTest::keyClick(picture, Qt::Key_Down);
    QTest::keyClick(picture, Qt::Key_Home);
    EXPECT_EQ(reading->text(), "H 270, V 90: 0 cd");
    QCoreApplication::processEvents();
    EXPECT_TRUE(reading->isVisible());
    EXPECT_EQ(reading->visibleRegion().boundingRect(), reading->rect());
    find<QWidget>("cmdSaveAs")->setFocus();
    EXPECT_FALSE(reading->isVisible());
}

TEST_F(Review, thePictureLeavesWithTheNamesOfItsPlanes)
{
    const auto svgOf = [this](const PhotometricRecord &shown) {
        showRecord(shown);
        QWidget *picture = find<QWidget>("reviewPicture");
        picture->setFocus();
        QTest::keyClick(picture, Qt::Key_C, Qt::ControlModifier);
        return QGuiApplication::clipboard()->mimeData()->data("image/svg+xml");
    };
    const QByteArray two = svgOf(goodRecord());
    EXPECT_TRUE(two.contains(">Plane 0-180<") && two.contains(">Plane 90-270<"));
    EXPECT_FALSE(two.contains(">Horizontal Cone"));
    const QByteArray one = svgOf(goodRecord({0}));
    EXPECT_TRUE(one.contains(">All planes<"));
    EXPECT_FALSE(one.contains(">Plane 90-270<"));
}

TEST_F(Review, thePictureCanBeSaved)
{
    showRecord(goodRecord());
    const TempFolder pictures;
    dialogs.names = {pictures.file("planes.svg")};
    auto *menu = find<QWidget>("reviewPicture")->findChild<QMenu *>("mnuPlot");
    auto *save = menu->findChild<QAction *>("saveSvg");
    ASSERT_TRUE(save->isVisible());
    save->trigger();
    EXPECT_EQ(dialogs.proposedName, "candela-plot.svg");
    EXPECT_NE(contentOf(pictures.file("planes.svg")).find(">Plane 0-180<"), std::string::npos);
}

TEST_F(Review, saysThatThereAreNoRemarks)
{
    EXPECT_TRUE(remarks()->isVisible());
    showRecord(goodRecord());
    EXPECT_EQ(find<QLabel>("labRemarks")->text(), "No remarks");
    EXPECT_FALSE(remarks()->isVisible());
    EXPECT_TRUE(figures()->isVisible());
}

TEST_F(Review, opensTheHelpAtARemarksRuleByF1AndByTheWordWhy)
{
    const int tilt = rowOf("Many programs refuse tilt data");
    ASSERT_GE(tilt, 0);
    remarks()->setFocus();
    remarks()->setCurrentRow(tilt);
    press(Qt::Key_F1);
    const std::pair<std::string, std::string> atTilt{"/tool/Lumentor_PE-HTML.chm", "review.html#tilt"};
    ASSERT_EQ(help.links.size(), 1u);
    EXPECT_EQ(help.links[0], atTilt);
    remarks()->scrollToItem(remarks()->item(tilt));
    const QRect row = remarks()->visualItemRect(remarks()->item(tilt));
    QTest::mouseClick(remarks()->viewport(), Qt::LeftButton, {}, row.topRight() + QPoint(-18, 12));
    ASSERT_EQ(help.links.size(), 2u);
    EXPECT_EQ(help.links[1], atTilt);
    EXPECT_TRUE(help.topics.empty());
    EXPECT_EQ(shownPage(), kFinishPage);
}

TEST_F(Review, leavesF1ElsewhereToThePagesOwnTopic)
{
    figures()->setFocus();
    press(Qt::Key_F1);
    EXPECT_TRUE(help.links.empty());
    ASSERT_EQ(help.topics.size(), 1u);
    EXPECT_EQ(help.topics[0].second, 207);
}

TEST_F(Review, makesTheTextOnlyOnceItIsLookedAt)
{
    EXPECT_EQ(fileText()->toPlainText(), "");
    QTest::mouseClick(find<QTabWidget>("reviewTabs")->tabBar(), Qt::LeftButton, {},
                      find<QTabWidget>("reviewTabs")->tabBar()->tabRect(1).center());
    EXPECT_EQ(fileText()->toPlainText().toStdString(), withLineFeeds(iesFileText(record())));
    EXPECT_TRUE(fileText()->isReadOnly());
    EXPECT_TRUE(QFontInfo(fileText()->font()).fixedPitch());
}

TEST_F(Review, opensTheTextByTheKeysOfItsTab)
{
    find<QTabWidget>("reviewTabs")->tabBar()->setFocus();
    press(Qt::Key_Right);
    EXPECT_TRUE(fileText()->isVisible());
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), "reviewText");
    press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), "cmdCancel80");
}

TEST_F(Review, showsTwoThousandLinesOfALongFileAtOnceAndTheRestOnScrolling)
{
    openFileTab();
    showRecord(goodRecord(anglesTo(360, 0.1F), {0, 45, 90}));
    const std::string whole = withLineFeeds(iesFileText(record()));
    ASSERT_GT(std::count(whole.begin(), whole.end(), '\n'), 3000);
    EXPECT_EQ(fileText()->blockCount(), 2000);
    EXPECT_TRUE(whole.starts_with(fileText()->toPlainText().toStdString()));
    QScrollBar *bar = fileText()->verticalScrollBar();
    while (bar->value() < bar->maximum())
        bar->setValue(bar->maximum());
    EXPECT_EQ(fileText()->toPlainText().toStdString(), whole);
}

TEST_F(Review, showsTheMainPlanesAndNamesThem)
{
    showRecord(goodRecord());
    const QWidget *picture = find("reviewPicture");
    EXPECT_EQ(picture->accessibleDescription().toStdString(), mainPlanes(record()).picture.words);
    EXPECT_TRUE(picture->accessibleDescription().startsWith("Plane 0-180: largest 2000 candela at 0 degrees; "));
    std::set<std::string> names;
    for (const QLabel *label : find("review")->findChildren<QLabel *>())
        if (label->isVisible())
            names.insert(label->text().toStdString());
    EXPECT_TRUE(names.contains("Plane 0-180"));
    EXPECT_TRUE(names.contains("Plane 90-270"));
}

TEST_F(Review, followsTheRecordThatTheHostSends)
{
    openFileTab();
    PhotometricRecord other = goodRecord();
    showRecord(other);
    EXPECT_EQ(fileText()->toPlainText().toStdString(), withLineFeeds(iesFileText(other)));
    other.NumLamps = 2;
    other.LumensPerLamp = 5500;
    showRecord(other);
    EXPECT_EQ(spoken(*figures(), 1), "Lumens of the lamps: 11,000 lm");
    EXPECT_EQ(fileText()->toPlainText().toStdString(), withLineFeeds(iesFileText(other)));
}

TEST_F(Review, isNewEachTimeThePageIsComeTo)
{
    click("cmdBack80");
    record().InputWatts = 9000;
    window->ShowPage(kFinishPage);
    EXPECT_GE(rowOf("0.0"), 0);
}

TEST_F(Review, blocksNeitherButton)
{
    openFileTab();
    dialogs.names = {"/lum/a.ies"};
    find<QAbstractButton>("cmdSaveAs")->click();
    EXPECT_EQ(files.paths, std::vector<std::string>{"/lum/a.ies"});
    EXPECT_NE(hostInbox(), "");
    EXPECT_EQ(shownPage(), kFinishPage);
}

TEST_F(Review, goesNowhereWhileAPostWaits)
{
    QTimer impatience;
    int asked = 0;
    QObject::connect(&impatience, &QTimer::timeout, [&] {
        QMetaObject::invokeMethod(remarks(), "rowChosen", Q_ARG(int, 0));
        QMetaObject::invokeMethod(remarks(), "whyAsked", Q_ARG(int, 0));
        if (++asked == 3)
            store.pop("Lumentor_PE", "Sec", "HostBox");
    });
    impatience.start(5);
    find<QAbstractButton>("cmdUnname")->click();
    EXPECT_GE(asked, 3);
    EXPECT_EQ(shownPage(), kFinishPage);
    EXPECT_TRUE(help.links.empty());
}

TEST_F(Review, isNoValueOfThePage)
{
    openFileTab();
    EXPECT_TRUE(window->page(kFinishPage).value().empty());
    EXPECT_TRUE(window->page(kFinishPage).fields().boxes().empty());
    fileText()->setFocus();
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(fileText()->toPlainText().toStdString(), withLineFeeds(iesFileText(record())));
}

TEST_F(Review, tellsWhyTheTextCannotBeMade)
{
    PhotometricRecord torn = goodRecord();
    torn.NumVertAngles = 40;
    record() = torn;
    window->page(kFinishPage).followRecord();
    openFileTab();
    EXPECT_EQ(fileText()->toPlainText(), "The file cannot be written: Subscript out of range.");
    EXPECT_EQ(figures()->item(0)->toolTip(), "The record counts 40 vertical angles and holds 19.");
    EXPECT_EQ(shownPage(), kFinishPage);
}

struct OddCase {
    std::string name;
    std::vector<float> horizontal;
    std::vector<float> vertical;
    double candela;
    std::string lumens;  ///< as heard
};

void PrintTo(const OddCase &row, std::ostream *out)
{
    *out << row.name;
}

class ReviewOdd : public Review, public testing::WithParamInterface<OddCase> {};

INSTANTIATE_TEST_SUITE_P(
    Records, ReviewOdd,
    testing::Values(OddCase{"one angle", {0}, {0}, 100, "The vertical angles span nothing."},
                    OddCase{"equal angles", {0, 0, 0}, {30, 30, 30}, 100, "The vertical angles span nothing."},
                    OddCase{"all zeros", {0, 90}, {0, 45, 90}, 0, "0 lm"},
                    OddCase{"huge", {0, 90}, {0, 45, 90}, 1E38, ""}));

TEST_P(ReviewOdd, isShownWhole)
{
    PhotometricRecord odd = goodRecord(GetParam().horizontal, GetParam().vertical);
    for (int h = 1; h <= odd.NumHorzAngles; ++h)
        for (int v = 1; v <= odd.NumVertAngles; ++v)
            odd.Candela(h, v) = GetParam().candela;
    openFileTab();
    showRecord(odd);
    if (!GetParam().lumens.empty())
        EXPECT_EQ(spoken(*figures(), 0), "Lumens of the luminaire: " + GetParam().lumens);
    EXPECT_EQ(fileText()->toPlainText().toStdString(), withLineFeeds(iesFileText(odd)));
    EXPECT_FALSE(find("review")->grab().isNull());
    EXPECT_EQ(dialogs.transcript, "");
}

TEST_F(Review, showsALargeTableWithoutItsText)
{
    PhotometricRecord large = goodRecord(evenAngles(361, 360), evenAngles(263, 180));
    showRecord(large);
    EXPECT_EQ(fileText()->blockCount(), 1);
    EXPECT_TRUE(spoken(*figures(), 0).starts_with("Lumens of the luminaire: "));
    openFileTab();
    EXPECT_EQ(fileText()->blockCount(), 2000);
}

}  // namespace
}  // namespace penwright::test
