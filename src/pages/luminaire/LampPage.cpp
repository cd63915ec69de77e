#include "pages/luminaire/LampPage.h"

#include "controls/FieldFocus.h"
#include "controls/ScreenReader.h"
#include "pages/luminaire/InputUnits.h"
#include "pages/luminaire/LuminousShapes.h"
#include "platform/qt/QtText.h"
#include "ui_LampPage.h"
#include "wizard/WarningDialog.h"

namespace penwright {
namespace {

/// The shape's part of the look, without its text.
void showLook(const DimensionLook &look, QLabel &label, QLineEdit &box)
{
    const QString caption = toQString(look.caption);
    label.setText(caption);
    label.setEnabled(look.isEnabled);
    box.setAccessibleName(caption);
    box.setEnabled(look.isEnabled);
}

void apply(const DimensionLook &look, QLabel &label, QLineEdit &box)
{
    showLook(look, label, box);
    if (look.text)
        box.setText(toQString(*look.text));
}

}  // namespace

LampPage::LampPage(const PageContext &context, SettingsStore &store)
    : PageFrame(kLampPage, context), m_form(std::make_unique<Ui::LampPage>()), m_store(store)
{
    m_form->setupUi(formArea());
    connect(m_form->lmpCmbShape, &QComboBox::currentIndexChanged, this, &LampPage::lmpCmbShape_Click);
    connect(m_form->rdoFeet, &QRadioButton::toggled, this, &LampPage::tellUnits);
    addButtons([this] { cmdNext10_Click(); }, {});
}

LampPage::~LampPage() = default;

void LampPage::load()
{
    const bool feet = inputUnitsAreFeet(m_store);
    m_form->rdoFeet->setChecked(feet);
    m_form->rdoMeters->setChecked(!feet);
    tellUnits();
    for (const LuminousShape &shape : kLuminousShapes)
        m_form->lmpCmbShape->addItem(toQString(shape.name));
    m_form->lmpCmbShape->setMaxVisibleItems(m_form->lmpCmbShape->count());
}

void LampPage::comeBackFrom(int page)
{
    const bool isByTiltPage = page == kTiltPage || (page != kKeywordPage && state().PhotFiles(1).TiltIncl);
    m_form->chkIncludeTilt->setChecked(isByTiltPage);
}

std::optional<FaultPlace> LampPage::placeOf(const RecordPlace &place) const
{
    if (const auto field = lampFieldOf(place.field))
        return FaultPlace{.field = *field};
    if (place.field == RecordField::TiltMultipliers && !state().PhotFiles(1).TiltIncl)
        return FaultPlace{.field = kIncludeTiltField};
    return std::nullopt;
}

void LampPage::lmpCmbShape_Click()
{
    gsbDrawLuminaireGeo(static_cast<std::int16_t>(m_form->lmpCmbShape->currentIndex()));
}

void LampPage::followValue()
{
    const int position = m_form->lmpCmbShape->currentIndex();
    m_form->lmpPicHousing->setShape(static_cast<std::int16_t>(position));
    const LuminousShape *chosen = luminousShapeAt(position);
    const LuminousShape &shape = chosen ? *chosen : kNoShape;
    showLook(shape.width, *m_form->lmpLabWidth, *m_form->txtWidth);
    showLook(shape.length, *m_form->lmpLabLength, *m_form->txtLength);
    showLook(shape.height, *m_form->lmpLabHeight, *m_form->txtHeight);
    tellUnits();
}

void LampPage::tellUnits()
{
    for (TextBox *box : {m_form->txtWidth, m_form->txtLength, m_form->txtHeight})
        describe(*box, m_form->rdoFeet->isChecked() ? m_form->rdoFeet->text() : m_form->rdoMeters->text());
}

void LampPage::gsbDrawLuminaireGeo(std::int16_t position)
{
    m_form->lmpPicHousing->setShape(position);
    const LuminousShape *shape = luminousShapeAt(position);
    if (!shape)
        return;
    apply(shape->width, *m_form->lmpLabWidth, *m_form->txtWidth);
    apply(shape->length, *m_form->lmpLabLength, *m_form->txtLength);
    apply(shape->height, *m_form->lmpLabHeight, *m_form->txtHeight);
}

void LampPage::cmdNext10_Click()
{
    dlgWarn().Clear();
    const LampFields fields = readFields();
    checkLampFields(fields, dlgWarn().list());
    if (!dlgWarn().Clean())
        return showWarnings();
    storeLampFields(fields, dlgWarn().list(), state().PhotFiles(1));
    navigator().ShowPage(fields.isTiltIncluded ? kTiltPage : kKeywordPage);
}

LampFields LampPage::readFields() const
{
    LampFields fields;
    for (std::size_t field = 0; const TextBox *box : boxes())
        fields.texts[field++] = box->text().toStdString();
    fields.shape = m_form->lmpCmbShape->currentIndex();
    fields.isFeet = m_form->rdoFeet->isChecked();
    fields.isTiltIncluded = m_form->chkIncludeTilt->isChecked();
    return fields;
}

void LampPage::focusFault(const FaultPlace &place)
{
    if (place.field == kIncludeTiltField)
        return m_form->chkIncludeTilt->setFocus();
    TextBox *box = boxes().at(static_cast<std::size_t>(place.field));
    if (!box->isEnabled())
        return m_form->lmpCmbShape->setFocus();  // only another shape mends a box that takes no text
    focusField(*box);
}

std::array<TextBox *, kLampFieldCount> LampPage::boxes() const
{
    return {m_form->txtNumLamps, m_form->txtLumPerLamp, m_form->txtMultiplier, m_form->txtBallast,
            m_form->txtWatt,     m_form->txtWidth,      m_form->txtLength,     m_form->txtHeight};
}

}  // namespace penwright
