#include "widgets/PageTexts.h"

namespace penwright::test {
namespace {

/// The wizard with its pages one behind the other filled and left as a user would, up to page 5.
class PageValueTest : public WizardTest {
protected:
    void SetUp() override { startWizard(); }

    PageFrame &page(int index) { return *find<PageFrame>("nfra" + std::to_string(index)); }

    std::string names(int index)
    {
        std::string names;
        for (const HeldText &held : page(index).value())
            names += held.name + " ";
        return names;
    }

    void fillUpToPageFive()
    {
        fillPageOne();
        find<QAbstractButton>("chkIncludeTilt")->setChecked(true);
        click("cmdNext10");
        fillPageTwo();
        click("cmdNext15");
        find<GridView>("keyGrid")->goTo(2, 1);
        typeText("No. 7");
        press(Qt::Key_Return);
        click("cmdNext20");
        fillPageFour();
        click("cmdNext30");
        ASSERT_EQ(shownPage(), kCandelaPage);
        fillPageFive();
    }

    /// All that a window shows of a page: captions, texts, what is enabled and visible.
    std::string look(int index)
    {
        std::string look;
        for (const QWidget *widget : page(index).findChildren<QWidget *>()) {
            const auto *label = qobject_cast<const QLabel *>(widget);
            const auto *line = qobject_cast<const QLineEdit *>(widget);
            const auto *list = qobject_cast<const QComboBox *>(widget);
            // An editor that has been closed lives until the event loop runs.
            if ((!label && !line && !list) || (line && widget->objectName().isEmpty()))
                continue;
            look += widget->objectName().toStdString() + (widget->isEnabled() ? "" : " off") +
                    (widget->isVisibleTo(&page(index)) ? "" : " hidden") +
                    (label ? " " + label->text().toStdString() : "") + (line ? " " + line->text().toStdString() : "");
            for (int entry = 0; list && entry < list->count(); ++entry)
                look += "|" + list->itemText(entry).toStdString();
            look += "\n";
        }
        return look;
    }
};

TEST_F(PageValueTest, namesBoxesBeforeGridsInTheOrderOfTheForm)
{
    EXPECT_EQ(names(kLampPage),
              "txtNumLamps txtLumPerLamp txtMultiplier txtBallast txtWatt lmpCmbShape txtWidth txtLength txtHeight "
              "rdoFeet rdoMeters chkIncludeTilt ");
    EXPECT_EQ(names(kTiltPage), "lmpTxtNumAngles l2lg0 l2lg1 l2lg2 lmpGridTiltMultiplier ");
    EXPECT_EQ(names(kKeywordPage), "keyGrid ");
    EXPECT_EQ(names(kDistributionPage), "rdoC rdoB phoCmbVert phoCmbHorz phoGridVert phoGridHorz ");
    EXPECT_EQ(names(kCandelaPage), "cdaGridCd ");
    EXPECT_EQ(names(kFinishPage), "");
}

TEST_F(PageValueTest, isWhatStoodWhenItWasTaken)
{
    setText("txtNumLamps", "4");
    const PageValue value = page(kLampPage).value();
    setText("txtNumLamps", "5");
    EXPECT_EQ(value.front().text(), "4");
}

TEST_F(PageValueTest, comesBackOnEachPageOfAnotherWizard)
{
    fillUpToPageFive();
    find<QComboBox>("lmpCmbShape")->setCurrentIndex(3);
    find<QAbstractButton>("rdoMeters")->click();
    std::vector<PageText> texts;
    std::vector<std::string> looks;
    for (int index = kLampPage; index <= kDistributionPage; ++index) {
        texts.push_back(textsOf(page(index)));
        looks.push_back(look(index));
    }
    window.reset();
    startWizard();
    window->ShowPage(kKeywordPage);
    for (int index = kLampPage; index <= kDistributionPage; ++index) {
        EXPECT_NE(textsOf(page(index)), texts.at(index));
        EXPECT_TRUE(page(index).showValue(texts.at(index), "Back"));
        EXPECT_EQ(textsOf(page(index)), texts.at(index));
    }
    EXPECT_EQ(look(kLampPage), looks.at(kLampPage));
    EXPECT_EQ(look(kDistributionPage), looks.at(kDistributionPage));
}

TEST_F(PageValueTest, bringsBackTheUntouchedPagesToo)
{
    for (const int index : {kLampPage, kTiltPage, kDistributionPage}) {
        const PageText untouched = textsOf(page(index));
        const std::string before = look(index);
        window->ShowPage(index);
        if (index == kLampPage) {
            find<QComboBox>("lmpCmbShape")->setCurrentIndex(0);
            fillPageOne();
        } else if (index == kTiltPage) {
            fillPageTwo();
        } else {
            fillPageFour();
        }
        EXPECT_NE(textsOf(page(index)), untouched);
        EXPECT_TRUE(page(index).showValue(untouched, "Back"));
        EXPECT_EQ(textsOf(page(index)), untouched);
        EXPECT_EQ(look(index), before);
    }
}

TEST_F(PageValueTest, keepsTheTextOfABoxThatItsShapeWouldEmpty)
{
    EXPECT_TRUE(page(kLampPage).showValue({{"lmpCmbShape", "2"}, {"txtWidth", "7"}}, "Back"));
    EXPECT_EQ(text("txtWidth"), "7");
}

TEST_F(PageValueTest, keepsTheValuesOfATableThatItsCountWouldEmpty)
{
    window->ShowPage(kTiltPage);
    fillPageTwo();
    const PageText filled = textsOf(page(kTiltPage));
    setText("lmpTxtNumAngles", "3");
    EXPECT_TRUE(page(kTiltPage).showValue(filled, "Back"));
    EXPECT_EQ(textsOf(page(kTiltPage)), filled);
}

TEST_F(PageValueTest, bringsTheCandelaBackToATableOfItsSize)
{
    fillUpToPageFive();
    const PageText filled = textsOf(page(kCandelaPage));
    find<GridView>("cdaGridCd")->goTo(1, 1);
    typeText("77");
    press(Qt::Key_Return);
    EXPECT_NE(textsOf(page(kCandelaPage)), filled);
    EXPECT_TRUE(page(kCandelaPage).showValue(filled, "Back"));
    EXPECT_EQ(textsOf(page(kCandelaPage)), filled);
    EXPECT_FALSE(page(kCandelaPage).showValue({{"cdaGridCd", "1\nx\n"}}, "Back"));
}

TEST_F(PageValueTest, isRefusedAsAWholeForAControlThatThePageDoesNotHave)
{
    const PageText before = textsOf(page(kLampPage));
    for (const char *name : {"", "lmpTxtNumAngles", "cmdNext10", "lmpLabWidth"})
        EXPECT_FALSE(page(kLampPage).showValue({{"txtWatt", "9"}, {name, "1"}}, "Back")) << name;
    EXPECT_EQ(textsOf(page(kLampPage)), before);
}

TEST_F(PageValueTest, isRefusedAsAWholeForATextThatCannotStandThere)
{
    const std::vector<std::pair<std::string, std::string>> bad{
        {"txtWatt", "1\n2"},   {"txtWatt", std::string(40000, '1')},
        {"lmpCmbShape", "15"}, {"lmpCmbShape", "-2"},
        {"lmpCmbShape", ""},   {"lmpCmbShape", "01"},
        {"rdoFeet", "2"},      {"chkIncludeTilt", "true"},
        {"rdoMeters", "1"},
    };
    const PageText before = textsOf(page(kLampPage));
    for (const auto &[name, text] : bad)
        EXPECT_FALSE(page(kLampPage).showValue({{"txtBallast", "9"}, {name, text}}, "Back")) << name << " " << text;
    EXPECT_EQ(textsOf(page(kLampPage)), before);
    EXPECT_TRUE(page(kLampPage).showValue({{"rdoFeet", "0"}, {"rdoMeters", "1"}}, "Back"));
}

TEST_F(PageValueTest, isRefusedForAGridsTextThatIsDamaged)
{
    window->ShowPage(kTiltPage);
    fillPageTwo();
    const PageText before = textsOf(page(kTiltPage));
    EXPECT_FALSE(page(kTiltPage).showValue({{"lmpTxtNumAngles", "9"}, {"lmpGridTiltMultiplier", "1\t"}}, "Back"));
    EXPECT_EQ(textsOf(page(kTiltPage)), before);
}

}  // namespace
}  // namespace penwright::test
