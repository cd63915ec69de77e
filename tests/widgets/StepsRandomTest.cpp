#include <array>
#include <random>
#include <set>

#include "widgets/PasteTableTest.h"
#include "widgets/Seeds.h"

namespace penwright::test {
namespace {

/// Everything that a page's steps answer for, the record and the working copy that follow page 5 among it.
struct StepState {
    PageText texts;
    PageText otherTexts;  ///< of the page that a pasted table changes too
    PhotometricRecord record;
    OneBased<PhotometricRecord> work;

    bool operator==(const StepState &) const = default;
};

struct RandomCase {
    int page;
    unsigned seed;
};

/// Acts that a user may do on a page, one after the other, in an order that the seed decides.
class RandomSteps : public PasteTableTest, public testing::WithParamInterface<RandomCase> {
protected:
    static constexpr int kActs = 200;

    void SetUp() override
    {
        StepsTest::SetUp();
        openPage();
        m_states = {now()};
        QObject::connect(&page().steps(), &PageSteps::stepped, window.get(), [this] {
            const auto count = static_cast<std::size_t>(page().steps().count());
            if (m_isChecking)
                return;
            m_states.resize(count + 1);
            m_states[count] = now();
            m_most = std::max(m_most, count);
        });
    }

    void openPage()
    {
        if (GetParam().page == kCandelaPage)
            return openTable();
        window->ShowPage(GetParam().page);
        if (GetParam().page == kDistributionPage)
            click("rdoC");
        page().steps().forgetAll();
    }

    StepState now()
    {
        const bool hasTable = GetParam().page == kCandelaPage;
        const bool hasOther = hasTable || GetParam().page == kDistributionPage;
        return {texts(), hasOther ? textsOf(page(hasTable ? kDistributionPage : kCandelaPage)) : PageText(),
                hasTable ? state.PhotFiles(1) : PhotometricRecord(),
                hasTable ? state.CandelaWorkRecord : OneBased<PhotometricRecord>()};
    }

    int any(int from, int to) { return std::uniform_int_distribution(from, to)(m_random); }

    template <typename Entries>
    auto anyOf(const Entries &entries)
    {
        return entries[static_cast<std::size_t>(any(0, static_cast<int>(std::size(entries)) - 1))];
    }

    std::string anyText()
    {
        static constexpr std::array kTexts{"0", "1", "12", "3.5", "90", "-", "abc", "1e3", " ", "[TEST]", "0.1234567"};
        return anyOf(kTexts);
    }

    void typeInto(const std::string &box, const std::string &text)
    {
        if (any(0, 1))
            QTest::mouseClick(find(box), Qt::LeftButton);
        else
            find(box)->setFocus();
        typeText(text);
        for (int key = any(0, 2); key > 0; --key)
            press(Qt::Key_Backspace);
    }

    /// Goes to any cell, and marks a block from there at times.
    void goAnywhere(const std::string &name)
    {
        GridView &view = grid(name);
        const int rows = view.model()->rowCount();
        const int columns = view.model()->columnCount();
        view.setFocus();
        if (rows == 0 || columns == 0)
            return;
        view.goTo(any(1, rows), any(0, columns - 1));
        for (int key = any(0, 3); key > 0; --key)
            press(anyOf(std::array{Qt::Key_Down, Qt::Key_Right}), Qt::ShiftModifier);
    }

    void changeCells(const std::string &name)
    {
        goAnywhere(name);
        switch (any(0, 4)) {
            case 0:
                return press(Qt::Key_Delete);
            case 1:
                return paste(anyText() + "\t" + anyText() + "\n" + anyText() + "\n");
            case 2:
                return paste(anyText());
            default:
                if (grid(name).currentRow() < 1)
                    return;
                typeText(anyText());
                press(anyOf(std::array{Qt::Key_Return, Qt::Key_Tab, Qt::Key_Escape, Qt::Key_Down}));
        }
    }

    void act()
    {
        switch (GetParam().page) {
            case kLampPage:
                return actOnLamp();
            case kTiltPage:
                return actOnTilt();
            case kKeywordPage:
                return actOnKeywords();
            case kDistributionPage:
                return actOnAngles();
            default:
                return actOnCandela();
        }
    }

    void actOnLamp()
    {
        static const std::array<std::string, 8> boxes{"txtNumLamps", "txtLumPerLamp", "txtMultiplier", "txtBallast",
                                                      "txtWatt",     "txtWidth",      "txtLength",     "txtHeight"};
        static const std::array<std::string, 3> options{"rdoFeet", "rdoMeters", "chkIncludeTilt"};
        if (const int kind = any(0, 3); kind == 0) {
            find("lmpCmbShape")->setFocus();
            press(anyOf(std::array{Qt::Key_Down, Qt::Key_Up, Qt::Key_End}));
        } else if (kind == 1) {
            click(anyOf(options));
        } else if (const std::string box = anyOf(boxes); find(box)->isEnabled()) {
            typeInto(box, anyText());
        }
    }

