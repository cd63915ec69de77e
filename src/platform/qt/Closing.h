#pragma once

#include <QObject>
#include <QTimer>

namespace penwright {

/// The one closing flag, and the unwinding that follows it: whatever is open (message box, dialog, popup, menu, cell
/// editor, wait) is dismissed as cancelled until the event loop runs flat; then `unwound` is emitted once.
class Closing : public QObject {
    Q_OBJECT

public:
    explicit Closing(QObject *parent = nullptr);

    /// Sets the flag and starts to unwind; every later call changes nothing.
    void begin();

    /// The host's window is gone: nobody is left to tell. Begins closing, and ends a wait that runs.
    void hostVanished();

    /// The flag: routines that wake from a dialog or a wait look at it and go no further.
    bool isClosing() const { return m_stage != Stage::Running; }

    bool isHostGone() const { return m_hostGone; }

    /// Whether a wait may run: always but while things are being dismissed, or when the host is gone.
    bool mayWait() const { return !m_hostGone && m_stage != Stage::Unwinding; }

signals:
    /// The flag has just been set.
    void begun();

    /// The stack is flat: time to tell the host, give the window back and end.
    void unwound();

private:
    enum class Stage { Running, Unwinding, Finishing };
    void step();

    Stage m_stage = Stage::Running;
    bool m_hostGone = false;
    QTimer m_unwind;
};

}  // namespace penwright
