#pragma once

#include <QObject>

#include <cstddef>
#include <memory>
#include <string>

#include "disorder/Scene.h"
#include "disorder/Script.h"

namespace penwright::test {

/// Plays a script: runs of the wizard one after the other over the same ground, an act at each turn of the event loop,
/// also while a dialog or a post waits. What does not hold ends the process with a line that says where and what: there
/// is no way back from within a dialog.
class Player : public QObject {
public:
    explicit Player(Script script) : m_script(std::move(script)) {}

    /// What came about while it was played.
    struct Tally {
        int runs = 0;
        int pagesTurned = 0;
        int lastPages = 0;    ///< times that page 6 was reached
        int underDialog = 0;  ///< acts while a dialog, a menu or a list was open
        int filesTaken = 0;
        int draftsTaken = 0;
        int draftsLeft = 0;
    };

    /// Plays it to the end.
    Tally play();

private:
    void run(bool isEmbedded);
    void follow();
    void turn();
    void actNext();
    void awaitEnd();
    void leaveDialog();
    void require(const std::string &fault);

    /// Turns of the event loop after an act, in which what it has queued is done.
    static constexpr int kTurnsPerAct = 3;

    /// Acts that a dialog lives to see.
    static constexpr int kPatience = 4;

    const Script m_script;
    Tally m_tally;
    std::size_t m_next = 0;
    Ground m_ground;
    PlayedHost m_host{m_ground.store};
    std::unique_ptr<Scene> m_scene;
    int m_turns = 0;
    int m_turnsWaited = 0;
    int m_actsUnderDialog = 0;
    QElapsedTimer m_ending;  ///< runs from when the run was to end
    bool m_isRunning = false;
    bool m_isNextAlone = false;
};

}  // namespace penwright::test
