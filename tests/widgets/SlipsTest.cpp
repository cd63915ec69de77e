// Slips of the hand on every page, played with the keys and clicks of those who make them: each is taken back by one
// Ctrl+Z, pressed where the slip has left the focus, or takes nothing away.
#include "support/DialogDriver.h"
#include "widgets/DraftsTest.h"

namespace penwright::test {
namespace {

/// What a slip does to the pages.
enum class Harm {
    Undone,  ///< it changes them, and one Ctrl+Z brings everything back
    None,    ///< it changes nothing
};

/// Acts are written as a key ("Ctrl+A"), "@name" for a click on a control, "@name:row,column" on a cell, "!name" for
/// the focus on it, "=text" for a typed text, "^text" for one pasted by its key, "table^text" for a table taken as it
/// is guessed, "wheel name" for a turn of the wheel over a control.
struct Slip {
    const char *name;
    std::vector<std::string> before;  ///< what is no slip yet
    std::vector<std::string> acts;
    Harm harm = Harm::Undone;
    std::vector<std::string> after{};  ///< the Ctrl+Z, before one looks
};

const std::string kOtherTable = "Gamma\tC0\tC90\n0\t1000\t1000\n45\t700.5\t650.25\n90\t12.3\t0\n";
const std::string kOtherValues = "1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n";

const std::vector<Slip> kLampSlips{
    {"a value typed into the wrong box", {}, {"@txtWatt", "=2050"}},
    {"a digit typed after Tab", {"!txtNumLamps"}, {"Tab", "=7"}},
    {"Delete on a box", {"@txtMultiplier"}, {"Delete"}},
    {"Backspace on a box", {"@txtMultiplier"}, {"Backspace"}},
    {"a value cut instead of copied", {"@txtBallast"}, {"Ctrl+X"}},
    {"a value pasted over another", {"@txtWatt"}, {"^250"}},
    {"a cell of a spreadsheet pasted over a value", {"@txtWatt"}, {"^250\r\n"}},
    {"another shape by an arrow key", {"!lmpCmbShape"}, {"Down"}},
    {"another shape by a letter", {"!lmpCmbShape"}, {"=s"}},
    {"another shape by the list", {"!lmpCmbShape"}, {"Alt+Down", "Down", "Return"}},
    {"the wheel over the list of shapes", {"!lmpCmbShape"}, {"wheel lmpCmbShape"}, Harm::None},
    {"the other units", {}, {"@rdoMeters"}},
    {"units by an arrow key", {"!rdoFeet"}, {"Right"}},
    {"tilt unticked after its table was typed", {"!rdoFeet"}, {"Tab", "Space"}},
    {"typed on after one Ctrl+Z too many", {"@txtWatt", "=3", "Ctrl+Z"}, {"=9"}},
};

const std::vector<Slip> kTiltSlips{
    {"the count typed over", {"!lmpTxtNumAngles", "Ctrl+A"}, {"=35"}},
    {"the count made longer", {"!lmpTxtNumAngles", "End"}, {"=5"}},
    {"the count deleted", {"@lmpTxtNumAngles"}, {"Delete"}},
    {"a digit typed after Back from page 3", {"Alt+N", "Alt+B"}, {"=5", "Return"}},
    {"Delete on all cells", {"@lmpGridTiltMultiplier:1,0", "Ctrl+A"}, {"Delete"}},
    {"a digit typed over all cells", {"@lmpGridTiltMultiplier:1,0", "Ctrl+A"}, {"=5", "Return"}},
    {"a digit typed over a cell and left with Tab", {"@lmpGridTiltMultiplier:2,1"}, {"=5", "Tab"}},
    {"a block pasted over values", {"@lmpGridTiltMultiplier:1,0"}, {"^5\t6\n7\t8\n"}},
    {"one cell of a spreadsheet pasted over a value", {"@lmpGridTiltMultiplier:1,1"}, {"^5\r\n"}},
    {"Escape in a cell after long typing", {"@lmpGridTiltMultiplier:1,1", "=2", "Return", "=0.123456789"}, {"Escape"}},
    {"another geometry", {}, {"@l2lg2"}},
    {"another geometry by Tab and Space", {"!lmpTxtNumAngles"}, {"Tab", "Down"}},
};

const std::vector<Slip> kKeywordSlips{
    {"a line typed over", {"@keyGrid:3,1"}, {"=wrong", "Return"}},
    {"Enter on Load Defaults, which is Next", {"!cmdDefaultLoad"}, {"Return", "Alt+B"}, Harm::None},
    {"Load Defaults clicked", {}, {"@cmdDefaultLoad"}},
    {"Load Defaults by Space behind the grid", {"!keyGrid"}, {"Ctrl+Tab", "Space"}},
    {"Load Defaults clicked while a line is typed, which is one step more",
     {"@keyGrid:4,1", "=Night Lab", "!cmdDefaultLoad"},
     {"Space"}},
    {"a row deleted", {"@keyGrid:3,1"}, {"Ctrl+-"}},
    {"all rows deleted", {"@keyGrid:3,1", "Ctrl+A"}, {"Ctrl+-"}},
    {"a row moved", {"@keyGrid:3,1"}, {"Alt+Down"}},
    {"a row put in", {"@keyGrid:3,1"}, {"Ctrl++"}},
    {"Delete on all cells", {"@keyGrid:1,0", "Ctrl+A"}, {"Delete"}},
    {"a block pasted over lines", {"@keyGrid:2,0"}, {"^[TEST]\ta\n[TESTLAB]\tb\n"}},
    {"another keyword from the list", {"@keyGrid:4,0"}, {"F4", "Down", "Return"}},
    {"a cell of a spreadsheet pasted over a line", {"@keyGrid:3,1"}, {"^Night Lab\r\n"}},
    {"Cut in the grid, which has none", {"@keyGrid:3,1"}, {"Ctrl+X"}, Harm::None},
    {"Cut in an open cell", {"@keyGrid:3,1", "F2", "=, Night Lab", "Ctrl+A"}, {"Ctrl+X"}},
    {"Escape in a cell after long typing",
     {"@keyGrid:3,1", "=2", "Return", "=A long name of a laboratory"},
     {"Escape"}},
    {"the defaults saved by mistake", {"@keyGrid:3,1", "=once", "Return"}, {"@cmdSaveDefaults"}},
};

const std::vector<Slip> kAngleSlips{
    {"the other type", {}, {"@rdoB"}},
    {"the type clicked once more, which empties the lists", {}, {"@rdoC"}},
    {"the type by an arrow key", {"!rdoC"}, {"Down"}},
    {"a count typed over", {"!phoCmbVert", "Ctrl+A"}, {"=35"}},
    {"a word typed over a count", {"!phoCmbHorz", "Ctrl+A"}, {"=abc"}},
    {"a minus sign typed over a count", {"!phoCmbVert", "Ctrl+A"}, {"=-"}},
    {"a set of angles by an arrow key", {"!phoCmbVert"}, {"Down"}},
    {"the same set taken again over typed angles",
     {"@phoGridVert:1,2", "=25", "Return", "!phoCmbVert"},
     {"Alt+Down", "Return"}},
    {"the wheel over a list", {"!phoCmbVert"}, {"wheel phoCmbVert"}, Harm::None},
    {"Delete on all angles", {"@phoGridVert:1,1", "Ctrl+A"}, {"Delete"}},
    {"an angle typed over", {"@phoGridVert:1,1"}, {"=11", "Return"}},
    {"a list of angles pasted over another", {"@phoGridVert:1,0"}, {"^1\t2\t3\n"}},
    {"Escape in a cell after long typing", {"@phoGridVert:1,1", "=10", "Return", "=12.345"}, {"Escape"}},
    {"a table taken by mistake", {"!phoGridVert"}, {"table^" + kOtherTable}},
};

const std::vector<Slip> kCandelaSlips{
    {"a value typed over", {"@cdaGridCd:3,1"}, {"=77", "Return"}},
    {"a digit typed over the whole table", {"@cdaGridCd:3,1", "Ctrl+A"}, {"=7", "Return"}},
    {"a digit typed on arrival", {"Alt+B", "Alt+N"}, {"=7", "Down"}},
    {"other values pasted", {"!cdaGridCd"}, {"^" + kOtherValues}},
    {"one cell of a spreadsheet pasted, which is no table", {"@cdaGridCd:3,1"}, {"^5\r\n"}, Harm::None},
    {"Delete on all cells, which is refused", {"@cdaGridCd:3,1", "Ctrl+A"}, {"Delete"}, Harm::None},
    {"Cut, which the table has none of", {"@cdaGridCd:3,1", "Ctrl+A"}, {"Ctrl+X"}, Harm::None},
    {"Escape in a cell after long typing", {"@cdaGridCd:3,1", "=2", "Return", "=12345.6"}, {"Escape"}},
    {"a table taken by mistake", {"!cdaGridCd"}, {"table^" + kOtherTable}},
    {"other angles chosen on page 4",
     {"Alt+B", "Alt+N"},
     {"Alt+B", "!phoCmbHorz", "Down", "Alt+N"},
     Harm::Undone,
     {"Alt+B"}},
    {"the other type chosen on page 4",
     {"Alt+B", "Alt+N"},
     {"Alt+B", "@rdoB", "!phoCmbVert", "Down", "!phoCmbHorz", "Down", "Alt+N"},
     Harm::Undone,
     {"Alt+B"}},
};

class Slips : public DraftsTest {
protected:
    /// The pages before one filled, that one too, and shown.
    void openPage(int page)
    {
        startRun();
        fillPagesBefore(kFinishPage);
        window->ShowPage(kLampPage);
        find<QAbstractButton>("chkIncludeTilt")->setChecked(true);
        find("lmpCmbShape")->setFocus();
        press(Qt::Key_Down);
        fillPageOne();
        for (int shown = kLampPage; shown < page; ++shown)
            click("cmdNext" + std::to_string(kPages[static_cast<std::size_t>(shown)].number));
        ASSERT_EQ(shownPage(), page);
    }

