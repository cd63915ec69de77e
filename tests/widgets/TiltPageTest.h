#pragma once

#include "grid/GridView.h"
#include "widgets/WizardTest.h"
#include "wizard/WarningDialog.h"

namespace penwright::test {

/// Page 2 as it is first shown.
class TiltPageTest : public WizardTest {
protected:
    void SetUp() override
    {
        startWizard();
        window->ShowPage(kTiltPage);
    }

    QLineEdit *count() { return find<QLineEdit>("lmpTxtNumAngles"); }
    GridView *grid() { return find<GridView>("lmpGridTiltMultiplier"); }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    /// Sends each character to what has the focus by then: the first one may open an editor.
    static void type(const std::string &text)
    {
        for (const char character : text)
            QTest::keyClick(QApplication::focusWidget(), character);
    }
    static void settle() { QCoreApplication::processEvents(); }

    void typeCount(const std::string &text)
    {
        count()->setFocus();
        count()->selectAll();
        type(text);
    }

    /// Types one column's values from its first cell on, each ended by Tab.
    void typeColumn(int column, const std::vector<std::string> &texts)
    {
        grid()->goTo(1, column);
        for (const std::string &text : texts) {
            type(text);
            press(Qt::Key_Tab);
        }
    }

    /// Fills the page by typing: count, angles, and the first geometry.
    void fill(const std::vector<std::string> &angles)
    {
        typeCount(std::to_string(angles.size()));
        typeColumn(0, angles);
        click("l2lg0");
    }

    /// What the grid shows: "angle|factor / ...".
    std::string cells()
    {
        std::string text;
        const QAbstractItemModel &model = *grid()->model();
        for (int row = 0; row < model.rowCount(); ++row)
            text += (row ? " / " : "") + model.index(row, 0).data().toString().toStdString() + "|" +
                    model.index(row, 1).data().toString().toStdString();
        return text;
    }
    std::string currentCell()
    {
        return std::to_string(grid()->currentRow()) + "," + std::to_string(grid()->currentColumn());
    }

    std::string warningsOfNext()
    {
        return warningsOf([this] { click("cmdNext15"); });
    }

    PhotometricRecord &record() { return state.PhotFiles(1); }
};

}  // namespace penwright::test
