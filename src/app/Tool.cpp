#include "app/Tool.h"

#include "app/WizardAssembly.h"
#include "help/chm/ChmHelpFile.h"

namespace penwright {

Tool::Tool(Closing &closing, ChosenEmbedding &embedding)
    : m_closing(closing),
      m_store(ChosenStore::userPath()),
      m_dialogs(m_closing, m_owner),
      m_wait(m_closing, m_owner),
      m_help(m_dialogs, m_closing, openChm),
      m_services{m_store, m_files, m_dialogs, m_wait, embedding, m_help}
{
}

WizardWindow &Tool::loadWindow()
{
    m_window = assembleWizard(m_state, m_services, m_closing, m_owner,
                              std::make_unique<ChosenDrafts>(ChosenDrafts::userFolder()));
    return *m_window;
}

}  // namespace penwright
