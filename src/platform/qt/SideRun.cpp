#include "platform/qt/SideRun.h"

#include <QTimer>

#include <atomic>
#include <chrono>
#include <thread>
#include <utility>

#include "platform/qt/DeliverTo.h"

namespace penwright {
namespace {

using namespace std::chrono_literals;

constexpr auto kLook = 50ms;

}  // namespace

struct SideRun::Run {
    std::atomic<bool> isStopped = false;
    std::atomic<double> part = 0;
};

SideRun::SideRun(QObject *parent) : QObject(parent), m_look(new QTimer(this))
{
    m_look->setInterval(kLook);
    connect(m_look, &QTimer::timeout, this, [this] {
        if (m_run)
            emit progressed(m_run->part);
    });
}

SideRun::~SideRun()
{
    stop();
}

void SideRun::stop()
{
    m_look->stop();
    if (const auto run = std::exchange(m_run, nullptr))
        run->isStopped = true;
}

void SideRun::start(Work work)
{
    stop();
    const auto run = m_run = std::make_shared<Run>();
    m_look->start();
    std::thread([this, run, work = std::move(work), deliver = deliverTo(this)] {
        const Answer answer = work([&run](double part) {
            run->part = part;
            return !run->isStopped;
        });
        deliver([this, run, answer] {
            if (run->isStopped)
                return;
            stop();
            answer();
        });
    }).detach();
}

}  // namespace penwright
