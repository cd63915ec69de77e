#include "hostbench/SilenceWatch.h"

#include <utility>

namespace penwright {

SilenceWatch::SilenceWatch(Clock clock) : m_clock(std::move(clock)), m_since(m_clock()) {}

SilenceWatch::Finding SilenceWatch::look(bool hasTaken, bool isAllTaken)
{
    const auto now = m_clock();
    const bool hasBegunToWait = m_wasIdle && !isAllTaken;
    const bool speaks = hasTaken || (isAllTaken && !m_wasIdle);
    m_wasIdle = isAllTaken;
    if (hasBegunToWait || speaks)
        m_since = now;
    if (speaks && std::exchange(m_isSilent, false))
        return Finding::SpokeAgain;
    if (isAllTaken && now - m_since >= kAskEvery) {
        m_since = now;
        return Finding::AskSomething;
    }
    if (!isAllTaken && !m_isSilent && now - m_since >= kPatience) {
        m_isSilent = true;
        return Finding::FellSilent;
    }
    return Finding::Nothing;
}

}  // namespace penwright
