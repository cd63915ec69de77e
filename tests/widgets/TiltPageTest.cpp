#include "widgets/TiltPageTest.h"

namespace penwright::test {
namespace {

TEST_F(TiltPageTest, hasItsControlsWithTheirCaptions)
{
    EXPECT_EQ(find<QGroupBox>("lmpFraTlt")->title(), "Tilt Information");
    EXPECT_EQ(find<QLabel>("lmpLabNumTiltAngles")->text(), "Number Of Angles");
    EXPECT_EQ(find<QLabel>("lmpLabNumTiltAngles")->buddy(), count());
    EXPECT_EQ(find<QLabel>("lmpLabTltLampToLum")->text(), "Lamp To Luminaire Geometry:");
    EXPECT_EQ(find<QLabel>("lmpLabTltLampToLum")->buddy(), find("l2lg0"));
    EXPECT_EQ(find<QRadioButton>("l2lg0")->text(), "Vertical");
    EXPECT_EQ(find<QRadioButton>("l2lg1")->text(), "Horizontal Along The 90-degree Plane");
    EXPECT_EQ(find<QRadioButton>("l2lg2")->text(), "Horizontal Along The 0-degree Plane");
    EXPECT_EQ(find<QLabel>("Label1")->text(),
              "Tilt information is for HID fixtures whose lamps change output in relation to their orientation and "
              "tilt");
    EXPECT_EQ(grid()->model()->headerData(0, Qt::Horizontal).toString(), "Angle");
    EXPECT_EQ(grid()->model()->headerData(1, Qt::Horizontal).toString(), "Factor");
}

TEST_F(TiltPageTest, beginsEmptyWithTheCountAndNoGeometry)
{
    EXPECT_EQ(focusName(), "lmpTxtNumAngles");
    EXPECT_EQ(count()->text(), "");
    EXPECT_EQ(cells(), "");
    for (const char *button : {"l2lg0", "l2lg1", "l2lg2"})
        EXPECT_FALSE(find<QRadioButton>(button)->isChecked());
}

TEST_F(TiltPageTest, clickIntoTheCountSelectsAll)
{
    typeCount("12");
    QTest::mouseClick(count(), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(count()->selectedText(), "12");
}

TEST_F(TiltPageTest, tabOrderFollowsTheEye)
{
    fill({"0", "90"});
    count()->setFocus();
    std::vector<std::string> walked;
    for (int i = 0; i < 7; ++i) {
        walked.push_back(focusName());
        press(Qt::Key_Tab, focusName() == "lmpGridTiltMultiplier" ? Qt::ControlModifier : Qt::NoModifier);
    }
    EXPECT_EQ(walked, (std::vector<std::string>{"lmpTxtNumAngles", "l2lg0", "lmpGridTiltMultiplier", "cmdCancel15",
                                                "cmdHelp15", "cmdNext15", "cmdBack15"}));
}

}  // namespace
}  // namespace penwright::test
