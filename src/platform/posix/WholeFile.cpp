#include "platform/posix/WholeFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

namespace penwright {
namespace {

constexpr std::size_t kBytesAtOnce = 1 << 20;

/// What forbids to read a file of this kind and size, 0 when nothing does.
int refusalOf(const struct stat &file, std::size_t most)
{
    if (S_ISDIR(file.st_mode))
        return EISDIR;
    if (!S_ISREG(file.st_mode))
        return ENODEV;
    return file.st_size > 0 && static_cast<std::size_t>(file.st_size) > most ? EFBIG : 0;
}

bool isSame(const struct stat &before, const struct stat &now)
{
    return before.st_size == now.st_size && before.st_mtim.tv_sec == now.st_mtim.tv_sec &&
           before.st_mtim.tv_nsec == now.st_mtim.tv_nsec;
}

/// Fills the bytes, as many as the file had when it was opened.
int fill(FileCalls &calls, int file, std::string &bytes, const std::function<bool(double)> &goOn)
{
    for (std::size_t at = 0; at < bytes.size();) {
        if (goOn && !goOn(static_cast<double>(at) / static_cast<double>(bytes.size())))
            return ECANCELED;
        const ssize_t count = calls.read(file, bytes.data() + at, std::min(kBytesAtOnce, bytes.size() - at));
        if (count == 0)
            return ESTALE;
        if (count < 0 && errno != EINTR)
            return errno;
        at += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }
    return 0;
}

int readOpen(FileCalls &calls, int file, std::size_t most, const std::function<bool(double)> &goOn, std::string &bytes)
{
    struct stat before {};
    struct stat now {};
    if (::fstat(file, &before) != 0)
        return errno;
    if (const int refusal = refusalOf(before, most))
        return refusal;
    bytes.resize(static_cast<std::size_t>(before.st_size));
    if (const int error = fill(calls, file, bytes, goOn))
        return error;
    return ::fstat(file, &now) == 0 && isSame(before, now) ? 0 : ESTALE;
}

}  // namespace

// Opened without waiting, a pipe that nobody writes to is there at once, to be refused.
FileContent readWholeFile(FileCalls &calls, const std::string &path, std::size_t most,
                          const std::function<bool(double)> &goOn)
{
    FileContent content;
    if (path.find('\0') != std::string::npos)
        return {EINVAL, {}};
    const int file = calls.open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC, 0);
    if (file < 0)
        return {errno, {}};
    content.error = readOpen(calls, file, most, goOn, content.bytes);
    calls.close(file);
    if (content.error != 0)
        content.bytes.clear();
    return content;
}

}  // namespace penwright
