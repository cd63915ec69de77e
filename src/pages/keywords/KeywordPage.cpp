#include "pages/keywords/KeywordPage.h"

#include "controls/ScreenReader.h"
#include "pages/keywords/KeywordDefaults.h"
#include "pages/keywords/KeywordHints.h"
#include "pages/keywords/KeywordLines.h"
#include "review/RecordPlace.h"
#include "ui_KeywordPage.h"
#include "wizard/PageSteps.h"
#include "wizard/WarningDialog.h"

namespace penwright {

KeywordPage::KeywordPage(const PageContext &context, SettingsStore &store)
    : PageFrame(kKeywordPage, context), m_form(std::make_unique<Ui::KeywordPage>()), m_store(store)
{
    m_form->setupUi(formArea());
    m_form->keyGrid->setRows(m_rows, dialogs());
    connect(m_form->keyGrid, &KeywordGrid::lineChanged, this, &KeywordPage::showLine);
    connect(m_form->keyGrid, &KeywordGrid::hinted, this, &KeywordPage::showHint);
    onClick(m_form->cmdDefaultLoad, [this] { cmdDefaultLoad_Click(); });
    onClick(m_form->cmdSaveDefaults, [this] { cmdSaveDefaults_Click(); });
    addButtons([this] { cmdNext20_Click(); }, [this] { cmdBack20_Click(); });
}

KeywordPage::~KeywordPage() = default;

void KeywordPage::enter()
{
    if (m_hasRows)
        return;
    cmdDefaultLoad_Click();
    steps().forgetAll();  // they are what undo leads back to
    m_hasRows = true;
}

std::string KeywordPage::subject() const
{
    return subjectOf(m_rows->rows());
}

std::optional<FaultPlace> KeywordPage::placeOf(const RecordPlace &place) const
{
    if (place.field != RecordField::Keywords)
        return std::nullopt;
    if (place.index == 0)
        return FaultPlace{.row = m_rows->rowCount() + 1, .column = KeywordRows::kKey};
    return FaultPlace{.row = place.index, .column = KeywordRows::kValue};
}

void KeywordPage::cmdDefaultLoad_Click()
{
    m_form->keyGrid->apply(m_rows->loadRows(gsbKeyDefaultLoad(m_store)));
}

void KeywordPage::cmdSaveDefaults_Click()
{
    const Answer answer = dialogs().show(
        {.text = "This will save all current keys and values as defaults. Leave individual descriptions empty that you "
                 "want to fill in later."});
    if (answer == Answer::Dismissed || !m_form->keyGrid->commitEdit())
        return;
    const auto before = storedDefaults(m_store);
    gsbKeyDefaultSave(m_store, m_rows->rows());
    const auto after = storedDefaults(m_store);
    if (!before || !after || before == after)
        return;
    steps().addAct("Save As Defaults", [this, before, after](bool isUndo) {
        restoreDefaults(m_store, isUndo ? *before : *after);
        const bool areBack = isUndo && storedDefaults(m_store) == before;
        showNote(areBack ? "The former defaults are back." : "");
    });
}

void KeywordPage::cmdNext20_Click()
{
    dlgWarn().Clear();
    if (!m_form->keyGrid->commitEdit())
        return;
    gfnKeyVerify(m_rows->rows(), dlgWarn().list());
    if (!dlgWarn().Clean())
        return showWarnings();
    storeKeywordLines(m_rows->rows(), state().PhotFiles(1));
    navigator().ShowPage(index() + 1);
}

void KeywordPage::cmdBack20_Click()
{
    m_form->keyGrid->commitEditIfValid();
    navigator().ShowPage(state().PhotFiles(1).TiltIncl ? kTiltPage : kLampPage);
}

void KeywordPage::showLine()
{
    const int row = m_form->keyGrid->currentRow();
    const KeywordRow line = m_form->keyGrid->shownLine();
    const bool isThere = row >= 1;
    const std::string hint = isThere ? keywordHint(row, line, row > m_rows->rowCount()) : "";
    const std::string emptyRows = emptyRowsHint(m_rows->emptyRows());
    m_form->labDescription->setText(QString::fromStdString(hint));
    m_form->labCharacters->setText(isThere ? QString::fromStdString(lengthHint(line.length())) : QString());
    m_form->labCharacters->setWarning(line.length() > kMostLineCharacters);
    m_form->labEmptyRows->setText(QString::fromStdString(emptyRows));
    describe(*m_form->keyGrid, QString::fromStdString(spokenHint(hint, line.length(), emptyRows)));
}

/// Where the description of the current line stands: there is something to say only while no line is current.
void KeywordPage::showHint(const QString &hint)
{
    if (hint.isEmpty())
        return;
    m_form->labDescription->setText(hint);
    describe(*m_form->keyGrid, hint);
}

void KeywordPage::focusFault(const FaultPlace &place)
{
    m_form->keyGrid->goTo(place.row, place.column);
}

}  // namespace penwright
