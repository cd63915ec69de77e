#include "hostbench/ToolRun.h"

#include <exception>

namespace penwright {

ToolRun::ToolRun(HostStore &store, ToolAddress address, QObject *parent)
    : QObject(parent), m_tool(store, std::move(address))
{
    m_tool.onText([this](LinkWay way, const std::string &text) { logText(way, text); });
    m_tool.onCommand([this](const ToolCommand &command) { emit commandTaken(command); });
    m_tool.onRecordsWanted([this] { emit recordsWanted(); });
    m_tool.onEnded([this] { noteEnd(); });
    connect(&m_poll, &QTimer::timeout, this, &ToolRun::poll);
}

void ToolRun::start(const QString &program)
{
    emit logged(Line::Note,
                tr("Starts %1 \"%2\"").arg(program.section('/', -1), QString::fromStdString(m_tool.commandLine())));
    try {
        m_tool.start(program.toLocal8Bit().toStdString());
        m_poll.start(100);
    } catch (const std::exception &error) {
        emit logged(Line::Note, tr("Could not be started: %1").arg(QString::fromLocal8Bit(error.what())));
        emit ended();
    }
}

QString ToolRun::name() const
{
    return tr("Tool %1").arg(QString::fromStdString(m_tool.address().tag));
}

void ToolRun::kill()
{
    m_isKilled = true;
    m_tool.kill();
}

void ToolRun::poll()
{
    try {
        if (m_tool.poll())
            watchSilence();
        m_storeFailed = false;
    } catch (const std::exception &error) {
        if (!std::exchange(m_storeFailed, true))
            emit logged(Line::Note, QString::fromStdString(error.what()));
    }
}

void ToolRun::watchSilence()
{
    switch (m_silence.look(std::exchange(m_hasTaken, false), m_tool.isAllTaken())) {
        case SilenceWatch::Finding::AskSomething:
            return emit askedToListen();
        case SilenceWatch::Finding::FellSilent:
            emit logged(Line::Note, tr("Silent: has taken no command for %1 seconds; it is stopped or hangs")
                                        .arg(SilenceWatch::kPatience.count()));
            return emit silenceChanged();
        case SilenceWatch::Finding::SpokeAgain:
            emit logged(Line::Note, tr("Takes commands again"));
            return emit silenceChanged();
        case SilenceWatch::Finding::Nothing:
            return;
    }
}

void ToolRun::logText(LinkWay way, const std::string &text)
{
    const QString shown = QString::fromStdString(text);
    if (way == LinkWay::ToTool) {
        m_hasTaken = true;  // one is delivered when the one before has been taken
        // What asks whether a tool listens is a move to where it is; it would bury all else.
        if (shown.startsWith("MOVEWIN,") && std::exchange(m_lastMove, shown) == shown)
            return;
    }
    emit logged(way == LinkWay::ToTool ? Line::ToTool : Line::FromTool, shown);
    if (way == LinkWay::FromTool && !parseToolCommand(text))
        emit logged(Line::Note, tr("Not a command of a tool; ignored"));
}

void ToolRun::noteEnd()
{
    m_poll.stop();
    if (m_isKilled && m_tool.exitStatus() < 0)
        emit logged(Line::Note, tr("Did not close in time; killed"));
    else if (m_tool.exitStatus() < 0)
        emit logged(Line::Note, tr("Died"));
    else
        emit logged(Line::Note, tr("Ended with status %1").arg(m_tool.exitStatus()));
    emit ended();
}

}  // namespace penwright
