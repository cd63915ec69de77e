#include "pages/distribution/DistributionPage.h"

#include <QLineEdit>
#include <QPushButton>

#include "controls/FieldFocus.h"
#include "controls/ScreenReader.h"
#include "review/RecordPlace.h"
#include "ui_DistributionPage.h"
#include "wizard/PageSteps.h"
#include "wizard/WarningDialog.h"

namespace penwright {

DistributionPage::DistributionPage(const PageContext &context, std::function<void()> lsbStart)
    : PageFrame(kDistributionPage, context),
      m_form(std::make_unique<Ui::DistributionPage>()),
      m_lsbStart(std::move(lsbStart))
{
    m_form->setupUi(formArea());
    m_form->phoGridVert->setSource(m_vertical, dialogs());
    m_form->phoGridHorz->setSource(m_horizontal, dialogs());
    m_form->phoHintVert->follow(*m_form->phoGridVert);
    m_form->phoHintHorz->follow(*m_form->phoGridHorz);
    m_form->fraAngles->hide();
    for (GridView *grid : {m_form->phoGridVert, m_form->phoGridHorz}) {
        grid->offerTablePaste();
        connect(grid, &GridView::tablePasteAsked, this, &DistributionPage::tablePasteAsked);
    }
    onClick(m_form->rdoC, [this] { rdoC_Click(); });
    onClick(m_form->rdoB, [this] { rdoB_Click(); });
    connect(m_form->phoCmbVert, &AngleListBox::changed, this, &DistributionPage::phoCmbVert_Change);
    connect(m_form->phoCmbHorz, &AngleListBox::changed, this, &DistributionPage::phoCmbHorz_Change);
    connect(m_form->phoCmbVert, &AngleListBox::signPending, this,
            [this](bool isPending) { tellSign(*m_form->phoCmbVert, *m_form->labVertSign, isPending); });
    connect(m_form->phoCmbHorz, &AngleListBox::signPending, this,
            [this](bool isPending) { tellSign(*m_form->phoCmbHorz, *m_form->labHorzSign, isPending); });
    addButtons([this] { cmdNext30_Click(); }, [this] { cmdBack30_Click(); });
    for (AngleListBox *list : {m_form->phoCmbVert, m_form->phoCmbHorz})
        list->lineEdit()->setAccessibleName(list->accessibleName());
}

DistributionPage::~DistributionPage() = default;

void DistributionPage::rdoC_Click()
{
    offerAngles();
}

void DistributionPage::rdoB_Click()
{
    offerAngles();
}

void DistributionPage::followValue()
{
    const auto entries = [this](AngleAxis axis) {
        return hasType() ? predefinedAngles(photometricType(), axis) : std::span<const std::string_view>();
    };
    m_form->phoCmbVert->setEntries(entries(AngleAxis::Vertical));
    m_form->phoCmbHorz->setEntries(entries(AngleAxis::Horizontal));
    m_form->fraAngles->setVisible(hasType());
}

void DistributionPage::offerAngles()
{
    m_form->phoCmbVert->offer(predefinedAngles(photometricType(), AngleAxis::Vertical));
    m_form->phoCmbHorz->offer(predefinedAngles(photometricType(), AngleAxis::Horizontal));
    m_form->fraAngles->show();
    emit changed();  // neither the lists tell of it nor an option that was chosen already
}

void DistributionPage::phoCmbVert_Change()
{
    resizeAngles(*m_form->phoCmbVert, *m_vertical, *m_form->phoGridVert);
}

void DistributionPage::phoCmbHorz_Change()
{
    resizeAngles(*m_form->phoCmbHorz, *m_horizontal, *m_form->phoGridHorz);
}

void DistributionPage::resizeAngles(AngleListBox &list, AngleList &angles, AngleGrid &grid)
{
    auto resizing = angles.resize(list.chosenText(), photometricType());
    if (!resizing)
        return;
    if (resizing->becomesOne)
        list.replaceText("1");
    grid.apply(std::move(resizing->edit));
    navigator().ReDo();
}

void DistributionPage::tellSign(AngleListBox &list, QLabel &hint, bool isPending)
{
    hint.setText(isPending ? "After \"-\" a digit is refused and 1 stays. Backspace takes the \"-\" back." : "");
    describe(*list.lineEdit(), hint.text());
}

void DistributionPage::cmdNext30_Click()
{
    dlgWarn().Clear();
    if (!m_form->phoGridVert->commitEdit() || !m_form->phoGridHorz->commitEdit())
        return;
    const DistributionFields fields = readFields();
    checkDistribution(fields, dlgWarn().list());
    if (!dlgWarn().Clean())
        return showWarnings();
    storeDistribution(fields, state().PhotFiles(1));
    m_lsbStart();
    navigator().ShowPage(index() + 1);
}

void DistributionPage::cmdBack30_Click()
{
    m_form->phoGridVert->commitEditIfValid();
    m_form->phoGridHorz->commitEditIfValid();
    navigator().ShowPage(index() - 1);
}

bool DistributionPage::hasType() const
{
    return m_form->rdoC->isChecked() || m_form->rdoB->isChecked();
}

std::int16_t DistributionPage::photometricType() const
{
    return m_form->rdoB->isChecked() ? kTypeB : kTypeC;
}

DistributionFields DistributionPage::readFields() const
{
    return {photometricType(), m_vertical->cells(), m_horizontal->cells()};
}

PageText DistributionPage::textOf(const DistributionFields &lists, bool evenIfSame) const
{
    PageText text;
    const auto putList = [&](const char *box, const char *grid, const AngleCells &cells, const AngleCells &shown) {
        const bool isSame = areSameAngles(cells, shown);
        if (!isSame)
            text[box] = std::to_string(cells.size());
        if (!isSame || evenIfSame)
            text[grid] = HeldAngles::textOf(isSame ? shown : cells);
    };
    putList("phoCmbVert", "phoGridVert", lists.vertical, m_vertical->cells());
    putList("phoCmbHorz", "phoGridHorz", lists.horizontal, m_horizontal->cells());
    if (!hasType() || photometricType() != lists.photometricType) {
        const bool isTypeB = lists.photometricType == kTypeB;
        text["rdoC"] = isTypeB ? "0" : "1";
        text["rdoB"] = isTypeB ? "1" : "0";
    }
    return text;
}

/// The lists of the record, which page 5's table is of wherever that page has been left.
std::optional<DistributionFields> DistributionPage::tableLists() const
{
    return state().PhotFiles.empty() ? std::nullopt : fieldsOf(state().PhotFiles(1));
}

bool DistributionPage::isOf(const DistributionFields &lists) const
{
    return hasType() && areSameDistribution(readFields(), lists);
}

void DistributionPage::comeBackFrom(int)
{
    const auto lists = tableLists();
    if (lists && !steps().seek([&] { return isOf(*lists); }))
        showValue(textOf(*lists, false), "New Table");
}

PageValue DistributionPage::valueOnReturn() const
{
    PageValue value = this->value();
    const auto lists = tableLists();
    const PageText other = lists ? textOf(*lists, false) : PageText();
    for (HeldText &held : value)
        if (const auto it = other.find(held.name); it != other.end())
            held.text = [text = it->second] { return text; };
    return value;
}

std::optional<FaultPlace> DistributionPage::placeOf(const RecordPlace &place) const
{
    if (place.field == RecordField::VertAngles)
        return FaultPlace{.field = kVerticalGridField, .row = 1, .column = place.index - 1};
    if (place.field == RecordField::HorAngles)
        return FaultPlace{.field = kHorizontalGridField, .row = 1, .column = place.index - 1};
    return std::nullopt;
}

void DistributionPage::focusFault(const FaultPlace &place)
{
    switch (place.field) {
        case kVerticalListField:
        case kHorizontalListField:
            if (m_form->fraAngles->isHidden())
                m_form->rdoC->setFocus();
            else
                focusField(place.field == kVerticalListField ? *m_form->phoCmbVert : *m_form->phoCmbHorz);
            break;
        case kVerticalGridField:
            m_form->phoGridVert->goTo(place.row, place.column);
            break;
        default:
            m_form->phoGridHorz->goTo(place.row, place.column);
    }
}

}  // namespace penwright
