#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/DraftStore.h"

namespace penwright {

/// What other runs left behind and is still offered, one at a time, the latest first. A draft that has been discarded
/// is offered no more, but is there until the program ends, so that discarding can be undone.
class DraftOffers {
public:
    /// Begins with what a look into the store has found. A discarded draft with which another run has gone on since is
    /// offered again.
    void begin(const DraftsFound &found);

    const std::vector<DraftEntry> &drafts() const { return m_found.free; }

    /// The last finished file, to start from where there is no draft.
    const std::optional<DraftHead> &last() const { return m_found.last; }

    /// The draft that is offered; nullptr where there is none.
    const DraftEntry *offered() const { return m_offered < drafts().size() ? &drafts()[m_offered] : nullptr; }

    /// Its place among them, counted from 0.
    std::size_t place() const { return m_offered; }
    void choose(std::size_t place) { m_offered = place; }

    /// Offers a draft no more, which a run has taken over, and the latest of the others.
    void remove(const std::string &name);

    void discard(const DraftEntry &draft);

    /// Offers a discarded draft again, at the place that it had.
    void bringBack(const DraftEntry &draft, std::size_t place);

    /// What has been discarded and not brought back.
    std::vector<DraftEntry> discarded() const;

private:
    void leaveOutDiscarded();

    DraftsFound m_found;
    std::size_t m_offered = 0;
    std::map<std::string, DraftHead> m_discarded;  ///< by name
};

}  // namespace penwright
