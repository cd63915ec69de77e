#include "hostbench/ToolTab.h"

#include <QTabWidget>
#include <QVBoxLayout>

namespace penwright {

ToolTab::ToolTab(QTabWidget &tabs, HostStore &store, ToolAddress address) : m_tabs(tabs)
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
    showName();
    connect(m_run, &ToolRun::askedToListen, this, &ToolTab::followSize);
    connect(m_run, &ToolRun::silenceChanged, this, &ToolTab::showName);
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

void ToolTab::showName()
{
    const int place = m_tabs.indexOf(this);
    m_tabs.setTabText(place, m_run->isSilent() ? tr("%1 (silent)").arg(m_run->name()) : m_run->name());
    m_tabs.setTabToolTip(place, m_run->isSilent() ? tr("It takes no commands: it is stopped or hangs") : QString());
}

void ToolTab::followSize()
{
    const QSize size = m_area->pixels();
    m_run->tool().sendMoveWindow(0, 0, size.width(), size.height());
}

}  // namespace penwright
