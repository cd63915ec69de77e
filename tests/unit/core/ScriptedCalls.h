#pragma once

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <deque>
#include <string>
#include <utility>

#include "platform/posix/FileCalls.h"

namespace penwright::test {

/// System calls of which one kind fails by a script: a number for each call, 0 for one that goes well, and the last
/// number for all further ones. Writes are cut to three characters.
class ScriptedCalls : public FileCalls {
public:
    ScriptedCalls(std::string call, std::deque<int> errors) : m_call(std::move(call)), m_errors(std::move(errors)) {}
    int open(const char *path, int flags, mode_t mode) override
    {
        if (flags & O_CREAT)
            newFileModes = mode;
        return fails((flags & O_CREAT) ? "create" : "open") ? -1 : FileCalls::open(path, flags, mode);
    }
    ssize_t write(int file, const void *data, std::size_t size) override
    {
        return fails("write") ? -1 : FileCalls::write(file, data, std::min<std::size_t>(size, 3));
    }
    int truncate(int file, off_t size) override { return fails("truncate") ? -1 : FileCalls::truncate(file, size); }
    int fsync(int file) override
    {
        ++flushed;
        return fails("fsync") ? -1 : FileCalls::fsync(file);
    }
    int close(int file) override
    {
        const int result = FileCalls::close(file);
        return fails("close") ? -1 : result;
    }
    int rename(const char *from, const char *to) override { return fails("rename") ? -1 : FileCalls::rename(from, to); }
    bool waitUntilWritable(int) override { return false; }

    mode_t newFileModes = 0;
    int flushed = 0;

private:
    bool fails(const std::string &call)
    {
        if (call != m_call || m_errors.empty())
            return false;
        errno = m_errors.front();
        if (m_errors.size() > 1)
            m_errors.pop_front();
        return errno != 0;
    }
    std::string m_call;
    std::deque<int> m_errors;
};

}  // namespace penwright::test
