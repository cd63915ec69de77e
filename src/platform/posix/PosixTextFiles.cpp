#include "platform/posix/PosixTextFiles.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace penwright {
namespace {

constexpr mode_t kNewFileMode = 0666;
constexpr mode_t kAnyoneMayWrite = 0222;
constexpr mode_t kAllModes = 07777;

FileCalls &systemCalls()
{
    static FileCalls calls;
    return calls;
}

/// Where a path leads once all links are followed; the path itself where it leads nowhere yet.
std::string targetOf(const std::string &path)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.c_str(), nullptr), &std::free);
    if (resolved)
        return resolved.get();
    // A link to a file that is yet to be made: the file is made where the link points.
    char linked[PATH_MAX];
    const ssize_t length = ::readlink(path.c_str(), linked, sizeof linked);
    if (length <= 0 || length == static_cast<ssize_t>(sizeof linked))
        return path;
    const std::string goal(linked, static_cast<std::size_t>(length));
    const std::size_t slash = path.rfind('/');
    return goal.front() == '/' || slash == std::string::npos ? goal : path.substr(0, slash + 1) + goal;
}

std::string folderOf(const std::string &path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

std::string temporaryName(const std::string &target)
{
    static unsigned counter = 0;
    return folderOf(target) + "/.penwright-" + std::to_string(::getpid()) + "-" + std::to_string(++counter) + ".tmp";
}

/// A folder that takes no new file, though the file itself may be writable.
bool isClosedFolder(int error)
{
    return error == EACCES || error == EPERM || error == EROFS;
}

}  // namespace

int FileCalls::open(const char *path, int flags, mode_t mode)
{
    return ::open(path, flags, mode);
}

ssize_t FileCalls::write(int file, const void *data, std::size_t size)
{
    return ::write(file, data, size);
}

int FileCalls::fsync(int file)
{
    return ::fsync(file);
}

int FileCalls::close(int file)
{
    return ::close(file);
}

int FileCalls::rename(const char *from, const char *to)
{
    return std::rename(from, to);
}

PosixTextFiles::PosixTextFiles() : m_calls(systemCalls()) {}

PosixTextFiles::PosixTextFiles(FileCalls &calls) : m_calls(calls) {}

int PosixTextFiles::replace(const std::string &path, std::string_view text)
{
    if (path.empty())
        return ENAMETOOLONG;
    const std::string target = targetOf(path);
    struct stat existing {};
    if (::stat(target.c_str(), &existing) != 0)
        return errno == ENOENT ? replaceByRename(target, nullptr, text) : errno;
    if (S_ISDIR(existing.st_mode))
        return EISDIR;
    if (!S_ISREG(existing.st_mode))
        return writeInPlace(target, text);
    // A rename asks nobody about the file itself, and root is refused nothing: the modes speak for the owner.
    if ((existing.st_mode & kAnyoneMayWrite) == 0)
        return EROFS;
    if (::access(target.c_str(), W_OK) != 0)
        return errno;
    const int error = replaceByRename(target, &existing, text);
    return isClosedFolder(error) ? writeInPlace(target, text) : error;
}

int PosixTextFiles::writeAll(int file, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t written = m_calls.write(file, text.data(), text.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return written < 0 ? errno : EIO;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
}

int PosixTextFiles::replaceByRename(const std::string &target, const struct stat *existing, std::string_view text)
{
    const std::string temporary = temporaryName(target);
    const int file = m_calls.open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kNewFileMode);
    if (file < 0)
        return errno;
    int error = writeAll(file, text);
    if (error == 0 && existing) {
        // Where the owner cannot be kept the file belongs to whoever saved it; its modes are kept in any case.
        [[maybe_unused]] const int owner = ::fchown(file, existing->st_uid, existing->st_gid);
        if (::fchmod(file, existing->st_mode & kAllModes) != 0)
            error = errno;
    }
    if (error == 0 && m_calls.fsync(file) != 0)
        error = errno;
    if (m_calls.close(file) != 0 && error == 0)
        error = errno;
    if (error == 0 && m_calls.rename(temporary.c_str(), target.c_str()) != 0)
        error = errno;
    if (error != 0)
        ::unlink(temporary.c_str());
    else
        flushFolder(folderOf(target));
    return error;
}

// The modes have been asked already; a pipe that nobody reads refuses at once instead of waiting for a reader.
int PosixTextFiles::writeInPlace(const std::string &target, std::string_view text)
{
    const int file = m_calls.open(target.c_str(), O_WRONLY | O_TRUNC | O_NONBLOCK | O_CLOEXEC, 0);
    if (file < 0)
        return errno;
    ::fcntl(file, F_SETFL, ::fcntl(file, F_GETFL) & ~O_NONBLOCK);
    int error = writeAll(file, text);
    if (error == 0 && m_calls.fsync(file) != 0 && errno != EINVAL && errno != EROFS)
        error = errno;
    if (m_calls.close(file) != 0 && error == 0)
        error = errno;
    return error;
}

// The name lies safely on disk only with its folder; where folders cannot be flushed the file is good all the same.
void PosixTextFiles::flushFolder(const std::string &folder)
{
    const int file = m_calls.open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
    if (file < 0)
        return;
    m_calls.fsync(file);
    m_calls.close(file);
}

}  // namespace penwright
