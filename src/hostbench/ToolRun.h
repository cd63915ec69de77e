#pragma once

#include <penwright_host/HostedTool.h>

#include <QObject>
#include <QTimer>

#include "hostbench/SilenceWatch.h"

namespace penwright {

/// One tool in the host's event loop: polled every 100 milliseconds, its callbacks as signals, with texts for the log.
class ToolRun : public QObject {
    Q_OBJECT

public:
    /// What a line of the log is; a note is the host's own remark.
    enum class Line { ToTool, FromTool, Note };

    ToolRun(HostStore &store, ToolAddress address, QObject *parent = nullptr);

    /// Starts the executable; `ended` follows at once when that fails.
    void start(const QString &program);

    HostedTool &tool() { return m_tool; }

    /// What the host calls this tool: "Tool " and its tag.
    QString name() const;

    void kill();

    /// Whether it has taken no command for some seconds though one waits: it is stopped or hangs.
    bool isSilent() const { return m_silence.isSilent(); }

signals:
    void logged(penwright::ToolRun::Line line, const QString &text);

    /// The tool reads the store as soon as this returns.
    void recordsWanted();
    void commandTaken(const penwright::ToolCommand &command);

    /// The tool has nothing left to take: it is to be sent what it can take without a change, to show whether it
    /// listens.
    void askedToListen();

    /// It has fallen silent, or speaks again.
    void silenceChanged();

    /// The process is gone, whatever the reason; once. The store holds nothing of the tool any more.
    void ended();

private:
    void poll();
    void logText(LinkWay way, const std::string &text);
    void watchSilence();
    void noteEnd();

    HostedTool m_tool;
    QTimer m_poll;
    SilenceWatch m_silence{[] { return std::chrono::steady_clock::now(); }};
    QString m_lastMove;       ///< of the tool's window, delivered last
    bool m_hasTaken = false;  ///< since the last look at the silence
    bool m_storeFailed = false;
    bool m_isKilled = false;
};

}  // namespace penwright
