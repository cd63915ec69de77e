#include "wizard/DraftReplay.h"

#include <algorithm>
#include <utility>

#include "wizard/HalfTyped.h"
#include "wizard/WizardWindow.h"

namespace penwright {
namespace {

constexpr const char *kStopped = "The draft is taken over up to this page: something here is missing or wrong.";
constexpr const char *kRefused = "What the draft holds for this page cannot stand here. The page is as it was.";

}  // namespace

void DraftReplay::run(const Draft &draft)
{
    readPages(draft);
    m_hasRefused = false;
    fill(kLampPage);
    int shown = kLampPage;
    while (!m_hasRefused && shown < std::min<int>(draft.head.page, kFinishPage)) {
        if (!m_window.page(shown).leaveByNext())
            return m_window.page(shown).showNote(kStopped);
        shown = m_window.shownPage();
    }
    if (!m_hasRefused)
        resumeTyping(m_window.page(shown).fields(), m_halfTyped);
}

void DraftReplay::readPages(const Draft &draft)
{
    m_waiting = {};
    m_aside = {};
    m_halfTyped.clear();
    m_about = draft.head.about;
    for (const DraftText &held : draft.texts)
        if (isHalfTyped(held.name)) {
            if (held.page == draft.head.page)
                m_halfTyped.emplace(held.name, held.text);
        } else if (held.page >= 0 && held.page < kPageCount) {
            auto &page = m_waiting[static_cast<std::size_t>(held.page)];
            if (!page)
                page.emplace();
            page->emplace(held.name, held.text);
        }
}

void DraftReplay::fill(int page)
{
    auto &waiting = m_waiting.at(static_cast<std::size_t>(page));
    if (!waiting)
        return;
    PageText text = *std::exchange(waiting, std::nullopt);
    if (m_window.page(page).showValue(text, "Take Over"))
        return;
    waiting = std::move(text);
    m_hasRefused = true;
    m_window.page(page).showNote(kRefused);
}

void DraftReplay::giveUp(int page)
{
    m_waiting.at(static_cast<std::size_t>(page)).reset();
}

const PageText *DraftReplay::waitingFor(int page) const
{
    const auto &waiting = m_waiting.at(static_cast<std::size_t>(page));
    return waiting ? &*waiting : nullptr;
}

}  // namespace penwright
