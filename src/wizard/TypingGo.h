#pragma once

namespace penwright {

/// Which keys that come to a box are one go of typing, to be undone at once: the characters that come one by one and
/// the deletion that mends a slip among them. What replaces or deletes a selection, and what goes on deleting, begins
/// another one; but not where the box has selected its text by itself, in answer to the character before.
class TypingGo {
public:
    enum class Key { Character, Deletion, Other };

    /// The number of the go under way, from 1 on; never one that was before.
    int number() const { return m_number; }

    /// What comes from now on is another go.
    void end();

    /// What comes once the act under way has ended is another go: the focus has moved in it.
    void endWithAct() { m_endsWithAct = true; }

    /// The act under way has ended.
    void actEnded();

    /// Takes a key into account that is about to come to a box in which something is selected or not.
    void add(Key key, bool hasSelection);

private:
    int m_number = 1;
    bool m_endsWithAct = false;
    bool m_isTyping = false;  ///< the key before was a character of this go
    int m_characters = 0;     ///< one behind the other
    int m_deletions = 0;      ///< behind them
};

}  // namespace penwright
