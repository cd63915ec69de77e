#include "wizard/FinishPage.h"

#include "ui_FinishPage.h"

namespace penwright {

FinishPage::FinishPage(const PageContext &context)
    : PageFrame(kFinishPage, context),
      m_form(std::make_unique<Ui::FinishPage>()),
      m_finish(context.state, context.services)
{
    m_form->setupUi(formArea());
    for (QLabel *label : {m_form->Label3, m_form->Label4}) {
        QFont small = label->font();
        small.setPointSizeF(small.pointSizeF() * 0.85);
        label->setFont(small);
    }
    QFont large = m_form->Label80a->font();
    large.setPointSizeF(large.pointSizeF() * 1.2);
    m_form->Label80a->setFont(large);
    onClick(m_form->cmdUnname, [this] { cmdUnname_Click(); });
    onClick(m_form->cmdSaveAs, [this] { cmdSaveAs_Click(); });
    addButtons({}, [this] { cmdBack80_Click(); });
}

FinishPage::~FinishPage() = default;

void FinishPage::cmdUnname_Click()
{
    finish(false);
}

void FinishPage::cmdSaveAs_Click()
{
    finish(true);
}

void FinishPage::cmdBack80_Click()
{
    navigator().ShowPage(kCandelaPage);
}

void FinishPage::finish(bool saveAs)
{
    m_form->labStatus->clear();
    const FinishEnd end = m_finish.SaveNewFile(saveAs, caption().toStdString());
    if (end == FinishEnd::NotTaken)
        m_form->labStatus->setText("The host has not taken the file yet. It is kept for the host until it does.");
}

}  // namespace penwright
