#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>
#include <functional>
#include <string>

#include "platform/posix/PosixTextFiles.h"
#include "support/TempFolder.h"

namespace penwright::test {

/// Real files in a folder of their own.
class FilesTest : public testing::Test {
protected:
    std::string make(const std::string &name, const std::string &content)
    {
        std::ofstream(folder.path() / name, std::ios::binary) << content;
        return folder.file(name);
    }

    int entries() const
    {
        return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder.path()), {}));
    }

    static mode_t modesOf(const std::string &path)
    {
        struct stat status {};
        EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
        return status.st_mode & 07777;
    }

    static std::string ownersOf(const std::string &path)
    {
        struct stat status {};
        EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
        return std::to_string(status.st_uid) + ":" + std::to_string(status.st_gid);
    }

    /// What `body` answers in a process of its own.
    static int inAChild(const std::function<int()> &body)
    {
        const pid_t child = fork();
        if (child == 0)
            _exit(body());
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    /// The same in a process that has no rights over other users' files.
    static int asNobody(const std::function<int()> &body)
    {
        return inAChild([&] {
            const bool isRefused = getuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0);
            return isRefused ? 255 : body();
        });
    }

    TempFolder folder;
    PosixTextFiles files;
};

}  // namespace penwright::test
