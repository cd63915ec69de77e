#include "app/TablePaste.h"

#include <string>

#include "core/NumberText.h"
#include "grid/PasteTableDialog.h"
#include "pages/candela/CandelaPage.h"
#include "pages/distribution/DistributionPage.h"
#include "platform/Dialogs.h"
#include "platform/qt/Closing.h"
#include "wizard/HandlerGuard.h"
#include "wizard/PageSteps.h"
#include "wizard/WizardWindow.h"

namespace penwright {
namespace {

constexpr const char *kStep = "Paste Table";

std::string whyNoLumens(const PhotometricRecord &record)
{
    return record.LumensPerLamp < 0
               ? "Candela per kilolumen needs the lumens of the lamps, and page 1 says -1, absolute: there are none."
               : "Candela per kilolumen needs the lumens of the lamps: page 1 has none.";
}

}  // namespace

TablePaste::TablePaste(WizardWindow &window, DistributionPage &angles, CandelaPage &values, TextFiles &files,
                       const Closing &closing)
    : QObject(&window), m_window(window), m_angles(angles), m_values(values), m_files(files), m_closing(closing)
{
    connect(&angles, &DistributionPage::tablePasteAsked, this, [this] { paste(m_angles); });
    connect(&values, &CandelaPage::tablePasteAsked, this, [this] { paste(m_values); });
}

void TablePaste::paste(PageFrame &page)
{
    // What asked may have waited in the event loop behind the end of its page.
    if (page.isVisible() && !m_window.isBusy())
        guardHandler(m_window.pageContext().dialogs, page.caption().toStdString(), [&] { ask(page); });
}

void TablePaste::ask(PageFrame &page)
{
    const TableGround ground = groundOf(page);
    PasteTableDialog dialog(purposeOf(page, ground), m_window.pageContext().dialogs, m_files, m_closing, &m_window);
    if (!dialog.ask())
        return;
    // The host may have put another record into the place meanwhile.
    const auto fitted = fitTable(dialog.table(), dialog.factor(), groundOf(page));
    if (const auto *table = std::get_if<FittedTable>(&fitted))
        put(page, *table);
    else
        m_window.pageContext().dialogs.show(
            {.text = std::get<std::string>(fitted), .title = page.caption().toStdString()});
}

/// On the page of the values the lists are those of the table that it shows.
TableGround TablePaste::groundOf(const PageFrame &page) const
{
    if (&page == &m_angles) {
        const DistributionFields fields = m_angles.readFields();
        return {fields.photometricType, fields.vertical, fields.horizontal};
    }
    const PhotometricRecord &record = m_window.pageContext().state.PhotFiles(1);
    return {record.PhotometricType, cellsOf(record.VertAngles, record.NumVertAngles),
            cellsOf(record.HorAngles, record.NumHorzAngles)};
}

TablePurpose TablePaste::purposeOf(const PageFrame &page, const TableGround &ground) const
{
    const PhotometricRecord &record = m_window.pageContext().state.PhotFiles(1);
    TablePurpose purpose;
    purpose.unit.lumens = record.LumensPerLamp > 0 ? double{record.LumensPerLamp} * record.NumLamps : 0;
    purpose.unit.multiplier = record.CandelaMultiplier;
    if (!purpose.unit.isKnown())
        purpose.unit.whyNone = whyNoLumens(record);
    purpose.need = neededSize(ground);
    purpose.judge = [ground](const TableContent &table, double factor) -> TableVerdict {
        const auto fitted = fitTable(table, factor, ground);
        if (const auto *fault = std::get_if<std::string>(&fitted))
            return {false, *fault};
        return {true, std::get<FittedTable>(fitted).remark};
    };
    purpose.showHelp = [this, id = kPages.at(static_cast<std::size_t>(page.index())).helpId] { m_window.ShowHelp(id); };
    return purpose;
}

void TablePaste::put(PageFrame &page, const FittedTable &table)
{
    const DistributionFields lists{table.angles.PhotometricType, table.vertical, table.horizontal};
    const PageText angles = m_angles.textOf(lists, &page == &m_angles);  // it is to have a step where it asks
    if (!angles.empty() && !m_angles.showValue(angles, kStep))
        throw invalidCall();
    const bool hadTable = m_values.pasteTable(table.angles, table.cells);
    if (&page == &m_angles)
        m_angles.steps().pairLatest(m_values.steps(), hadTable);
    else if (!angles.empty())
        m_values.steps().pairLatest(m_angles.steps(), true);
}

}  // namespace penwright