    void actOnTilt()
    {
        if (const int kind = any(0, 4); kind == 0)
            click("l2lg" + std::to_string(any(0, 2)));
        else if (kind == 1)
            typeInto("lmpTxtNumAngles", std::to_string(any(1, 30)));
        else
            changeCells("lmpGridTiltMultiplier");
    }

    void actOnKeywords()
    {
        goAnywhere("keyGrid");
        switch (any(0, 6)) {
            case 0:
                return press(Qt::Key_Plus, Qt::ControlModifier);
            case 1:
                return press(Qt::Key_Minus, Qt::ControlModifier);
            case 2:
                return press(anyOf(std::array{Qt::Key_Up, Qt::Key_Down}), Qt::AltModifier);
            case 3:
                return any(0, 5) == 0 ? click("cmdDefaultLoad") : press(Qt::Key_Delete);
            default:
                return changeCells("keyGrid");
        }
    }

    /// A list of angles that both types take, or one angle, which type C takes.
    std::vector<int> anyAngles(int most)
    {
        if (most == 1)
            return {0};
        std::vector<int> angles{0};
        for (int count = any(0, most - 2); count > 0 && angles.back() < 80; --count)
            angles.push_back(angles.back() + any(1, 10));
        angles.push_back(90);
        return angles;
    }

    /// Opens "Paste Table..." over a table, with angles or without, and takes it where it is offered.
    void pasteAnyTable()
    {
        const std::vector<int> across = anyAngles(any(1, 4));
        const bool hasAngles = any(0, 3) != 0;
        std::string text = hasAngles ? "Gamma" : "";
        for (std::size_t h = 0; hasAngles && h < across.size(); ++h)
            text += "\tC" + std::to_string(across[h]);
        text += hasAngles ? "\n" : "";
        for (const int v : anyAngles(any(2, 6))) {
            text += hasAngles ? std::to_string(v) : "";
            for (std::size_t h = 0; h < across.size(); ++h)
                text += (hasAngles || h > 0 ? "\t" : "") + std::to_string(any(0, 99999) / 8.0);
            text += "\n";
        }
        for (GridView *view : page().fields().grids())
            view->dropEdit();  // a refused text, which undo has brought back, would keep the dialog away
        PasteTableTest::open(text, [this](PasteTableDialog &dialog) {
            m_tables += isOffered() ? 1 : 0;
            QTest::keyClick(dialog.focusWidget(), isOffered() ? Qt::Key_Return : Qt::Key_Escape);
        });
        page().steps().endAct();
        m_states.at(static_cast<std::size_t>(page().steps().count())) = now();  // told before the other page had it
    }

    void actOnAngles()
    {
        if (any(0, 12) == 0)
            return pasteAnyTable();
        const std::string axis = any(0, 1) ? "Vert" : "Horz";
        if (const int kind = any(0, 6); kind == 0) {
            click(any(0, 1) ? "rdoC" : "rdoB");
        } else if (kind == 1) {
            typeInto("phoCmb" + axis, std::to_string(any(1, 40)));
        } else if (kind == 2) {
            find("phoCmb" + axis)->setFocus();
            press(anyOf(std::array{Qt::Key_Down, Qt::Key_Up}));
        } else if (kind == 3) {
            typeInto("phoCmb" + axis, anyText());
        } else {
            changeCells("phoGrid" + axis);
        }
    }

    void actOnCandela()
    {
        if (any(0, 12) == 0)
            return pasteAnyTable();
        if (const int kind = any(0, 5); kind == 0) {
            PhotometricRecord &record = state.PhotFiles(1);
            record.PhotometricType = any(0, 1) ? kTypeC : kTypeB;
            const auto give = [&](OneBased<float> &angles, std::int16_t &count) {
                count = static_cast<std::int16_t>(any(1, 6));
                angles.reset(count);
                for (int angle = 1; angle <= count; ++angle)
                    angles(angle) = static_cast<float>(any(0, 90)) / 4;
            };
            give(record.HorAngles, record.NumHorzAngles);
            give(record.VertAngles, record.NumVertAngles);
            window->followRecord();
        } else if (kind == 1) {
            const auto cells = static_cast<int>(grid("cdaGridCd").model()->rowCount()) *
                               (grid("cdaGridCd").model()->columnCount() - 1);
            std::string text;
            for (int value = 0; value < cells; ++value)
                text += (value == any(0, 30) ? "x" : std::to_string(any(0, 99999) / 8.0)) + "\n";
            grid("cdaGridCd").setFocus();
            paste(text);
        } else {
            changeCells("cdaGridCd");
        }
    }

    void stepAtRandom()
    {
        for (int steps = any(1, 4); steps > 0; --steps)
            step(any(0, 2) != 0);
    }

    /// What stands on the page, and how it is shown in its grids.
    struct Look {
        PageText texts;
        std::map<std::string, std::vector<std::string>> cells;
    };

