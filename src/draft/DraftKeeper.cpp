#include "draft/DraftKeeper.h"

#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <utility>

namespace penwright {
namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 2s;

/// The texts of a snapshot, each made when it is asked for.
DraftTextSource textsOf(const DraftSnapshot &snapshot)
{
    return [&snapshot, page = std::size_t{0}, text = std::size_t{0}]() mutable -> std::optional<DraftText> {
        while (page < snapshot.pages.size() && text == snapshot.pages[page].value.size()) {
            ++page;
            text = 0;
        }
        if (page == snapshot.pages.size())
            return std::nullopt;
        const HeldText &held = snapshot.pages[page].value[text++];
        return DraftText{snapshot.pages[page].page, held.name, held.text()};
    };
}

}  // namespace

struct DraftKeeper::Job {
    std::function<void(DraftStore &)> run{};
    std::function<void()> failed{};  ///< gives the answer in the place of `run`
    bool isKeeping = false;
};

struct DraftKeeper::Desk {
    std::unique_ptr<DraftStore> store;
    Deliver deliver;
    Trouble trouble;
    bool hasFailed = false;  ///< the last keeping, for the thread alone

    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Job> jobs;
    bool isWorking = false;
    bool isEnding = false;
    bool hasEnded = false;

    void run(const Job &job);
    void tellTrouble(const std::string &reason);
};

void DraftKeeper::Desk::run(const Job &job)
{
    try {
        job.run(*store);
        if (job.isKeeping && std::exchange(hasFailed, false))
            tellTrouble("");
    } catch (const std::exception &error) {
        if (job.failed)
            deliver(job.failed);
        if (job.isKeeping && !std::exchange(hasFailed, true))
            tellTrouble(error.what());
    }
}

void DraftKeeper::Desk::tellTrouble(const std::string &reason)
{
    deliver([tell = trouble, reason] { tell(reason); });
}

DraftKeeper::DraftKeeper(std::unique_ptr<DraftStore> store, Deliver deliver, Clock clock, Trouble trouble)
    : m_desk(std::make_shared<Desk>()), m_clock(std::move(clock))
{
    m_desk->store = std::move(store);
    m_desk->deliver = std::move(deliver);
    m_desk->trouble = std::move(trouble);
    m_thread = std::thread([desk = m_desk] { work(desk); });
}

DraftKeeper::~DraftKeeper()
{
    std::unique_lock lock(m_desk->mutex);
    m_desk->isEnding = true;
    m_desk->changed.notify_all();
    const bool hasEnded = m_desk->changed.wait_for(lock, kPatience, [this] { return m_desk->hasEnded; });
    m_desk->jobs.clear();
    lock.unlock();
    if (hasEnded)
        m_thread.join();
    else
        m_thread.detach();
}

void DraftKeeper::work(const std::shared_ptr<Desk> &desk)
{
    std::unique_lock lock(desk->mutex);
    for (;;) {
        desk->changed.wait(lock, [&] { return desk->isEnding || !desk->jobs.empty(); });
        if (desk->jobs.empty())
            break;
        {
            const Job job = std::move(desk->jobs.front());  // a table goes with it, which nobody should wait for
            desk->jobs.pop_front();
            desk->isWorking = true;
            lock.unlock();
            desk->run(job);
        }
        lock.lock();
        desk->isWorking = false;
        desk->changed.notify_all();
    }
    desk->hasEnded = true;
    desk->changed.notify_all();
}

void DraftKeeper::ask(Job job)
{
    Job older;
    const std::lock_guard lock(m_desk->mutex);
    if (job.isKeeping && !m_desk->jobs.empty() && m_desk->jobs.back().isKeeping)
        older = std::exchange(m_desk->jobs.back(), std::move(job));
    else
        m_desk->jobs.push_back(std::move(job));
    m_desk->changed.notify_all();
}

void DraftKeeper::keep(DraftSnapshot snapshot)
{
    const DraftHead head{m_clock(), snapshot.page, snapshot.about};
    const auto held = std::make_shared<const DraftSnapshot>(std::move(snapshot));
    ask({.run = [head, held](DraftStore &store) { store.write(head, textsOf(*held)); }, .isKeeping = true});
}

void DraftKeeper::look(const std::function<void(DraftsFound)> &answer)
{
    const auto look = [answer, deliver = m_desk->deliver](DraftStore &store) {
        deliver([answer, found = store.look()] { answer(found); });
    };
    ask({.run = look, .failed = [answer] { answer({}); }});
}

void DraftKeeper::takeOver(const std::string &name, const std::function<void(TakenDraft)> &answer)
{
    const auto takeOver = [name, answer, deliver = m_desk->deliver](DraftStore &store) {
        const auto taken = std::make_shared<TakenDraft>();
        taken->end = store.takeOver(name, taken->draft);
        deliver([answer, taken] { answer(std::move(*taken)); });
    };
    ask({.run = takeOver, .failed = [answer] { answer({.end = TakeEnd::Failed}); }});
}

void DraftKeeper::readLast(const std::function<void(std::optional<Draft>)> &answer)
{
    const auto read = [answer, deliver = m_desk->deliver](DraftStore &store) {
        const auto draft = std::make_shared<std::optional<Draft>>(store.readLast());
        deliver([answer, draft] { answer(std::move(*draft)); });
    };
    ask({.run = read, .failed = [answer] { answer(std::nullopt); }});
}

void DraftKeeper::discard(const DraftEntry &draft)
{
    ask({.run = [draft](DraftStore &store) { store.discard(draft); }});
}

void DraftKeeper::leave()
{
    ask({.run = [](DraftStore &store) { store.leave(); }});
}

void DraftKeeper::drop()
{
    ask({.run = [](DraftStore &store) { store.drop(); }});
}

void DraftKeeper::finish()
{
    ask({.run = [](DraftStore &store) { store.finish(); }});
}

bool DraftKeeper::flush(std::chrono::milliseconds limit)
{
    std::unique_lock lock(m_desk->mutex);
    return m_desk->changed.wait_for(lock, limit, [this] { return m_desk->jobs.empty() && !m_desk->isWorking; });
}

}  // namespace penwright
