#include "platform/sqlite/SqliteDraftStore.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <limits>
#include <thread>

#include "platform/sqlite/DraftFile.h"
#include "platform/sqlite/SqliteFolder.h"

namespace penwright {
namespace {

using namespace std::chrono_literals;

constexpr std::size_t kMostDrafts = 20;
constexpr int kMostTries = 5;
constexpr int kNotUnderstood = 13;
constexpr int kNoPermission = 70;
constexpr std::int64_t kMicros = 1'000'000;

// Whoever only looks at a draft has it for a moment.
constexpr auto kDraftPatience = 200ms;
constexpr auto kDraftPause = 5ms;

std::optional<DraftLock> lockAlone(const std::string &path)
{
    const auto end = std::chrono::steady_clock::now() + kDraftPatience;
    for (;;) {
        auto lock = DraftLock::take(path, DraftLock::Kind::Alone);
        if (lock || std::chrono::steady_clock::now() > end)
            return lock;
        std::this_thread::sleep_for(kDraftPause);
    }
}

/// Whether the file itself is at fault; anything else may be better another time.
bool isAtFault(const SqliteFailure &failure)
{
    return failure.errorNumber() == kNotUnderstood || failure.errorNumber() == kNoPermission;
}

/// A number beyond that of all drafts seen so far, and as a rule the time: clocks are set back now and then.
std::int64_t orderOf(std::int64_t time, std::int64_t latest)
{
    constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
    const std::int64_t micros = std::clamp<std::int64_t>(time, 0, kMost / kMicros) * kMicros;
    return latest == kMost ? kMost : std::max(micros, latest + 1);
}

}  // namespace

struct SqliteDraftStore::Sight {
    enum class Kind { Free, Empty, NotUnderstood, NotNow };

