#include "wizard/TypingGo.h"

#include <utility>

namespace penwright {

void TypingGo::end()
{
    ++m_number;
    m_isTyping = false;
}

void TypingGo::actEnded()
{
    if (std::exchange(m_endsWithAct, false))
        end();
}

void TypingGo::add(Key key, bool hasSelection)
{
    const bool isDeletion = key == Key::Deletion;
    const bool isTypedOn = m_isTyping && key == Key::Character;  // nothing between has selected anything
    const bool replaces = key != Key::Other && hasSelection && !isTypedOn;
    const bool goesOnDeleting = isDeletion && m_deletions == 1 && m_characters > 1;  // the first one mends a slip
    if (replaces || goesOnDeleting)
        end();
    m_isTyping = key == Key::Character;
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
