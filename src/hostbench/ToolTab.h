#pragma once

#include <QWidget>

#include "hostbench/ToolArea.h"
#include "hostbench/ToolRun.h"

class QTabWidget;

namespace penwright {

/// One tool in a tab of the host's window: the tool's place and the tool that runs in it, which follows its size. The
/// tab's name says when the tool is silent.
class ToolTab : public QWidget {
    Q_OBJECT

public:
    /// Adds itself to `tabs`, as the tab shown. `address.window` is filled in here.
    ToolTab(QTabWidget &tabs, HostStore &store, ToolAddress address);

    /// Starts the tool and shows it as soon as it listens.
    void start(const QString &program);

    ToolArea &area() { return *m_area; }
    ToolRun &run() { return *m_run; }

    /// Whether its wizard may hold what no file holds yet: until it has handed over a file.
    bool isAtWork() const { return !m_hasHandedOver; }
    void setHandedOver() { m_hasHandedOver = true; }

private:
    void followSize();
    void showName();

    QTabWidget &m_tabs;

    ToolArea *m_area = nullptr;
    ToolRun *m_run = nullptr;
    bool m_hasHandedOver = false;
};

}  // namespace penwright
