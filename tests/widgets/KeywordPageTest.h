#pragma once

#include "widgets/WizardTest.h"
#include "wizard/WarningDialog.h"

namespace penwright::test {

inline const std::string kBuiltInRows =
    "IESNA:LM-63-2002|\n[TEST]|\n[TESTLAB]|\n[ISSUEDATE]|\n[MANUFAC]|\n[LUMCAT]|\n[LUMINAIRE]|\n[LAMPCAT]|\n[LAMP]|\n";

/// Page 3 as it is first shown.
class KeywordPageTest : public WizardTest {
protected:
    /// Shows the page, with a default block in the store when there are names and data of one.
    void open(const std::vector<Setting> &defaults = {})
    {
        for (const Setting &setting : defaults)
            writeDefault(setting.name, setting.data);
        startWizard();
        window->ShowPage(kKeywordPage);
    }
    void writeDefault(const std::string &name, const std::string &data)
    {
        store.write("Lumentor32", "Tool_DefaultKeywords", name, data);
    }
    /// The stored default block: "name=data", a line for each.
    std::string storedDefaults()
    {
        std::string text;
        for (const Setting &setting : store.readAll("Lumentor32", "Tool_DefaultKeywords"))
            text += setting.name + "=" + setting.data + "\n";
        return text;
    }

    GridView *grid() { return find<GridView>("keyGrid"); }
    std::string label(const std::string &name) { return find<QLabel>(name)->text().toStdString(); }

    /// What the grid shows, without the row to append: "key|value", a line for each row.
    std::string rows()
    {
        std::string text;
        const QAbstractItemModel &model = *grid()->model();
        for (int row = 0; row + 1 < model.rowCount(); ++row)
            text += model.index(row, 0).data().toString().toStdString() + "|" +
                    model.index(row, 1).data().toString().toStdString() + "\n";
        return text;
    }
    std::string currentCell()
    {
        return std::to_string(grid()->currentRow()) + "," + std::to_string(grid()->currentColumn());
    }
    void typeInto(int row, int column, const std::string &text)
    {
        grid()->goTo(row, column);
        typeText(text);
        press(Qt::Key_Return);
    }
    static void settle() { QCoreApplication::processEvents(); }

    std::string warningsOfNext()
    {
        return warningsOf([this] { click("cmdNext20"); });
    }

    PhotometricRecord &record() { return state.PhotFiles(1); }
};

}  // namespace penwright::test