    /// What is not to be lost: what will stand on each page when it is shown, what is being typed, stored defaults.
    std::vector<PageText> standing()
    {
        std::vector<PageText> pages;
        for (int page = 0; page < kPageCount; ++page) {
            PageText texts;
            const PageFrame &frame = window->page(page);
            for (const HeldText &held : page < shownPage() ? frame.valueOnReturn() : frame.value())
                texts.emplace(held.name, held.text());
            for (const GridView *grid : frame.fields().grids())
                if (const auto typed = grid->halfTyped())
                    texts["typed"] = typed->text;
            pages.push_back(texts);
        }
        PageText defaults;
        for (const Setting &setting : store.readAll("Lumentor32", "Tool_DefaultKeywords"))
            defaults.emplace(setting.name, setting.data);
        pages.push_back(defaults);
        return pages;
    }

    static QWidget *focus()
    {
        if (QWidget *popup = QApplication::activePopupWidget())
            return popup->focusWidget() ? popup->focusWidget() : popup;
        return QApplication::focusWidget();
    }

    static void pressKeys(const std::string &keys)
    {
        const QKeySequence sequence(QString::fromStdString(keys));
        ASSERT_EQ(sequence.count(), 1) << keys;
        QTest::keyClick(focus(), sequence[0].key(), sequence[0].keyboardModifiers());
    }

