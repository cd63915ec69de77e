#include "widgets/WizardTest.h"

namespace penwright::test {
namespace {

struct PageCase {
    int index;
    std::string number;
    std::string cancel;
    int helpId;
    std::string firstField;
};

void PrintTo(const PageCase &page, std::ostream *out)
{
    *out << "page " << page.number;
}

class Pages : public WizardTest {
protected:
    /// The areas that scroll a page, the whole one's first, then the form's.
    std::vector<QScrollArea *> scrollAreas(int page)
    {
        return {window->findChild<QScrollArea *>(), find("nfra" + std::to_string(page))->findChild<QScrollArea *>()};
    }
};

class Page : public Pages, public testing::WithParamInterface<PageCase> {
protected:
    void SetUp() override
    {
        startWizard();
        window->ShowPage(GetParam().index);
    }
    std::vector<std::string> buttonNames() const
    {
        const PageCase &page = GetParam();
        return {page.cancel, "cmdHelp" + page.number, "cmdNext" + page.number, "cmdBack" + page.number};
    }
};

INSTANTIATE_TEST_SUITE_P(Table, Page,
                         testing::Values(PageCase{0, "10", "cmdCancel", 202, "txtNumLamps"},
                                         PageCase{1, "15", "cmdCancel15", 203, "lmpTxtNumAngles"},
                                         PageCase{2, "20", "cmdCancel20", 204, "keyGrid"},
                                         PageCase{3, "30", "cmdCancel30", 205, "rdoC"},
                                         PageCase{4, "50", "cmdCancel50", 206, "cdaGridCd"},
                                         PageCase{5, "80", "cmdCancel80", 207, "cmdUnname"}));

TEST_P(Page, isTheOnlyOneShownAndNamesTheWindow)
{
    EXPECT_EQ(shownPage(), GetParam().index);
    EXPECT_EQ(caption(), kCaptions.at(GetParam().index));
}

TEST_P(Page, showsItsCaptionAtItsTop)
{
    QWidget *frame = find("nfra" + std::to_string(GetParam().index));
    const auto *top = qobject_cast<QLabel *>(frame->childAt(frame->width() / 3, 40));
    ASSERT_TRUE(top);
    EXPECT_EQ(top->text().toStdString(), kCaptions.at(GetParam().index));
}

TEST_P(Page, hasItsFourButtonsInOrderInOneRow)
{
    const std::vector<std::string> captions{"Cancel", "Help", "Next >", "< Back"};
    const std::vector<std::string> names = buttonNames();
    int right = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto *button = find<QPushButton>(names[i]);
        EXPECT_EQ(button->text().toStdString(), captions[i]);
        EXPECT_EQ(button->y(), find(names[0])->y());
        EXPECT_GT(button->x(), right) << names[i];
        EXPECT_EQ(button->parentWidget()->objectName().toStdString(), "nfra" + std::to_string(GetParam().index));
        right = button->geometry().right();
    }
}

TEST_P(Page, helpButtonAndF1OpenItsTopic)
{
    click("cmdHelp" + GetParam().number);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
    const std::pair<std::string, int> topic("/tool/Lumentor_PE-HTML.chm", GetParam().helpId);
    EXPECT_EQ(help.topics, (std::vector{topic, topic}));
}

TEST_P(Page, cancelButtonAsks)
{
    dialogs.answers = {Answer::No};
    click(GetParam().cancel);
    EXPECT_EQ(dialogs.transcript,
              "[Canceling New File Wizard|52] Changes will be lost. Are you sure you want to cancel?\n");
}

TEST_P(Page, beginsWithItsFirstField)
{
    EXPECT_EQ(focusName(), GetParam().firstField);
}

TEST_P(Page, tabWalksThroughTheFormAndThenTheButtons)
{
    const std::vector<std::vector<std::string>> forms{
        {"txtNumLamps", "txtLumPerLamp", "txtMultiplier", "txtBallast", "txtWatt", "lmpCmbShape", "txtWidth",
         "txtLength", "txtHeight", "rdoFeet", "chkIncludeTilt"},
        {"lmpTxtNumAngles", "l2lg0", "lmpGridTiltMultiplier"},
        {"keyGrid", "cmdDefaultLoad", "cmdSaveDefaults"},
        {"rdoC"},
        {"cdaGridCd", "rtbVert", "rtbHorz", "picCda", "plotLinear"},
        {"cmdUnname", "cmdSaveAs", "reviewRemarks", "reviewFigures", "qt_tabwidget_tabbar", "reviewPicture"}};
    std::vector<std::string> expected = forms.at(GetParam().index);
    for (const std::string &button : buttonNames())
        if (find(button)->isEnabled())
            expected.push_back(button);
    std::vector<std::string> walked;
    do {
        walked.push_back(focusName());
        // Tab alone walks through the cells of a grid.
        const bool isGrid = qobject_cast<QTableView *>(QApplication::focusWidget());
        press(Qt::Key_Tab, isGrid ? Qt::ControlModifier : Qt::NoModifier);
    } while (focusName() != GetParam().firstField && walked.size() < 20);
    EXPECT_EQ(walked, expected);
}

TEST_P(Page, everyInputHasAnAccessibleName)
{
    QWidget *frame = find("nfra" + std::to_string(GetParam().index));
    EXPECT_EQ(frame->accessibleName().toStdString(), kCaptions.at(GetParam().index));
    for (QWidget *widget : frame->findChildren<QWidget *>()) {
        if (!(widget->focusPolicy() & Qt::TabFocus) || qobject_cast<QPushButton *>(widget))
            continue;
        EXPECT_NE(widget->accessibleName(), "") << widget->objectName().toStdString();
    }
}

TEST_P(Page, fitsTheDesignSizeWithoutScrolling)
{
    EXPECT_EQ(window->size(), QSize(720, 560));
    for (const std::string &name : buttonNames())
        EXPECT_FALSE(find(name)->visibleRegion().isEmpty()) << name;
}

TEST_P(Page, scrollsBelowItsMinimumToEveryButton)
{
    window->resize(200, 150);
    for (const std::string &name : buttonNames()) {
        QWidget *button = find(name);
        if (!button->isEnabled())
            continue;
        button->setFocus(Qt::TabFocusReason);
        // Travelling by Tab is what brings a control into view.
        QTest::keyClick(button, Qt::Key_Backtab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_TRUE(button->hasFocus()) << name;
        EXPECT_FALSE(button->visibleRegion().isEmpty()) << name;
    }
}

// A window of 800 x 600 leaves an embedded wizard about so much.
TEST_P(Page, keepsItsCaptionAndButtonsInSightWhereTheFormScrolls)
{
    window->resize(554, 347);
    QCoreApplication::processEvents();
    const auto isInSight = [this](const QWidget &part) {
        const QRect place(part.mapTo(window.get(), QPoint()), part.size());
        return window->rect().contains(place) && part.visibleRegion() == QRegion(part.rect());
    };
    for (const std::string &name : buttonNames())
        EXPECT_TRUE(isInSight(*find(name))) << name;
    const auto labels = find("nfra" + std::to_string(GetParam().index))->findChildren<QLabel *>();
    const auto caption = std::find_if(labels.begin(), labels.end(), [](const QLabel *label) {
        return label->text().toStdString() == kCaptions.at(GetParam().index);
    });
    ASSERT_NE(caption, labels.end());
    EXPECT_TRUE(isInSight(**caption));
    EXPECT_FALSE(scrollAreas(GetParam().index).front()->verticalScrollBar()->isVisible()) << "it scrolls once";
}

TEST_P(Page, opensAtItsTopWithItsFirstFieldInView)
{
    for (const QSize size : {QSize(554, 347), QSize(300, 200)}) {
        window->resize(size);
        for (const QScrollArea *scroll : scrollAreas(GetParam().index))
            for (QScrollBar *bar : {scroll->verticalScrollBar(), scroll->horizontalScrollBar()})
                bar->setValue(bar->maximum());
        window->ShowPage(GetParam().index);
        QCoreApplication::processEvents();
        EXPECT_EQ(focusName(), GetParam().firstField);
        EXPECT_FALSE(find(GetParam().firstField)->visibleRegion().isEmpty()) << size.width();
        for (const QScrollArea *scroll : scrollAreas(GetParam().index))
            if (size.width() > 500)
                EXPECT_EQ(scroll->verticalScrollBar()->value(), 0);
    }
}

TEST_F(Pages, faultyFieldIsInViewAfterItsWarnings)
{
    startWizard();
    window->resize(554, 347);
    QScrollArea *scroll = scrollAreas(kLampPage).back();
    QCoreApplication::processEvents();
    scroll->verticalScrollBar()->setValue(scroll->verticalScrollBar()->maximum());
    ASSERT_TRUE(find("txtNumLamps")->visibleRegion().isEmpty());
    EXPECT_NE(warningsOf([this] { click("cmdNext10"); }), "");
    QCoreApplication::processEvents();
    EXPECT_EQ(focusName(), "txtNumLamps");
    EXPECT_EQ(find("txtNumLamps")->visibleRegion(), QRegion(find("txtNumLamps")->rect()));
}

TEST_F(Pages, faultyCellIsInViewAfterItsWarnings)
{
    startWizard();
    fillPageTwo();
    window->ShowPage(kTiltPage);
    window->resize(420, 260);
    QCoreApplication::processEvents();
    auto *grid = find<GridView>("lmpGridTiltMultiplier");
    grid->goTo(1, 0);
    typeText("5");
    press(Qt::Key_Return);
    for (const QScrollArea *scroll : scrollAreas(kTiltPage)) {
        scroll->horizontalScrollBar()->setValue(0);
        scroll->verticalScrollBar()->setValue(scroll->verticalScrollBar()->maximum());
    }
    EXPECT_NE(warningsOf([this] { find<QAbstractButton>("cmdNext15")->click(); }), "");
    QCoreApplication::processEvents();
    EXPECT_EQ(focusName(), "lmpGridTiltMultiplier");
    const QRect cell = grid->visualRect(grid->currentIndex());
    EXPECT_TRUE(grid->viewport()->visibleRegion().contains(cell.center())) << cell.x() << " " << cell.y();
}

TEST_F(Pages, buttonsThatLeadNowhereAreDisabled)
{
    loadWindow();
    std::vector<std::string> disabled;
    for (const QPushButton *button : window->findChildren<QPushButton *>())
        if (!button->isEnabled())
            disabled.push_back(button->objectName().toStdString());
    EXPECT_EQ(disabled, (std::vector<std::string>{"cmdBack10", "cmdNext80"}));
}

TEST_F(Pages, anyOtherIndexHidesAllAndKeepsTheCaption)
{
    startWizard();
    for (const int index : {6, -1, 1000}) {
        window->ShowPage(kCandelaPage);
        window->ShowPage(index);
        EXPECT_EQ(shownPage(), -1);
        EXPECT_EQ(caption(), kCaptions[kCandelaPage]);
    }
}

TEST_F(Pages, withNoPageShownF1OpensNothing)
{
    startWizard();
    window->ShowPage(6);
    QTest::keyClick(window.get(), Qt::Key_F1);
    EXPECT_TRUE(help.topics.empty());
}

TEST_F(Pages, furtherHelpHandlerOpensPageFoursTopic)
{
    loadWindow();
    window->cmdHelp_Click();
    ASSERT_EQ(help.topics.size(), 1u);
    EXPECT_EQ(help.topics[0].second, 205);
}

TEST_F(Pages, turningThePageClosesAnOpenMenu)
{
    startWizard();
    QMenu menu(window.get());
    menu.addAction("Paste");
    menu.popup(QPoint(50, 50));
    ASSERT_EQ(QApplication::activePopupWidget(), &menu);
    window->ShowPage(kKeywordPage);
    EXPECT_FALSE(QApplication::activePopupWidget());
}

}  // namespace
}  // namespace penwright::test
