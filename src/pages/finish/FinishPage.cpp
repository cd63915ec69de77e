#include "pages/finish/FinishPage.h"

#include <QHideEvent>

#include "controls/ScreenReader.h"
#include "ui_FinishPage.h"

namespace penwright {

FinishPage::FinishPage(const PageContext &context, SettingsStore &store, TextFiles &files, EventWait &wait,
                       Handler fileTaken)
    : PageFrame(kFinishPage, context),
      m_form(std::make_unique<Ui::FinishPage>()),
      m_finish(state(), store, files, dialogs(), wait),
      m_fileTaken(std::move(fileTaken))
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
    m_form->review->setRecord([this]() -> const PhotometricRecord & { return state().PhotFiles(1); });
    m_form->review->setDialogs(dialogs());
    connect(m_form->review, &FileReview::placeChosen, this,
            [this](const RecordPlace &place) { run([&] { navigator().goToPlace(place); }); });
    connect(m_form->review, &FileReview::whyAsked, this, [this](RemarkRule rule) {
        run([&] { navigator().showHelpAt(std::string(kRemarkTopic) + "#" + std::string(anchorOf(rule))); });
    });
    onClick(m_form->cmdUnname, [this] { cmdUnname_Click(); });
    onClick(m_form->cmdSaveAs, [this] { cmdSaveAs_Click(); });
    addButtons({}, [this] { cmdBack80_Click(); });
    showStatus({});
}

FinishPage::~FinishPage() = default;

void FinishPage::enter()
{
    m_form->review->refresh();
}

bool FinishPage::followRecord()
{
    if (!isHidden())
        m_form->review->refresh();
    return false;
}

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
    navigator().ShowPage(index() - 1);
}

void FinishPage::finish(bool saveAs)
{
    showStatus({});
    const FinishEnd end = m_finish.SaveNewFile(saveAs, caption().toStdString());
    if (end == FinishEnd::Taken)
        m_fileTaken();
    if (end == FinishEnd::NotTaken)
        showStatus("The host has not taken the file yet. It is kept for the host until it does.");
}

void FinishPage::hideEvent(QHideEvent *event)
{
    PageFrame::hideEvent(event);
    if (!event->spontaneous() && window()->isVisible())
        showStatus({});
}

void FinishPage::showStatus(const QString &text)
{
    m_form->labStatus->setText(text);
    m_form->labStatus->setVisible(!text.isEmpty());
    // A screen reader speaks up where the focus is, on the button pressed.
    describe(*m_form->cmdUnname, text.isEmpty() ? m_form->Label80b->text() : text);
    describe(*m_form->cmdSaveAs, text.isEmpty() ? m_form->Label80c->text() : text);
}

}  // namespace penwright
