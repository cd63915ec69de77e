#include "disorder/Player.h"

#include <cstdio>
#include <cstdlib>

#include "disorder/Acts.h"
#include "disorder/Checks.h"

namespace penwright::test {
namespace {

using namespace std::chrono_literals;

std::string nameOf(const QWidget &widget)
{
    return widget.metaObject()->className() + (" " + widget.objectName() + " " + widget.windowTitle()).toStdString();
}

}  // namespace

Player::Tally Player::play()
{
    do {
        run(!std::exchange(m_isNextAlone, false));
        m_host.forgetTool();
    } while (m_next < m_script.size());
    return m_tally;
}

void Player::run(bool isEmbedded)
{
    m_scene = std::make_unique<Scene>(m_ground, m_host, isEmbedded);
    m_turns = m_actsUnderDialog = 0;
    m_ending.invalidate();
    follow();
    m_host.send("START");
    m_isRunning = true;
    QTimer::singleShot(0, this, [this] { turn(); });
    const int status = QApplication::exec();
    m_isRunning = false;
    require(faultAtEnd(*m_scene, status));
    m_scene->window.reset();
    require(faultOfDrafts(*m_scene));
    require(m_ground.faultOfFiles());
    m_tally.draftsTaken += m_scene->hasTakenOver ? 1 : 0;
    m_tally.draftsLeft += m_scene->lastWords && m_scene->lastWords->isTyped ? 1 : 0;
    m_scene.reset();
}

void Player::follow()
{
    ++m_tally.runs;
    QObject::connect(m_scene->window.get(), &WizardWindow::pageTurned, this, [this](int page) {
        ++m_tally.pagesTurned;
        m_tally.lastPages += page == kFinishPage ? 1 : 0;
    });
    QObject::connect(m_scene->window.get(), &WizardWindow::fileTaken, this, [this] { ++m_tally.filesTaken; });
}

void Player::turn()
{
    if (!m_isRunning)
        return;
    // Before all else: what follows may open a dialog, whose own loop goes on from here.
    const bool isHeldUp = m_host.isWaitingForTool() && m_turnsWaited < 500;
    QTimer::singleShot(isHeldUp ? 1ms : 0ms, this, [this] { turn(); });
    require(m_host.tick());
    m_turnsWaited = isHeldUp ? m_turnsWaited + 1 : 0;
    if (isHeldUp || ++m_turns % kTurnsPerAct != 0)
        return;
    require(faultBetweenActs(*m_scene));
    QApplication::setActiveWindow(m_scene->top().window());  // as a window manager does
    actNext();
}

void Player::actNext()
{
    const bool isUnder = QApplication::activeModalWidget() || QApplication::activePopupWidget();
    m_actsUnderDialog = isUnder ? m_actsUnderDialog + 1 : 0;
    m_tally.underDialog += isUnder ? 1 : 0;
    if (m_scene->closing.isClosing())
        return awaitEnd();
    if (m_actsUnderDialog > kPatience)
        return leaveDialog();
    if (m_next == m_script.size()) {
        if (!m_ending.isValid())
            m_host.send("CLOSE");
        return awaitEnd();
    }
    const std::string &line = m_script[m_next++];
    m_isNextAlone = m_isNextAlone || line == "end alone";
    const std::string fault = act(*m_scene, line);
    require(fault.empty() ? "" : line + ": " + fault);
}

/// Every dialog and menu can be left by keys.
void Player::leaveDialog()
{
    if (m_actsUnderDialog > 3 * kPatience)
        require("what is open cannot be left by Escape: " + nameOf(m_scene->top()) + ", focus on " +
                nameOf(m_scene->focus()));
    act(*m_scene, "key Escape");
}

void Player::awaitEnd()
{
    if (!m_ending.isValid())
        m_ending.start();
    if (m_ending.elapsed() > 20'000)
        require("the run does not end");
}

void Player::require(const std::string &fault)
{
    if (fault.empty())
        return;
    std::printf("act %zu: %s\n", m_next, fault.c_str());
    std::fflush(stdout);
    std::_Exit(3);
}

}  // namespace penwright::test
