#include "wizard/UnwantedEnd.h"

#include <cstdio>
#include <utility>

#include "wizard/WizardWindow.h"

namespace penwright {
namespace {

constexpr int kLookInterval = 1000;  // milliseconds
constexpr const char *kLastLine = "PenwrightPE: nobody has wanted anything for ten minutes; the tool ends.";

}  // namespace

UnwantedEnd::UnwantedEnd(WizardWindow &window, Patience::Clock clock)
    : QObject(&window),
      m_window(window),
      m_patience(std::move(clock)),
      m_commands(window.link().log().appended()),
      m_look(this)
{
    m_look.setObjectName("tmrUnwanted");
    connect(&m_look, &QTimer::timeout, this, &UnwantedEnd::look);
    m_look.start(kLookInterval);
}

void UnwantedEnd::look()
{
    const std::size_t commands = m_window.link().log().appended();
    const bool isCommanded = std::exchange(m_commands, commands) != commands;
    if (isCommanded || m_window.isVisible())
        return m_patience.renew();
    if (!m_patience.isOver())
        return;
    m_look.stop();
    std::fprintf(stderr, "%s\n", kLastLine);
    m_window.beginUnload();
}

}  // namespace penwright