    Look look()
    {
        Look look{texts(), {}};
        for (const GridView *view : page().fields().grids())
            look.cells[view->objectName().toStdString()] = cellsOf(*view->model());
        return look;
    }

    static std::vector<std::string> cellsOf(const QAbstractItemModel &model)
    {
        std::vector<std::string> cells{std::to_string(model.columnCount())};
        for (int row = 0; row < model.rowCount(); ++row)
            for (int column = 0; column < model.columnCount(); ++column)
                cells.push_back(model.index(row, column).data().toString().toStdString());
        return cells;
    }

    /// Undoes or redoes, and looks at what stands then and where the user is.
    void step(bool isUndo)
    {
        const int count = page().steps().count();
        const Look before = look();
        const bool isTyping = (isUndo ? undoName() : redoName()).ends_with(" Typing");
        isUndo ? page().steps().undo() : page().steps().redo();
        check();
        if (page().steps().count() != count)
            checkPlace(before, look(), isTyping);
    }

    /// The box that sizes a grid, "" for none.
    static std::string countOf(const std::string &grid)
    {
        return grid == "phoGridVert"             ? "phoCmbVert"
               : grid == "phoGridHorz"           ? "phoCmbHorz"
               : grid == "lmpGridTiltMultiplier" ? "lmpTxtNumAngles"
                                                 : "";
    }

    /// The focus is on what has changed, where that takes it, or on the count that sizes it; in a grid that was typed
    /// into, on a cell that has.
    void checkPlace(const Look &before, const Look &after, bool isTyping)
    {
        std::set<std::string> changed;
        std::set<std::string> places;
        bool takesFocus = false;
        for (const auto &[name, text] : after.texts)
            if (text != before.texts.at(name)) {
                changed.insert(name);
                places.insert({name, countOf(name)});
                takesFocus = takesFocus || (find(name)->isVisible() && find(name)->isEnabled());
            }
        EXPECT_TRUE(!takesFocus || places.contains(focusName())) << "the focus is on " << focusName();
        if (!isTyping || changed.size() != 1 || !after.cells.contains(*changed.begin()))
            return;
        const std::vector<std::string> &from = before.cells.at(*changed.begin());
        const std::vector<std::string> &to = after.cells.at(*changed.begin());
        if (from == to || from.size() != to.size() || from[0] != to[0])
            return;
        const GridView &view = grid(*changed.begin());
        const auto place =
            static_cast<std::size_t>((view.currentRow() - 1) * view.model()->columnCount() + 1 + view.currentColumn());
        EXPECT_NE(from.at(place), to.at(place)) << "the current cell is " << cell(*changed.begin());
        ++m_placed;
    }

    void check()
    {
        const auto count = static_cast<std::size_t>(page().steps().count());
        ASSERT_LT(count, m_states.size());
        ASSERT_EQ(now() == m_states[count], true) << "after " << count << " steps";
    }

    std::mt19937 m_random{GetParam().seed};
    std::vector<StepState> m_states;  ///< by the number of steps that stand
    std::size_t m_most = 0;
    int m_tables = 0;  ///< that were taken
    int m_placed = 0;  ///< steps whose current cell was looked at
    bool m_isChecking = false;
};

TEST_P(RandomSteps, leadToTheBottomAndToTheTopOverEachState)
{
    for (int acts = 0; acts < kActs && !HasFatalFailure(); ++acts) {
        act();
        QCoreApplication::processEvents();
        if (any(0, 15) != 0)
            continue;
        page().steps().endAct();
        m_isChecking = true;
        stepAtRandom();
        m_isChecking = false;
    }
    page().steps().endAct();
    m_isChecking = true;
    const std::size_t all = page().steps().count();
    for (std::size_t at = all; at > 0 && !HasFatalFailure(); --at) {
        step(true);
        ASSERT_EQ(page().steps().count(), static_cast<int>(at - 1));
    }
    EXPECT_FALSE(page().steps().canUndo());
    while (page().steps().canRedo() && !HasFatalFailure())
        step(false);
    EXPECT_EQ(page().steps().count(), static_cast<int>(m_states.size()) - 1);
    EXPECT_GT(m_most, 40U);
    EXPECT_EQ(m_placed > 5, !page().fields().grids().empty()) << m_placed;
    const bool takesTables = GetParam().page == kDistributionPage || GetParam().page == kCandelaPage;
    EXPECT_EQ(m_tables > 2, takesTables) << m_tables;
}

std::vector<RandomCase> cases()
{
    std::vector<RandomCase> all;
    for (const int page : {kLampPage, kTiltPage, kKeywordPage, kDistributionPage, kCandelaPage})
        for (const unsigned seed : seeds())
            all.push_back({page, seed});
    return all;
}

INSTANTIATE_TEST_SUITE_P(Pages, RandomSteps, testing::ValuesIn(cases()), [](const auto &row) {
    return "Page" + std::to_string(row.param.page + 1) + "Seed" + std::to_string(row.param.seed);
});

}  // namespace
}  // namespace penwright::test
