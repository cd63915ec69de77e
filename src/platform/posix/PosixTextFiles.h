#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <cstddef>

#include "platform/TextFiles.h"

namespace penwright {

/// The system calls that writing a file needs, each as the system has it: -1 with errno set on failure.
class FileCalls {
public:
    virtual ~FileCalls() = default;
    virtual int open(const char *path, int flags, mode_t mode);
    virtual ssize_t write(int file, const void *data, std::size_t size);
    virtual int fsync(int file);
    virtual int close(int file);
    virtual int rename(const char *from, const char *to);
};

/// Files by way of a temporary one beside the target, flushed to disk and renamed over it. Links are followed, modes
/// and owner of an existing file kept. Devices and pipes, and files in a folder that takes no new ones, are written in
/// place.
class PosixTextFiles : public TextFiles {
public:
    PosixTextFiles();
    explicit PosixTextFiles(FileCalls &calls);

    int replace(const std::string &path, std::string_view text) override;

private:
    int replaceByRename(const std::string &target, const struct stat *existing, std::string_view text);
    int writeInPlace(const std::string &target, std::string_view text);
    int writeAll(int file, std::string_view text);
    void flushFolder(const std::string &folder);

    FileCalls &m_calls;
};

}  // namespace penwright
