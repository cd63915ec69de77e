#include "app/Tool.h"

#include <chrono>

#include "help/chm/ChmHelpFile.h"
#include "pages/candela/CandelaPage.h"
#include "pages/distribution/DistributionPage.h"
#include "pages/finish/FinishPage.h"
#include "pages/keywords/KeywordPage.h"
#include "pages/luminaire/LampPage.h"
#include "pages/luminaire/TiltPage.h"

namespace penwright {

using namespace std::chrono_literals;

Tool::Tool()
    : m_signals(m_closing),
      m_store(SqliteSettingsStore::userPath()),
      m_dialogs(m_closing),
      m_wait(m_closing),
      m_embedding(m_closing),
      m_help(m_dialogs, m_closing, openChm),
      m_services{m_store, m_files, m_dialogs, m_wait, m_embedding, m_help}
{
}

WizardWindow &Tool::loadWindow()
{
    m_window = std::make_unique<WizardWindow>(m_state, m_services, WindowServices{m_closing, m_embedding, m_wait});
    WizardWindow &window = *m_window;
    const PageContext context = window.pageContext();
    auto *candelaPage = new CandelaPage(context, m_candelaState);
    auto *distributionPage = new DistributionPage(context, [candelaPage] { candelaPage->lsbStart(); });
    window.setPages({new LampPage(context), new TiltPage(context), new KeywordPage(context), distributionPage,
                     candelaPage, new FinishPage(context)},
                    [this] { m_candelaState = {}; });
    m_dialogs.setOwner(&window);
    m_wait.setHeldOff(&window);
    m_embedding.adopt(window);
    window.load();
    letEventsRunWhileLocked();
    return window;
}

// Once there is a window, a store that another process keeps locked must not stop it from painting, nor hold up the end
// of the program.
void Tool::letEventsRunWhileLocked()
{
    m_store.setBusyWait([this] { return m_wait.until([] { return false; }, 20ms) != WaitEnd::Cancelled; });
}

}  // namespace penwright
