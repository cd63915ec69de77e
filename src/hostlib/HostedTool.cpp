#include <penwright_host/HostedTool.h>

#include <chrono>
#include <stdexcept>
#include <thread>

#include "hostlib/RecordBridge.h"
#include "hostlib/ToolLink.h"
#include "hostlib/ToolProcess.h"
#include "platform/Raised.h"

namespace penwright {

namespace {

constexpr std::chrono::milliseconds kPollInterval{100};

template <typename Handler, typename... Arguments>
void call(const Handler &handler, const Arguments &...arguments)
{
    if (handler)
        handler(arguments...);
}

}  // namespace

struct HostedTool::Parts {
    Parts(SettingsStore &store, ToolAddress address) : link(store, std::move(address)) {}

    ToolLink link;
    ToolProcess process;
    bool isOver = false;
    bool isPolling = false;
    std::function<void(const ToolCommand &)> onCommand;
    std::function<void()> onRecordsWanted;
    std::function<void()> onEnded;
    std::function<void(LinkWay, const std::string &)> onText;
};

HostedTool::HostedTool(HostStore &store, ToolAddress address)
    : m_parts(std::make_unique<Parts>(*store.m_settings, std::move(address)))
{
}

HostedTool::~HostedTool()
{
    if (!isRunning())
        return;
    m_parts->process.killAndWait();
    try {
        m_parts->link.forget();
    } catch (const std::runtime_error &) {
        // What stays behind is emptied by the next tool of that section.
    }
}

const ToolAddress &HostedTool::address() const
{
    return m_parts->link.address();
}

std::string HostedTool::commandLine() const
{
    return m_parts->link.commandLine();
}

void HostedTool::onCommand(std::function<void(const ToolCommand &)> handler)
{
    m_parts->onCommand = std::move(handler);
}

void HostedTool::onRecordsWanted(std::function<void()> handler)
{
    m_parts->onRecordsWanted = std::move(handler);
}

void HostedTool::onEnded(std::function<void()> handler)
{
    m_parts->onEnded = std::move(handler);
}

void HostedTool::onText(std::function<void(LinkWay, const std::string &)> handler)
{
    m_parts->onText = std::move(handler);
}

void HostedTool::start(const std::string &program)
{
    if (processId() > 0)
        throw std::runtime_error("the tool has been started before");
    if (const std::string problem = addressProblem(address()); !problem.empty())
        throw std::runtime_error(problem);
    m_parts->link.forget();
    m_parts->process.start(program, commandLine());
}

void HostedTool::send(std::string command)
{
    m_parts->link.send(std::move(command));
}

void HostedTool::sendDeleteFile(std::string_view filename)
{
    m_parts->link.sendDeleteFile(filename);
}

void HostedTool::sendMoveWindow(int x, int y, int width, int height)
{
    m_parts->link.sendMoveWindow(x, y, width, height);
}

bool HostedTool::isAllTaken()
{
    return m_parts->link.isAllTaken();
}

bool HostedTool::poll()
{
    if (m_parts->isPolling || !isRunning())
        return isRunning();
    const Raised raised(m_parts->isPolling);
    // Asked first: what the tool posted before its end is then in the store for sure.
    if (m_parts->process.hasEnded())
        finish();
    else
        exchange();
    return isRunning();
}

void HostedTool::exchange()
{
    Parts &parts = *m_parts;
    if (const std::string text = parts.link.deliver(); !text.empty())
        call(parts.onText, LinkWay::ToTool, text);
    if (const auto waiting = parseToolCommand(parts.link.waiting()); waiting && waiting->word == ToolWord::RefreshData)
        call(parts.onRecordsWanted);
    const std::string text = parts.link.pop();
    if (text.empty())
        return;
    call(parts.onText, LinkWay::FromTool, text);
    if (const auto command = parseToolCommand(text))
        call(parts.onCommand, *command);
}

void HostedTool::finish()
{
    // A tool that died may have handed its record over before. A store that fails must not keep the end from the host.
    try {
        exchange();
        m_parts->link.forget();
    } catch (...) {
        m_parts->isOver = true;
        call(m_parts->onEnded);
        throw;
    }
    m_parts->isOver = true;
    call(m_parts->onEnded);
}

int HostedTool::run()
{
    while (poll())
        std::this_thread::sleep_for(kPollInterval);
    return exitStatus();
}

std::vector<LoadedRecord> HostedTool::loadRecords()
{
    std::vector<LoadedRecord> records;
    for (const ReadRecord &read : m_parts->link.loadRecords()) {
        if (read.problem.empty()) {
            records.push_back({hostRecord(read.record), {}});
            continue;
        }
        records.push_back({{}, read.problem});
        records.back().record.filename = read.record.Filename;
    }
    return records;
}

void HostedTool::storeRecords(const std::vector<HostRecord> &records)
{
    std::vector<PhotometricRecord> own;
    for (const HostRecord &record : records)
        own.push_back(photometricRecord(record));
    m_parts->link.storeRecords(own);
}

bool HostedTool::isRunning() const
{
    return processId() > 0 && !m_parts->isOver;
}

long HostedTool::processId() const
{
    return m_parts->process.id();
}

int HostedTool::exitStatus() const
{
    return m_parts->process.exitStatus();
}

void HostedTool::kill()
{
    m_parts->process.kill();
}

}  // namespace penwright
