#include "hostbench/ToolTab.h"

#include <QTabWidget>
#include <QVBoxLayout>

namespace penwright {

ToolTab::ToolTab(QTabWidget &tabs, HostStore &store, ToolAddress address)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_area = new ToolArea;
    m_area->setMessage(tr("The tool is starting..."));
    layout->addWidget(m_area);
    // The toolkit makes native windows anew when they move into another top-level window, so the number comes last.
    tabs.addTab(this, {});
    tabs.setCurrentWidget(this);
    address.window = m_area->windowNumber();
    m_run = new ToolRun(store, std::move(address), this);
    tabs.setTabText(tabs.indexOf(this), m_run->name());
    connect(m_area, &ToolArea::resized, this, &ToolTab::followSize);
    connect(m_run, &ToolRun::commandTaken, this, [this](const ToolCommand &command) {
        if (command.word == ToolWord::CloseRemove)
            m_area->setMessage(tr("The tool has closed."));
    });
}

void ToolTab::start(const QString &program)
{
    m_run->start(program);
    followSize();
    m_run->tool().sendStart();
}

void ToolTab::followSize()
{
    const QSize size = m_area->pixels();
    m_run->tool().sendMoveWindow(0, 0, size.width(), size.height());
}

}  // namespace penwright
