#pragma once

#include <QTimer>

#include "hostlink/Patience.h"

namespace penwright {

class WizardWindow;

/// Ends a tool that nobody can see and nobody sends commands to: after ten minutes its window begins to unload, with
/// one line on stderr. For a wizard without a host's window, whose end would end it. Belongs to the window.
class UnwantedEnd : public QObject {
    Q_OBJECT

public:
    UnwantedEnd(WizardWindow &window, Patience::Clock clock);

private:
    void look();

    WizardWindow &m_window;
    Patience m_patience;
    std::size_t m_commands;  ///< entries that the log has had by the last look
    QTimer m_look;
};

}  // namespace penwright
