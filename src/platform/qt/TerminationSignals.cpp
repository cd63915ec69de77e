#include "platform/qt/TerminationSignals.h"

#include <fcntl.h>
#include <unistd.h>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <QSocketNotifier>

#include "platform/qt/Closing.h"

namespace penwright {
namespace {

constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};

std::atomic<int> writeEnd{-1};

// Only a write to the pipe is allowed here; the event loop does the rest.
void onSignal(int)
{
    const int saved = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(writeEnd, &byte, 1);
    errno = saved;
}

void catchSignal(int number)
{
    struct sigaction current {};
    sigaction(number, nullptr, &current);
    if (current.sa_handler == SIG_IGN)
        return;  // whoever started the program wants it to live through this one (nohup, a background job)
    struct sigaction ours {};
    ours.sa_handler = onSignal;
    ours.sa_flags = SA_RESTART;
    sigaction(number, &ours, nullptr);
}

void releaseSignal(int number)
{
    struct sigaction current {};
    sigaction(number, nullptr, &current);
    if (current.sa_handler == onSignal)
        signal(number, SIG_DFL);
}

}  // namespace

TerminationSignals::TerminationSignals(Closing &closing)
{
    if (pipe2(m_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return;  // without a pipe the signals keep ending the process at once
    writeEnd = m_pipe[1];
    m_notifier = new QSocketNotifier(m_pipe[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this, &closing] {
        char bytes[16];
        while (read(m_pipe[0], bytes, sizeof bytes) > 0) {
        }
        closing.begin();
    });
    for (const int number : kSignals)
        catchSignal(number);
}

TerminationSignals::~TerminationSignals()
{
    for (const int number : kSignals)
        releaseSignal(number);
    writeEnd = -1;
    delete m_notifier;
    for (const int end : m_pipe)
        if (end >= 0)
            close(end);
}

}  // namespace penwright
