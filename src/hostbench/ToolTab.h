#pragma once

#include <QWidget>

#include "hostbench/ToolArea.h"
#include "hostbench/ToolRun.h"

class QTabWidget;

namespace penwright {

/// One tool in a tab of the host's window: the tool's place and the tool that runs in it, which follows its size.
class ToolTab : public QWidget {
    Q_OBJECT

public:
    /// Adds itself to `tabs`, as the tab shown. `address.window` is filled in here.
    ToolTab(QTabWidget &tabs, HostStore &store, ToolAddress address);

    /// Starts the tool and shows it as soon as it listens.
    void start(const QString &program);

    ToolArea &area() { return *m_area; }
    ToolRun &run() { return *m_run; }

private:
    void followSize();

    ToolArea *m_area = nullptr;
    ToolRun *m_run = nullptr;
};

}  // namespace penwright
