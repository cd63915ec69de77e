#pragma once

#include <QObject>
#include <QProcess>
#include <QTimer>

#include "hostbench/hostlib/ToolCommand.h"
#include "hostbench/hostlib/ToolLink.h"

namespace penwright {

/// Which way a line of the link's log went; a note is the host's own remark.
enum class LinkWay { ToTool, FromTool, Note };

/// One tool from its start to its end: its process, its link, and the poll of the host's inbox every 100 ms.
class ToolRun : public QObject {
    Q_OBJECT

public:
    ToolRun(SettingsStore &store, ToolAddress address, QObject *parent = nullptr);

    /// Kills the tool if it still runs.
    ~ToolRun() override;

    /// Starts the executable with the link's command line; `ended` follows at once when that fails.
    void start(const QString &program);

    ToolLink &link() { return m_link; }

    /// What the host calls this tool: "Tool " and its tag.
    QString name() const;

    qint64 processId() const { return m_process.processId(); }

    /// Exit status of a tool that has ended by itself, -1 otherwise.
    int exitStatus() const;

    void kill() { m_process.kill(); }

signals:
    void logged(penwright::LinkWay way, const QString &text);

    /// "RefreshData" waits in the inbox; the tool reads the store as soon as it has been taken.
    void recordsWanted();
    void commandTaken(const penwright::ToolCommand &command);

    /// The process is gone, whatever the reason; once. The store holds nothing of the tool any more.
    void ended();

private:
    void poll();
    void deliverAndTake();
    void noteEnd();
    void finish();

    ToolLink m_link;
    QProcess m_process;
    QTimer m_poll;
    bool m_storeFailed = false;
    bool m_isOver = false;
};

}  // namespace penwright
