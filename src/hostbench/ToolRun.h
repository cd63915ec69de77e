#pragma once

#include <penwright_host/HostedTool.h>

#include <QObject>
#include <QTimer>

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

signals:
    void logged(penwright::ToolRun::Line line, const QString &text);

    /// The tool reads the store as soon as this returns.
    void recordsWanted();
    void commandTaken(const penwright::ToolCommand &command);

    /// The process is gone, whatever the reason; once. The store holds nothing of the tool any more.
    void ended();

private:
    void poll();
    void logText(LinkWay way, const std::string &text);
    void noteEnd();

    HostedTool m_tool;
    QTimer m_poll;
    bool m_storeFailed = false;
    bool m_isKilled = false;
};

}  // namespace penwright
