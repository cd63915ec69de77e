#include "widgets/LampPageTest.h"

namespace penwright::test {
namespace {

TEST_F(LampPageTest, hasItsControlsWithTheirCaptionsAndBuddies)
{
    const std::vector<std::array<std::string, 3>> labels{
        {"lmpLabNumLamps", "Number Of Lamps", "txtNumLamps"},
        {"lmpLabLumPerLamp", "Lumens Per Lamp", "txtLumPerLamp"},
        {"lmpLabCandelaMult", "Candela Multiplier", "txtMultiplier"},
        {"lmpLabBallastFactor", "Ballast Factor", "txtBallast"},
        {"lmpLabInputWatts", "Input Watts", "txtWatt"},
        {"lmpLabWidth", "Width:", "txtWidth"},
        {"lmpLabLength", "Length:", "txtLength"},
        {"lmpLabHeight", "Height:", "txtHeight"},
        {"labPTB", "Units:", "rdoFeet"},
    };
    for (const auto &[label, caption, buddy] : labels) {
        EXPECT_EQ(find<QLabel>(label)->text().toStdString(), caption);
        EXPECT_EQ(find<QLabel>(label)->buddy(), find(buddy)) << label;
    }
    EXPECT_EQ(find<QGroupBox>("Frame2")->title(), "Lamp And Power");
    EXPECT_EQ(find<QGroupBox>("lmpFrame2")->title(), "Luminous Dimensions");
    EXPECT_EQ(find("txtNumLamps")->parentWidget(), find("Frame2"));
    EXPECT_EQ(find("lmpPicHousing")->parentWidget(), find("lmpFrame2"));
    EXPECT_FALSE(window->findChild<QWidget *>("labRecordHint"));
}

TEST_F(LampPageTest, beginsEmptyAndEnabledWithNoShape)
{
    for (const std::string &name : kLampBoxes) {
        EXPECT_EQ(text(name), "") << name;
        EXPECT_TRUE(box(name)->isEnabled()) << name;
    }
    EXPECT_EQ(shapes()->currentIndex(), -1);
    EXPECT_FALSE(find<QCheckBox>("chkIncludeTilt")->isChecked());
    EXPECT_EQ(focusName(), "txtNumLamps");
}

TEST_F(LampPageTest, tabOrderFollowsTheEye)
{
    pickShape(2);
    box("txtNumLamps")->setFocus();
    std::vector<std::string> walked;
    for (int i = 0; i < 14; ++i) {
        walked.push_back(focusName());
        press(Qt::Key_Tab);
    }
    EXPECT_EQ(walked, (std::vector<std::string>{"txtNumLamps", "txtLumPerLamp", "txtMultiplier", "txtBallast",
                                                "txtWatt", "lmpCmbShape", "txtWidth", "txtLength", "txtHeight",
                                                "rdoFeet", "chkIncludeTilt", "cmdCancel", "cmdHelp10", "cmdNext10"}));
}

TEST_F(LampPageTest, clickIntoABoxSelectsItsWholeText)
{
    for (const std::string &name : kLampBoxes) {
        setText(name, "12.5");
        QTest::mouseClick(box(name), Qt::LeftButton, {}, QPoint(8, 8));
        EXPECT_EQ(box(name)->selectedText(), "12.5") << name;
        QTest::keyClicks(box(name), "7");
        EXPECT_EQ(text(name), "7") << name;
    }
}

TEST_F(LampPageTest, partMarkedByDraggingStaysMarked)
{
    QLineEdit *lumens = box("txtLumPerLamp");
    setText("txtLumPerLamp", "123456");
    const int middle = lumens->height() / 2;
    const int end = lumens->inputMethodQuery(Qt::ImCursorRectangle).toRect().center().x();
    const auto drag = [&](int from, int to) {
        QTest::mousePress(lumens, Qt::LeftButton, {}, QPoint(from, middle));
        QMouseEvent move(QEvent::MouseMove, QPointF(to, middle), lumens->mapToGlobal(QPointF(to, middle)), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(lumens, &move);
        QTest::mouseRelease(lumens, Qt::LeftButton, {}, QPoint(to, middle));
    };
    const int digits = lumens->fontMetrics().horizontalAdvance("456");
    drag(end + 4, end - digits);
    EXPECT_EQ(lumens->selectedText(), "456");
    typeText("7");
    EXPECT_EQ(text("txtLumPerLamp"), "1237");
    drag(10, 12);
    EXPECT_EQ(lumens->selectedText(), "1237");
}

TEST_F(LampPageTest, partMarkedByAClickWithShiftStaysMarked)
{
    QLineEdit *lumens = box("txtLumPerLamp");
    setText("txtLumPerLamp", "123456");
    lumens->setFocus();
    const QPoint end = lumens->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    const int digits = lumens->fontMetrics().horizontalAdvance("56");
    QTest::mouseClick(lumens, Qt::LeftButton, Qt::ShiftModifier, end - QPoint(digits, 0));
    EXPECT_EQ(lumens->selectedText(), "56");
}

TEST_F(LampPageTest, doubleClickSelectsTheWholeText)
{
    setText("txtLumPerLamp", "-1");
    QTest::mouseDClick(box("txtLumPerLamp"), Qt::LeftButton, {}, QPoint(8, 8));
    QTest::mouseRelease(box("txtLumPerLamp"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(box("txtLumPerLamp")->selectedText(), "-1");
}

TEST_F(LampPageTest, emptyPageYieldsEightLinesInOrder)
{
    EXPECT_EQ(warningsOfNext(),
              "Number of Lamps is empty.\r\nLumens per Lamp is empty.\r\nCandela Multiplier is empty.\r\n"
              "Ballast Factor is empty.\r\nWatts is empty.\r\nWidth is empty.\r\nLength is empty.\r\n"
              "Height is empty.\r\n");
    EXPECT_EQ(shownPage(), kLampPage);
    EXPECT_EQ(record(), PhotometricRecord());
    EXPECT_EQ(focusName(), "txtNumLamps");
}

TEST_F(LampPageTest, firstFaultyBoxGetsTheFocusWithItsTextSelected)
{
    for (const std::string &faulty : kLampBoxes) {
        fillPageOne();
        setText(faulty, "1,5");
        EXPECT_NE(warningsOfNext(), "") << faulty;
        EXPECT_EQ(focusName(), faulty);
        EXPECT_EQ(box(faulty)->selectedText(), "1,5");
    }
    EXPECT_EQ(record(), PhotometricRecord());
}

TEST_F(LampPageTest, linesOfAnEarlierNextAreGone)
{
    fillPageOne();
    setText("txtWatt", "0");
    EXPECT_EQ(warningsOfNext(), "Watts must be greater than zero.\r\n");
    setText("txtWatt", "1");
    setText("txtLumPerLamp", "0");
    EXPECT_EQ(warningsOfNext(), "Lumens per Lamp must be positve or -1\r\n");
}

TEST_F(LampPageTest, acceptedPageIsStoredAndTurned)
{
    typePower();
    typeInto("txtLumPerLamp", "-1");
    pickShape(2);
    typeInto("txtWidth", "1.25");
    typeInto("txtLength", "4");
    typeInto("txtHeight", "-0.5");
    click("rdoMeters");
    EXPECT_EQ(warningsOfNext(), "");
    PhotometricRecord expected;
    expected.NumLamps = 2;
    expected.LumensPerLamp = -1;
    expected.CandelaMultiplier = 1.5F;
    expected.BallastFactor = 0.95F;
    expected.InputWatts = 36.5F;
    expected.Width = 1.25F;
    expected.Length = 4;
    expected.Height = 0.5F;
    expected.UnitsType = kMeters;
    EXPECT_EQ(record(), expected);
    EXPECT_EQ(shownPage(), kKeywordPage);
}

TEST_F(LampPageTest, isFilledInAndLeftByKeyboardAlone)
{
    for (const char *value : {"2", "1500", "1.5", "0.95", "36.5"}) {
        typeText(value);
        press(Qt::Key_Tab);
    }
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_Down);
    EXPECT_EQ(shapes()->currentIndex(), 2);
    for (const char *value : {"1.25", "4", "0.5"}) {
        press(Qt::Key_Tab);
        typeText(value);
    }
    press(Qt::Key_Tab);
    press(Qt::Key_Right);
    press(Qt::Key_Tab);
    press(Qt::Key_Space);
    press(Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(shownPage(), kTiltPage);
    EXPECT_EQ(record().Width, 1.25F);
    EXPECT_EQ(record().Length, 4);
    EXPECT_EQ(record().Height, 0.5F);
    EXPECT_EQ(record().UnitsType, kMeters);
    EXPECT_TRUE(record().TiltIncl);
}

TEST_F(LampPageTest, tickBoxDecidesWhetherTheTiltPageFollows)
{
    fillPageOne();
    click("chkIncludeTilt");
    click("cmdNext10");
    EXPECT_EQ(shownPage(), kTiltPage);
    EXPECT_TRUE(record().TiltIncl);
    click("cmdBack15");
    click("chkIncludeTilt");
    click("cmdNext10");
    EXPECT_EQ(shownPage(), kKeywordPage);
    EXPECT_FALSE(record().TiltIncl);
}

TEST_F(LampPageTest, tiltDataStayInARecordThatIsToHaveNone)
{
    record().TiltIncl = true;
    record().LampToLuminaireGeometry = 2;
    record().NumTiltAngles = 2;
    record().TiltAngles = {0, 90};
    record().TiltMultipliers = {1, 0.9F};
    const PhotometricRecord before = record();
    fillPageOne();
    click("cmdNext10");
    EXPECT_EQ(shownPage(), kKeywordPage);
    EXPECT_FALSE(record().TiltIncl);
    EXPECT_EQ(record().LampToLuminaireGeometry, before.LampToLuminaireGeometry);
    EXPECT_EQ(record().NumTiltAngles, before.NumTiltAngles);
    EXPECT_EQ(record().TiltAngles, before.TiltAngles);
    EXPECT_EQ(record().TiltMultipliers, before.TiltMultipliers);
}

TEST_F(LampPageTest, tiltIsNotTouchedWhileThePageIsFaulty)
{
    record().TiltIncl = true;
    warningsOfNext();
    EXPECT_TRUE(record().TiltIncl);
}

TEST_F(LampPageTest, lampsBeyondSixteenBitsAreOneMessageAndNothingIsStored)
{
    fillPageOne();
    setText("txtNumLamps", "32768");
    box("txtHeight")->setFocus();
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(dialogs.transcript, "[" + kCaptions[kLampPage] + "|0] Number of Lamps: Overflow\n");
    EXPECT_EQ(shownPage(), kLampPage);
    EXPECT_EQ(record(), PhotometricRecord());
    EXPECT_EQ(focusName(), "txtNumLamps");
    EXPECT_EQ(box("txtNumLamps")->selectedText(), "32768");
}

TEST_F(LampPageTest, dimensionBeyondASingleIsOneMessageAndNothingIsStored)
{
    fillPageOne();
    setText("txtLength", "1E39");
    EXPECT_EQ(warningsOfNext(), "");
    EXPECT_EQ(dialogs.transcript, "[" + kCaptions[kLampPage] + "|0] Length: Overflow\n");
    EXPECT_EQ(shownPage(), kLampPage);
    EXPECT_EQ(record(), PhotometricRecord());
    EXPECT_EQ(focusName(), "txtLength");
}

TEST_F(LampPageTest, enterInEachBoxPressesNext)
{
    for (const std::string &name : kLampBoxes) {
        box(name)->setFocus();
        EXPECT_NE(warningsOf([] { press(Qt::Key_Return); }), "") << name;
    }
    fillPageOne();
    box("txtHeight")->setFocus();
    press(Qt::Key_Enter);
    EXPECT_EQ(shownPage(), kKeywordPage);
}

TEST_F(LampPageTest, backShowsThePageAsItWasLeft)
{
    typePower();
    pickShape(3);
    typeInto("txtWidth", " 2.50");
    click("rdoMeters");
    EXPECT_EQ(warningsOfNext(), "");
    click("cmdBack20");
    ASSERT_EQ(shownPage(), kLampPage);
    EXPECT_EQ(text("txtBallast"), "0.95");
    EXPECT_EQ(text("txtWidth"), " 2.50");
    EXPECT_EQ(text("txtLength"), "0");
    EXPECT_FALSE(box("txtLength")->isEnabled());
    EXPECT_EQ(find<QLabel>("lmpLabWidth")->text(), "Diameter > 0");
    EXPECT_EQ(shapes()->currentIndex(), 3);
    EXPECT_TRUE(find<QRadioButton>("rdoMeters")->isChecked());
}

TEST_F(LampPageTest, nothingIsCutOffAtTheDesignSize)
{
    auto *scroll = window->findChild<QScrollArea *>();
    for (int position = -1; position < 15; ++position) {
        shapes()->setCurrentIndex(position);
        QCoreApplication::processEvents();
        EXPECT_FALSE(scroll->horizontalScrollBar()->isVisible());
        EXPECT_FALSE(scroll->verticalScrollBar()->isVisible());
        for (const QLabel *label : find("nfra0")->findChildren<QLabel *>())
            EXPECT_GE(label->width(), label->minimumSizeHint().width()) << label->objectName().toStdString();
        EXPECT_GE(shapes()->width(), shapes()->sizeHint().width());
        EXPECT_EQ(shapes()->geometry().right(), find("txtWidth")->geometry().right());
    }
    EXPECT_GE(find("Frame3")->width(), find("Frame3")->minimumSizeHint().width());
}

TEST_F(LampPageTest, smallWindowScrollsThePageInsteadOfSqueezingIt)
{
    window->resize(300, 200);
    QCoreApplication::processEvents();
    EXPECT_GE(shapes()->width(), shapes()->sizeHint().width());
    EXPECT_GE(find("Frame3")->width(), find("Frame3")->minimumSizeHint().width());
    for (const std::string &name : kLampBoxes) {
        box(name)->setFocus(Qt::TabFocusReason);
        press(Qt::Key_Backtab);
        press(Qt::Key_Tab);
        EXPECT_EQ(focusName(), name);
        EXPECT_FALSE(box(name)->visibleRegion().isEmpty()) << name;
    }
}

struct PastedCase {
    const char *pasted;
    const char *kept;
};

class PastedIntoABox : public LampPageTest, public testing::WithParamInterface<PastedCase> {};

INSTANTIATE_TEST_SUITE_P(LineEnds, PastedIntoABox,
                         testing::Values(PastedCase{"5\n", "5"}, PastedCase{"900\r\n", "900"}, PastedCase{"5\n\n", "5"},
                                         PastedCase{"5\n6\n", "5 6"}, PastedCase{"5\r\n6", "5 6"},
                                         PastedCase{"5\t6", "5 6"}, PastedCase{"\n", ""}, PastedCase{" 5 ", " 5 "}));

TEST_P(PastedIntoABox, becomesOneLine)
{
    find("txtNumLamps")->setFocus();
    QGuiApplication::clipboard()->setText(GetParam().pasted);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(text("txtNumLamps"), GetParam().kept);
    box("txtNumLamps")->clear();
    box("txtNumLamps")->paste();  // as the menu does
    EXPECT_EQ(text("txtNumLamps"), GetParam().kept);
}

TEST_F(LampPageTest, aLineOfTheWarningsLeadsToItsField)
{
    QTimer::singleShot(0, window.get(), [&] {
        auto *list = find<QPlainTextEdit>("Text1");
        for (int down = 0; down < 4; ++down)
            QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
    });
    click("cmdNext10");
    QApplication::setActiveWindow(window.get());  // as a window manager does when a dialog has closed
    EXPECT_EQ(focusName(), "txtWatt");
}

}  // namespace
}  // namespace penwright::test
