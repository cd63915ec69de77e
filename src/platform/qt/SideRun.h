#pragma once

#include <QObject>

#include <functional>
#include <memory>

class QTimer;

namespace penwright {

/// Has long work done without holding up the window: on a thread of its own, with what was asked for last as all that
/// is told. A thread that a disk holds up is left behind, not waited for, so that the work owns all that it refers to.
class SideRun : public QObject {
    Q_OBJECT

public:
    /// Asked now and then with the part that is done, 0 to 1; the work ends early when it says no.
    using GoOn = std::function<bool(double)>;

    /// What is done on this object's thread when the work has ended.
    using Answer = std::function<void()>;

    using Work = std::function<Answer(const GoOn &)>;

    explicit SideRun(QObject *parent);
    ~SideRun() override;

    /// Begins work, and stops what was begun before.
    void start(Work work);

    /// The answer of what runs is not given any more.
    void stop();

    bool isRunning() const { return m_run != nullptr; }

signals:
    /// How much is done, 0 to 1; told while something runs for longer than a moment.
    void progressed(double part);

private:
    struct Run;

    std::shared_ptr<Run> m_run;
    QTimer *m_look;
};

}  // namespace penwright
