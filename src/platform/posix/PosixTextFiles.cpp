#include "platform/posix/PosixTextFiles.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>

#include "platform/posix/TemporaryFile.h"
#include "platform/posix/WholeFile.h"

namespace penwright {
namespace {

constexpr mode_t kNewFileModes = 0666;
constexpr mode_t kPrivateModes = 0600;
constexpr mode_t kAnyoneMayWrite = 0222;
constexpr mode_t kAllModes = 07777;
constexpr int kMostLinks = 40;

FileCalls &systemCalls()
{
    static FileCalls calls;
    return calls;
}

/// While it lives, a pipe whose reader has gone and a file beyond the size limit are errors, not the end of the
/// process.
class SurvivableSignals {
public:
    SurvivableSignals()
    {
        sigemptyset(&m_signals);
        sigaddset(&m_signals, SIGPIPE);
        sigaddset(&m_signals, SIGXFSZ);
        pthread_sigmask(SIG_BLOCK, &m_signals, &m_before);
    }
    SurvivableSignals(const SurvivableSignals &) = delete;
    SurvivableSignals &operator=(const SurvivableSignals &) = delete;
    ~SurvivableSignals()
    {
        const timespec noTime{};
        while (sigtimedwait(&m_signals, nullptr, &noTime) > 0 || errno == EINTR) {
        }
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }

private:
    sigset_t m_signals;
    sigset_t m_before;
};

std::string folderOf(const std::string &path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

/// Where a path leads once all links are followed, to a file that is yet to be made too.
std::string targetOf(std::string path)
{
    for (int link = 0; link < kMostLinks; ++link) {
        const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.c_str(), nullptr), &std::free);
        if (resolved)
            return resolved.get();
        char linked[PATH_MAX];
        const ssize_t length = ::readlink(path.c_str(), linked, sizeof linked);
        if (length <= 0 || length == static_cast<ssize_t>(sizeof linked))
            return path;
        path = linked[0] == '/' ? "" : folderOf(path);
        path.append(linked, static_cast<std::size_t>(length));
    }
    return path;
}

/// Whether the folder, or a mount on the name, hinders the rename only: the file itself may still be written.
bool hindersRenameOnly(int error)
{
    return error == EACCES || error == EPERM || error == EROFS || error == EBUSY || error == EXDEV;
}

std::optional<std::string> contentOf(const std::string &path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(in), {});
}

/// Gives a new file the owner, group and modes of the old one, or as much of that as the system grants.
int copyOwnerAndModes(int file, const struct stat &existing)
{
    mode_t modes = existing.st_mode & kAllModes;
    if (::fchown(file, existing.st_uid, existing.st_gid) != 0) {
        // A program that ran with its owner's rights must not run with ours.
        modes &= ~static_cast<mode_t>(S_ISUID | S_ISGID);
        [[maybe_unused]] const int group = ::fchown(file, static_cast<uid_t>(-1), existing.st_gid);
    }
    return ::fchmod(file, modes) == 0 ? 0 : errno;
}

}  // namespace

PosixTextFiles::PosixTextFiles() : m_calls(systemCalls()) {}

PosixTextFiles::PosixTextFiles(FileCalls &calls) : m_calls(calls) {}

int PosixTextFiles::replace(const std::string &path, std::string_view text)
{
    const SurvivableSignals guard;
    return replaceAny(path, text);
}

FileContent PosixTextFiles::read(const std::string &path, std::size_t most, const std::function<bool(double)> &goOn)
{
    return readWholeFile(m_calls, path, most, goOn);
}

int PosixTextFiles::replaceAny(const std::string &path, std::string_view text)
{
    if (path.empty())
        return ENAMETOOLONG;
    if (path.find('\0') != std::string::npos)
        return EINVAL;
    const std::string target = targetOf(path);
    struct stat existing {};
    if (::stat(target.c_str(), &existing) != 0)
        return errno == ENOENT ? replaceByRename(target, nullptr, text) : errno;
    if (S_ISDIR(existing.st_mode))
        return EISDIR;
    if (!S_ISREG(existing.st_mode))
        return writeInPlace(target, false, text);
    return replaceExisting(target, existing, text);
}

int PosixTextFiles::replaceExisting(const std::string &target, const struct stat &existing, std::string_view text)
{
    // A rename asks nobody about the file itself, and root is refused nothing: the modes speak for the owner.
    if ((existing.st_mode & kAnyoneMayWrite) == 0)
        return EROFS;
    if (const int error = askWritable(target))
        return error;
    const int error = replaceByRename(target, &existing, text);
    if (!hindersRenameOnly(error))
        return error;
    const std::optional<std::string> before = contentOf(target);
    const int inPlaceError = writeInPlace(target, true, text);
    if (inPlaceError != 0 && before)
        writeInPlace(target, true, *before);
    return inPlaceError;
}

/// What the system says of writing to the file: a running program is busy, a stranger's file denied.
int PosixTextFiles::askWritable(const std::string &target)
{
    const int file = m_calls.open(target.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC, 0);
    if (file < 0)
        return errno;
    m_calls.close(file);
    return 0;
}

int PosixTextFiles::replaceByRename(const std::string &target, const struct stat *existing, std::string_view text)
{
    std::string temporary;
    const std::string folder = folderOf(target);
    removeLeftOver(folder);
    // What stands in a private file is not shown to others on its way.
    const int file = openTemporary(m_calls, temporary, folder, existing ? kPrivateModes : kNewFileModes);
    if (file < 0)
        return errno;
    int error = writeAll(file, text);
    if (error == 0 && existing)
        error = copyOwnerAndModes(file, *existing);
    if (error == 0 && m_calls.fsync(file) != 0)
        error = errno;
    error = closed(file, error);
    if (error == 0 && m_calls.rename(temporary.c_str(), target.c_str()) != 0)
        error = errno;
    if (error != 0)
        ::unlink(temporary.c_str());
    else
        flushFolder(folder);
    return error;
}

// Opened without waiting, a pipe that nobody reads refuses at once. A regular file is cut to its size at the end only,
// so that its blocks are still there should the old text have to be put back on a full disk.
int PosixTextFiles::writeInPlace(const std::string &target, bool isRegular, std::string_view text)
{
    const int file = m_calls.open(target.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC, 0);
    if (file < 0)
        return errno;
    int error = writeAll(file, text);
    if (error == 0 && isRegular && m_calls.truncate(file, static_cast<off_t>(text.size())) != 0)
        error = errno;
    // Pipes and most devices have nothing to flush and say EINVAL.
    if (error == 0 && m_calls.fsync(file) != 0 && errno != EINVAL)
        error = errno;
    return closed(file, error);
}

int PosixTextFiles::writeAll(int file, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t written = m_calls.write(file, text.data(), text.size());
        if (written > 0)
            text.remove_prefix(static_cast<std::size_t>(written));
        else if (written == 0 || (errno == EAGAIN && !m_calls.waitUntilWritable(file)))
            return EIO;
        else if (errno != EINTR && errno != EAGAIN)
            return errno;
    }
    return 0;
}

/// Closes the file; the earlier error, or what closing tells.
int PosixTextFiles::closed(int file, int error)
{
    const bool hasFailed = m_calls.close(file) != 0 && errno != EINTR;
    return error == 0 && hasFailed ? errno : error;
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
