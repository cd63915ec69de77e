#pragma once

#include <sys/types.h>

#include <cstddef>

namespace penwright {

/// The system calls that files need, each as the system has it: -1 with errno set on failure.
class FileCalls {
public:
    virtual ~FileCalls() = default;
    virtual int open(const char *path, int flags, mode_t mode);
    virtual ssize_t read(int file, void *data, std::size_t size);
    virtual ssize_t write(int file, const void *data, std::size_t size);
    virtual int truncate(int file, off_t size);
    virtual int fsync(int file);
    virtual int close(int file);
    virtual int rename(const char *from, const char *to);

    /// Waits until a pipe or device takes more; false when it does not within ten seconds.
    virtual bool waitUntilWritable(int file);
};

}  // namespace penwright
