#include "platform/posix/FileCalls.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cstdio>

namespace penwright {
namespace {

constexpr int kPatienceInMilliseconds = 10000;

}  // namespace

int FileCalls::open(const char *path, int flags, mode_t mode)
{
    return ::open(path, flags, mode);
}

ssize_t FileCalls::read(int file, void *data, std::size_t size)
{
    return ::read(file, data, size);
}

ssize_t FileCalls::write(int file, const void *data, std::size_t size)
{
    return ::write(file, data, size);
}

int FileCalls::truncate(int file, off_t size)
{
    return ::ftruncate(file, size);
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

bool FileCalls::waitUntilWritable(int file)
{
    pollfd ready{file, POLLOUT, 0};
    return ::poll(&ready, 1, kPatienceInMilliseconds) > 0;
}

}  // namespace penwright