    Kind kind = Kind::NotNow;
    DraftEntry entry{};
    std::int64_t order = 0;
};

std::string SqliteDraftStore::userFolder()
{
    return (std::filesystem::path(userStateFolder()) / "Lumentor" / "drafts").string();
}

RunTimeError SqliteDraftStore::errorOf(const std::string &name, const SqliteFailure &failure) const
{
    return RunTimeError(failure.errorNumber(), m_folder.pathOf(name) + ": " + failure.reason);
}

SqliteDraftStore::Sight SqliteDraftStore::sightOf(const std::string &name) const
{
    const auto lock = DraftLock::take(m_folder.lockOf(name), DraftLock::Kind::Shared);
    if (!lock || !m_folder.isThere(name))
        return {Sight::Kind::NotNow, {name}};
    if (!m_folder.isFileOfOurs(name))
        return {Sight::Kind::NotUnderstood, {name}};
    try {
        const SqliteHandle database = openDraftFile(m_folder.pathOf(name));
        const DraftMark mark = readDraftMark(database.get());
        if (mark.isEmpty)
            return {m_folder.isFileOfNothing(name) ? Sight::Kind::Empty : Sight::Kind::NotUnderstood, {name}};
        return {Sight::Kind::Free, {name, mark.head}, mark.order};
    } catch (const SqliteFailure &failure) {
        return {isAtFault(failure) ? Sight::Kind::NotUnderstood : Sight::Kind::NotNow, {name}};
    }
}

std::vector<SqliteDraftStore::Sight> SqliteDraftStore::sightsOf(const std::vector<std::string> &names) const
{
    std::vector<Sight> sights;
    sights.reserve(names.size());
    for (const std::string &name : names)
        sights.push_back(sightOf(name));
    std::sort(sights.begin(), sights.end(), [](const Sight &a, const Sight &b) {
        return a.order != b.order ? a.order > b.order : a.entry.name > b.entry.name;
    });
    return sights;
}

bool SqliteDraftStore::putAside(const std::string &name) const
{
    auto lock = DraftLock::take(m_folder.lockOf(name), DraftLock::Kind::Alone);
    if (!lock || !m_folder.putAside(name))
        return false;
    lock->remove();
    return true;
}

/// Of the drafts that are seen, the latest first, the oldest free ones go.
void SqliteDraftStore::removeOldest(std::vector<Sight> &sights) const
{
    for (std::size_t i = sights.size(); i-- > 0 && sights.size() > kMostDrafts;)
        if (sights[i].kind == Sight::Kind::Free) {
            const std::string &name = sights[i].entry.name;
            if (auto lock = DraftLock::take(m_folder.lockOf(name), DraftLock::Kind::Alone)) {
                m_folder.remove(name);
                lock->remove();
            }
            sights.erase(sights.begin() + static_cast<std::ptrdiff_t>(i));
        }
}

void SqliteDraftStore::keepLatest()
{
    const std::vector<std::string> names = m_folder.drafts();
    if (names.size() <= kMostDrafts)
        return;
    std::vector<Sight> sights = sightsOf(names);
    removeOldest(sights);
}

DraftsFound SqliteDraftStore::look()
{
    DraftsFound found;
    std::vector<Sight> sights = sightsOf(m_folder.drafts());
    std::erase_if(sights, [&](const Sight &sight) {
        if (sight.kind == Sight::Kind::Empty) {
            discard(sight.entry);
            return true;
        }
        const bool isAside = sight.kind == Sight::Kind::NotUnderstood && putAside(sight.entry.name);
        found.putAside += isAside ? 1 : 0;
        return isAside;
    });
    removeOldest(sights);
    for (Sight &sight : sights)
        if (sight.kind == Sight::Kind::Free) {
            m_latestOrder = std::max(m_latestOrder, sight.order);
            found.free.push_back(std::move(sight.entry));
        }
    if (const auto last = readUnlocked(kLastFile, false, found.putAside))
        found.last = last->head;
    return found;
}

void SqliteDraftStore::write(const DraftHead &head, const DraftTextSource &texts)
{
    forgetOwnIfGone();
    if (!m_own)
        begin();
    m_latestOrder = orderOf(head.time, m_latestOrder);
    try {
        writeDraft(m_own->database.get(), {.order = m_latestOrder, .head = head}, texts);
    } catch (const SqliteFailure &failure) {
        throw errorOf(m_own->name, failure);
    }
}

void SqliteDraftStore::begin()
{
    m_folder.make();
    for (int tries = 0; tries < kMostTries; ++tries) {
        const std::string name = DraftFolder::newName();
        auto lock = DraftLock::make(m_folder.lockOf(name));
        if (!lock)
            continue;
        m_folder.makeFile(name);
        try {
            m_own.emplace(Own{name, *std::move(lock), openDraftFile(m_folder.pathOf(name))});
        } catch (const SqliteFailure &failure) {
            throw errorOf(name, failure);
        }
        keepLatest();
        return;
    }
    throw fileError(m_folder.pathOf("draft"), EEXIST);
}

// Somebody may have cleared the folder: what is written into a file without a name would be lost.
void SqliteDraftStore::forgetOwnIfGone()
{
    if (m_own && (!m_own->lock.isThere() || !m_folder.isThere(m_own->name)))
        m_own.reset();
}

TakeEnd SqliteDraftStore::takeOver(const std::string &name, Draft &draft)
{
    if (!DraftFolder::isDraftName(name) || !m_folder.isThere(name))
        return TakeEnd::Gone;
    auto lock = lockAlone(m_folder.lockOf(name));
    if (!lock)
        return m_folder.isThere(name) ? TakeEnd::InUse : TakeEnd::Gone;
    try {
        if (!m_folder.isThere(name)) {
            lock->remove();
            return TakeEnd::Gone;
        }
        if (!m_folder.isFileOfOurs(name))
            throw SqliteFailure{kNotUnderstood, {}};
        SqliteHandle database = openDraftFile(m_folder.pathOf(name));
        const DraftMark mark = readDraftMark(database.get());
        draft = {mark.head, mark.isEmpty ? std::vector<DraftText>() : readDraftTexts(database.get())};
        m_latestOrder = std::max(m_latestOrder, mark.order);
        drop();
        m_own.emplace(Own{name, *std::move(lock), std::move(database)});
        return TakeEnd::Taken;
    } catch (const SqliteFailure &failure) {
        if (!isAtFault(failure) || !m_folder.putAside(name))
            return TakeEnd::Failed;
        lock->remove();
        return TakeEnd::Damaged;
    }
}

void SqliteDraftStore::discard(const DraftEntry &draft)
{
    if (!DraftFolder::isDraftName(draft.name) || !m_folder.isThere(draft.name))
        return;
    auto lock = lockAlone(m_folder.lockOf(draft.name));
    if (lock && isAsFound(draft)) {
        m_folder.remove(draft.name);
        lock->remove();
    }
}

bool SqliteDraftStore::isAsFound(const DraftEntry &draft) const
{
    if (!m_folder.isThere(draft.name) || !m_folder.isFileOfOurs(draft.name))
        return false;
    try {
        const SqliteHandle database = openDraftFile(m_folder.pathOf(draft.name));
        return readDraftMark(database.get()).head == draft.head;
    } catch (const SqliteFailure &) {
        return false;
    }
}

void SqliteDraftStore::drop()
{
    if (!m_own)
        return;
    m_own->database.reset();
    m_folder.remove(m_own->name);
    m_own->lock.remove();
    m_own.reset();
}

void SqliteDraftStore::finish()
{
    forgetOwnIfGone();
    if (!m_own)
        return;
    Own own = *std::move(m_own);
    m_own.reset();
    try {
        settleDraft(own.database.get());
    } catch (const SqliteFailure &failure) {
        throw errorOf(own.name, failure);
    }
    own.database.reset();
    m_folder.replace(own.name, kLastFile);
    own.lock.remove();
}

std::optional<Draft> SqliteDraftStore::readLast()
{
    int putAside = 0;
    return readUnlocked(kLastFile, true, putAside);
}

std::optional<Draft> SqliteDraftStore::readUnlocked(const std::string &name, bool withTexts, int &putAside) const
{
    if (!m_folder.isThere(name))
        return std::nullopt;
    try {
        if (!m_folder.isFileOfOurs(name))
            throw SqliteFailure{kNotUnderstood, {}};
        const SqliteHandle database = openDraftFile(m_folder.pathOf(name));
        const DraftMark mark = readDraftMark(database.get());
        if (mark.isEmpty)
            return std::nullopt;
        return Draft{mark.head, withTexts ? readDraftTexts(database.get()) : std::vector<DraftText>()};
    } catch (const SqliteFailure &failure) {
        if (isAtFault(failure) && m_folder.putAside(name))
            ++putAside;
        return std::nullopt;
    }
}

}  // namespace penwright
