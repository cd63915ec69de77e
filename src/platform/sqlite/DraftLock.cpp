#include "platform/sqlite/DraftLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/sqlite/SqliteFolder.h"

namespace penwright {
namespace {

constexpr int kFlags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;

bool isRegular(int file)
{
    struct stat found {};
    return ::fstat(file, &found) == 0 && S_ISREG(found.st_mode);
}

int openLockFile(const std::string &path)
{
    const int file = ::open(path.c_str(), O_RDWR | O_CREAT | kFlags, kPrivate);
    // In a folder that may only be read, a file that is there can be locked all the same.
    return file >= 0 ? file : ::open(path.c_str(), O_RDONLY | kFlags);
}

}  // namespace

std::optional<DraftLock> DraftLock::make(const std::string &path)
{
    const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | kFlags, kPrivate);
    if (file < 0 && errno == EEXIST)
        return std::nullopt;
    if (file < 0)
        throw fileError(path, errno);
    DraftLock lock(path, file);
    // A file system without locks keeps the draft all the same; no other run can take one there.
    const bool isLocked = ::flock(file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    if (!isLocked || !lock.isThere())
        return std::nullopt;
    return lock;
}

std::optional<DraftLock> DraftLock::take(const std::string &path, Kind kind)
{
    const int file = openLockFile(path);
    if (file < 0)
        return std::nullopt;
    DraftLock lock(path, file);
    const int operation = (kind == Kind::Alone ? LOCK_EX : LOCK_SH) | LOCK_NB;
    if (!isRegular(file) || ::flock(file, operation) != 0 || !lock.isThere())
        return std::nullopt;
    return lock;
}

DraftLock::DraftLock(DraftLock &&other) noexcept
    : m_path(std::move(other.m_path)), m_file(std::exchange(other.m_file, -1))
{
}

DraftLock &DraftLock::operator=(DraftLock &&other) noexcept
{
    std::swap(m_path, other.m_path);
    std::swap(m_file, other.m_file);
    return *this;
}

DraftLock::~DraftLock()
{
    if (m_file >= 0)
        ::close(m_file);
}

bool DraftLock::isThere() const
{
    struct stat held {};
    struct stat named {};
    return ::fstat(m_file, &held) == 0 && ::lstat(m_path.c_str(), &named) == 0 && held.st_ino == named.st_ino &&
           held.st_dev == named.st_dev;
}

void DraftLock::remove()
{
    if (isThere())
        ::unlink(m_path.c_str());
    ::close(std::exchange(m_file, -1));
}

}  // namespace penwright
