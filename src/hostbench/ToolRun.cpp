#include "hostbench/ToolRun.h"

#include "platform/RunTimeError.h"

namespace penwright {

ToolRun::ToolRun(SettingsStore &store, ToolAddress address, QObject *parent)
    : QObject(parent), m_link(store, std::move(address))
{
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
    m_process.setStandardInputFile(QProcess::nullDevice());
    connect(&m_process, &QProcess::finished, this, &ToolRun::finish);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finish();
    });
    connect(&m_poll, &QTimer::timeout, this, &ToolRun::poll);
}

ToolRun::~ToolRun()
{
    m_process.disconnect(this);
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    m_process.waitForFinished();
}

void ToolRun::start(const QString &program)
{
    const QString commandLine = QString::fromStdString(m_link.commandLine());
    emit logged(LinkWay::Note, tr("Starts %1 \"%2\"").arg(program.section('/', -1), commandLine));
    m_process.start(program, {commandLine});
    m_poll.start(100);
}

QString ToolRun::name() const
{
    return tr("Tool %1").arg(QString::fromStdString(m_link.address().tag));
}

int ToolRun::exitStatus() const
{
    const bool byItself = m_isOver && m_process.error() == QProcess::UnknownError;
    return byItself && m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

void ToolRun::poll()
{
    try {
        deliverAndTake();
        m_storeFailed = false;
    } catch (const RunTimeError &error) {
        if (!std::exchange(m_storeFailed, true))
            emit logged(LinkWay::Note, QString::fromStdString(error.description()));
    }
}

void ToolRun::deliverAndTake()
{
    if (const std::string text = m_link.deliver(); !text.empty())
        emit logged(LinkWay::ToTool, QString::fromStdString(text));
    if (const auto waiting = parseToolCommand(m_link.waiting()); waiting && waiting->word == ToolWord::RefreshData)
        emit recordsWanted();
    const std::string text = m_link.take();
    if (text.empty())
        return;
    emit logged(LinkWay::FromTool, QString::fromStdString(text));
    if (const auto command = parseToolCommand(text))
        emit commandTaken(*command);
    else
        emit logged(LinkWay::Note, tr("Not a command of a tool; ignored"));
}

void ToolRun::noteEnd()
{
    if (m_process.error() == QProcess::FailedToStart)
        emit logged(LinkWay::Note, tr("Could not be started: %1").arg(m_process.errorString()));
    else if (m_process.exitStatus() == QProcess::CrashExit)
        emit logged(LinkWay::Note, tr("Died"));
    else
        emit logged(LinkWay::Note, tr("Ended with status %1").arg(m_process.exitCode()));
}

void ToolRun::finish()
{
    if (std::exchange(m_isOver, true))
        return;
    m_poll.stop();
    // What the tool posted last is taken even when it did not live to see it.
    poll();
    noteEnd();
    try {
        m_link.forget();
    } catch (const RunTimeError &error) {
        emit logged(LinkWay::Note, QString::fromStdString(error.description()));
    }
    emit ended();
}

}  // namespace penwright
