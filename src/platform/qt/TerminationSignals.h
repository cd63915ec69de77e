#pragma once

#include <QObject>

class QSocketNotifier;

namespace penwright {

class Closing;

/// Turns SIGTERM, SIGINT and SIGHUP into the one closing flag.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    explicit TerminationSignals(Closing &closing);
    ~TerminationSignals() override;

private:
    int m_pipe[2] = {-1, -1};
    QSocketNotifier *m_notifier = nullptr;
};

}  // namespace penwright
