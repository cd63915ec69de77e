// What a screen reader is told with a control: hints, units, keys.
#include "widgets/WizardTest.h"

namespace penwright::test {
namespace {

class ReadHint : public WizardTest {
protected:
    void SetUp() override { startWizard(); }
    std::string description(const std::string &name) { return find(name)->accessibleDescription().toStdString(); }
};

TEST_F(ReadHint, keywordIsExplainedWithItsGrid)
{
    window->ShowPage(kKeywordPage);
    EXPECT_EQ(description("keyGrid"), "Version line of the format of 2002");
    press(Qt::Key_Down);
    EXPECT_EQ(description("keyGrid"), "Test report number");
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(description("keyGrid"), "Type here to add line 10.");
}

TEST_F(ReadHint, lineThatIsTooLongAndEmptyRowsAreToldWithTheGrid)
{
    window->ShowPage(kKeywordPage);
    find<GridView>("keyGrid")->goTo(2, 1);
    press(Qt::Key_F2);
    auto *line = find("keyGrid")->findChild<QLineEdit *>();
    line->setText(QString(248, 'a'));  // with "[TEST]" all that a line may have
    EXPECT_EQ(description("keyGrid"), "Test report number");
    typeText("b");
    EXPECT_EQ(description("keyGrid"), "Test report number. The line is too long: more than 254 characters.");
    press(Qt::Key_Escape);
    press(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(description("keyGrid"), "Row 2 is empty: it is written to the file as an empty line.");
}

TEST_F(ReadHint, unitsAreToldWithTheDimensions)
{
    EXPECT_EQ(description("txtWidth"), "Feet");
    find<QAbstractButton>("rdoMeters")->click();
    for (const std::string box : {"txtWidth", "txtLength", "txtHeight"})
        EXPECT_EQ(description(box), "Meters");
}

TEST_F(ReadHint, postThatNobodyTakesIsToldWithTheButtons)
{
    window->ShowPage(kFinishPage);
    click("cmdUnname");
    const std::string status = find<QLabel>("labStatus")->text().toStdString();
    ASSERT_NE(status, "");
    EXPECT_EQ(description("cmdUnname"), status);
    EXPECT_EQ(description("cmdSaveAs"), status);
}

TEST_F(ReadHint, keyOfAButtonIsSeenAsWellAsHeard)
{
    loadWindow();
    for (const char *button : {"cmdCancel", "cmdHelp15", "cmdNext20", "cmdBack30"}) {
        EXPECT_EQ(find(button)->toolTip(), find(button)->accessibleDescription()) << button;
        EXPECT_FALSE(find(button)->toolTip().isEmpty()) << button;
    }
}

struct SeenHint {
    int page;
    std::string field;
    std::string label;
};

void PrintTo(const SeenHint &hint, std::ostream *out)
{
    *out << hint.field;
}

class HintOfAField : public WizardTest, public testing::WithParamInterface<SeenHint> {};

INSTANTIATE_TEST_SUITE_P(Pages, HintOfAField,
                         testing::Values(SeenHint{kLampPage, "txtLumPerLamp", "labLumens"},
                                         SeenHint{kTiltPage, "lmpTxtNumAngles", "labCount"},
                                         SeenHint{kTiltPage, "lmpGridTiltMultiplier", "labTable"},
                                         SeenHint{kDistributionPage, "phoGridVert", "labVertAngles"},
                                         SeenHint{kDistributionPage, "phoGridHorz", "labHorzAngles"}));

TEST_P(HintOfAField, isSeenBelowItAsWellAsHeard)
{
    startWizard();
    window->ShowPage(GetParam().page);
    fillPageFour();
    const auto *label = find<QLabel>(GetParam().label);
    const QWidget *field = find(GetParam().field);
    EXPECT_TRUE(label->isVisible());
    EXPECT_FALSE(label->text().isEmpty());
    EXPECT_TRUE(field->accessibleDescription().contains(label->text())) << label->text().toStdString();
    EXPECT_GE(label->mapToGlobal(QPoint()).y(), field->mapToGlobal(QPoint(0, field->height())).y());
}

}  // namespace
}  // namespace penwright::test
