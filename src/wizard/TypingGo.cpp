#include "wizard/TypingGo.h"

#include <utility>

namespace penwright {

void TypingGo::actEnded()
{
    if (std::exchange(m_endsWithAct, false))
        end();
}

void TypingGo::add(Key key, bool hasSelection)
{
    const bool isDeletion = key == Key::Deletion;
    if (key != Key::Other && hasSelection)
        end();
    else if (isDeletion && m_deletions == 1 && m_characters > 1)  // the first one mends a slip
        end();
    if (isDeletion) {
        ++m_deletions;
        return;
    }
    if (std::exchange(m_deletions, 0) > 0)
        m_characters = 0;
    if (key == Key::Character)
        ++m_characters;
}

}  // namespace penwright
