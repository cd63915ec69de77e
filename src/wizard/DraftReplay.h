#pragma once

#include <array>
#include <optional>
#include <string>
#include <utility>

#include "draft/PageValue.h"
#include "platform/DraftStore.h"
#include "wizard/PageTable.h"

namespace penwright {

class WizardWindow;

/// Takes a draft over as its user would have typed it: a page is filled when it is come to, and left by its Next, up to
/// the page that was shown or to the first that Next does not leave. What the draft holds for pages behind that waits
/// until the user comes to them.
class DraftReplay {
public:
    explicit DraftReplay(WizardWindow &window) : m_window(window) {}

    /// Replays a draft from page 1 on, which is shown. No box opens: what stops it before the page that was shown is
    /// noted on the page where it stops.
    void run(const Draft &draft);

    /// Fills a page that has just been come to with what waits for it. What cannot stand there is noted on it, and
    /// waits on.
    void fill(int page);

    /// What waits is not filled in any more, until it is called again.
    void setAside() { std::swap(m_waiting, m_aside); }

    /// What waits for a page waits no more: the user has put something else there.
    void giveUp(int page);

    /// What waits for a page that has not been come to, or that could not hold it.
    const PageText *waitingFor(int page) const;

    /// What the file is about by the draft, as long as the page that knows has not been come to.
    const std::string &about() const { return m_about; }

private:
    void readPages(const Draft &draft);

    WizardWindow &m_window;
    using Waiting = std::array<std::optional<PageText>, kPageCount>;

    Waiting m_waiting;
    Waiting m_aside;
    PageText m_halfTyped;  ///< on the page that was shown
    std::string m_about;
    bool m_hasRefused = false;  ///< a page could not hold what waited for it
};

}  // namespace penwright