    void clickOn(const std::string &place)
    {
        const std::size_t colon = place.find(':');
        if (colon == std::string::npos)
            return click(place);
        GridView &grid = *find<GridView>(place.substr(0, colon));
        const std::size_t comma = place.find(',', colon);
        const QModelIndex cell = grid.model()->index(std::stoi(place.substr(colon + 1)) - 1,  //
                                                     std::stoi(place.substr(comma + 1)));
        grid.scrollTo(cell);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(cell).center());
    }

    void turnWheel(QWidget &box)
    {
        const QPointF place = box.rect().center();
        QWheelEvent event(place, box.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QApplication::sendEvent(&box, &event);
    }

    void takeTable(const std::string &text)
    {
        QGuiApplication::clipboard()->setText(QString::fromStdString(text));
        bool isTaken = false;
        whenDialogIsUp([&](QDialog &dialog) {
            isTaken = true;
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        });
        press(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_TRUE(spinUntil([&] { return isTaken; }));
        QApplication::setActiveWindow(window.get());
    }

    void act(const std::string &act)
    {
        const std::string rest = act.substr(1);
        if (act.starts_with("table^"))
            takeTable(act.substr(6));
        else if (act.starts_with("wheel "))
            turnWheel(*find(act.substr(6)));
        else if (act[0] == '@')
            clickOn(rest);
        else if (act[0] == '!')
            find(rest)->setFocus();
        else if (act[0] == '=')
            typeText(rest);
        else if (act[0] == '^') {
            QGuiApplication::clipboard()->setText(QString::fromStdString(rest));
            pressKeys("Ctrl+V");
        } else
            pressKeys(act);
        QCoreApplication::processEvents();
    }

    void play(const Slip &slip)
    {
        for (const std::string &each : slip.before)
            act(each);
        const std::vector<PageText> before = standing();
        for (const std::string &each : slip.acts)
            act(each);
        if (slip.harm == Harm::None) {
            ASSERT_EQ(standing(), before);
            return;
        }
        ASSERT_NE(standing(), before) << "this is no slip";
        pressKeys("Ctrl+Z");
        for (const std::string &each : slip.after)
            act(each);
        ASSERT_EQ(standing(), before);
    }

    void playAll(int page, const std::vector<Slip> &slips)
    {
        openPage(page);
        for (const Slip &slip : slips) {
            SCOPED_TRACE(slip.name);
            play(slip);
            if (HasFatalFailure())
                return;
            for (GridView *grid : window->page(page).fields().grids())
                grid->dropEdit();
            if (shownPage() != page)
                act("Alt+N");
            ASSERT_EQ(shownPage(), page);
        }
    }
};

TEST_F(Slips, onPageOneAreTakenBack)
{
    playAll(kLampPage, kLampSlips);
}

TEST_F(Slips, onPageTwoAreTakenBack)
{
    playAll(kTiltPage, kTiltSlips);
}

TEST_F(Slips, onPageThreeAreTakenBack)
{
    playAll(kKeywordPage, kKeywordSlips);
}

TEST_F(Slips, onPageFourAreTakenBack)
{
    playAll(kDistributionPage, kAngleSlips);
}

TEST_F(Slips, onPageFiveAreTakenBack)
{
    playAll(kCandelaPage, kCandelaSlips);
}

}  // namespace
}  // namespace penwright::test
