#include "pages/luminaire/TiltPage.h"

#include <QHeaderView>

#include "controls/FieldFocus.h"
#include "review/RecordPlace.h"
#include "ui_TiltPage.h"
#include "wizard/WarningDialog.h"

namespace penwright {

TiltPage::TiltPage(const PageContext &context)
    : PageFrame(kTiltPage, context),
      m_form(std::make_unique<Ui::TiltPage>()),
      m_table(std::make_shared<TiltTable>(caption().toStdString()))
{
    m_form->setupUi(formArea());
    GridView &grid = *m_form->lmpGridTiltMultiplier;
    grid.setSource(m_table, dialogs());
    grid.setTabWay(TabWay::DownColumn);
    grid.setTextAlignment(Qt::AlignRight);
    grid.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    connect(m_form->lmpTxtNumAngles, &TextBox::entered, this, [this] { m_table->beginCount(); });
    m_form->lmpHintTilt->follow(grid);
    connect(m_form->lmpTxtNumAngles, &TextBox::textChanged, this, &TiltPage::lmpTxtNumAngles_Change);
    addButtons([this] { cmdNext15_Click(); }, [this] { cmdBack15_Click(); });
}

TiltPage::~TiltPage() = default;

void TiltPage::lmpTxtNumAngles_Change()
{
    if (auto edit = m_table->newCount(m_form->lmpTxtNumAngles->text().toStdString()))
        m_form->lmpGridTiltMultiplier->apply(*std::move(edit));
}

void TiltPage::followValue()
{
    m_table->beginCount();
}

void TiltPage::cmdNext15_Click()
{
    dlgWarn().Clear();
    if (!m_form->lmpGridTiltMultiplier->commitEdit())
        return;
    const TiltFields fields = readFields();
    checkTiltFields(fields, dlgWarn().list());
    if (!dlgWarn().Clean())
        return showWarnings();
    storeTiltFields(fields, state().PhotFiles(1));
    navigator().ShowPage(index() + 1);
}

void TiltPage::cmdBack15_Click()
{
    m_form->lmpGridTiltMultiplier->commitEditIfValid();
    navigator().ShowPage(index() - 1);
}

TiltFields TiltPage::readFields() const
{
    TiltFields fields{m_form->lmpTxtNumAngles->text().toStdString(), {}, m_table->angles(), m_table->factors()};
    const QRadioButton *const l2lg[]{m_form->l2lg0, m_form->l2lg1, m_form->l2lg2};
    for (std::int16_t index = 0; const QRadioButton *button : l2lg) {
        if (button->isChecked() && !fields.selection)
            fields.selection = index;
        ++index;
    }
    return fields;
}

QWidget *TiltPage::fieldOnReturn(QWidget *last) const
{
    // A key pressed at the count would empty the table.
    const bool isAtCount = !last || last == m_form->lmpTxtNumAngles;
    return isAtCount && m_table->rowCount() > 0 ? m_form->lmpGridTiltMultiplier : last;
}

std::optional<FaultPlace> TiltPage::placeOf(const RecordPlace &place) const
{
    if (place.field != RecordField::TiltMultipliers)
        return std::nullopt;
    return FaultPlace{.field = kTiltGridField, .row = place.index, .column = TiltTable::kFactor};
}

void TiltPage::focusFault(const FaultPlace &place)
{
    switch (place.field) {
        case kTiltCountField:
            focusField(*m_form->lmpTxtNumAngles);
            break;
        case kTiltGeometryField:
            m_form->l2lg0->setFocus();
            break;
        default:
            m_form->lmpGridTiltMultiplier->goTo(place.row, place.column);
    }
}

}  // namespace penwright
