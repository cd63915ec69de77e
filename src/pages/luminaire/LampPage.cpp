#include "pages/luminaire/LampPage.h"

#include "pages/luminaire/InputUnits.h"
#include "pages/luminaire/LuminousShapes.h"
#include "ui_LampPage.h"

namespace penwright {

LampPage::LampPage(const PageContext &context) : PageFrame(kLampPage, context), m_form(std::make_unique<Ui::LampPage>())
{
    m_form->setupUi(formArea());
    addButtons([this] { cmdNext10_Click(); }, {});
}

LampPage::~LampPage() = default;

void LampPage::load()
{
    const bool feet = inputUnitsAreFeet(services().store);
    m_form->rdoFeet->setChecked(feet);
    m_form->rdoMeters->setChecked(!feet);
    m_form->lmpCmbShape->clear();
    for (const std::string_view shape : kLuminousShapes)
        m_form->lmpCmbShape->addItem(QString::fromUtf8(shape.data(), static_cast<qsizetype>(shape.size())));
    m_form->lmpCmbShape->setCurrentIndex(-1);
}

void LampPage::cmdNext10_Click()
{
    state().PhotFiles(1).TiltIncl = m_form->chkIncludeTilt->isChecked();
    navigator().ShowPage(m_form->chkIncludeTilt->isChecked() ? kTiltPage : kKeywordPage);
}

}  // namespace penwright
