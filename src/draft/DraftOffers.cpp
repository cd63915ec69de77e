#include "draft/DraftOffers.h"

#include <algorithm>

namespace penwright {

void DraftOffers::begin(const DraftsFound &found)
{
    m_found = found;
    leaveOutDiscarded();
}

void DraftOffers::remove(const std::string &name)
{
    std::erase_if(m_found.free, [&name](const DraftEntry &draft) { return draft.name == name; });
    m_offered = 0;
}

void DraftOffers::discard(const DraftEntry &draft)
{
    m_discarded.insert_or_assign(draft.name, draft.head);
    leaveOutDiscarded();
}

void DraftOffers::bringBack(const DraftEntry &draft, std::size_t place)
{
    m_discarded.erase(draft.name);
    m_offered = std::min(place, drafts().size());
    m_found.free.insert(m_found.free.begin() + static_cast<std::ptrdiff_t>(m_offered), draft);
}

std::vector<DraftEntry> DraftOffers::discarded() const
{
    std::vector<DraftEntry> drafts;
    for (const auto &[name, head] : m_discarded)
        drafts.push_back({name, head});
    return drafts;
}

void DraftOffers::leaveOutDiscarded()
{
    std::erase_if(m_found.free, [this](const DraftEntry &draft) {
        const auto it = m_discarded.find(draft.name);
        return it != m_discarded.end() && it->second == draft.head;  // else another run has gone on with it
    });
    m_offered = 0;
}

}  // namespace penwright
