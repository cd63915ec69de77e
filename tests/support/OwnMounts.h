#pragma once

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <fstream>
#include <string>

namespace penwright::test {

/// Gives this process, one without threads, mounts of its own, which go with it and which nobody else sees. An ordinary
/// user gets them where the system lets him be the superuser of a world of his own. False: this machine has none to
/// give.
inline bool haveOwnMounts()
{
    const uid_t user = geteuid();
    const gid_t group = getegid();
    if (unshare(user == 0 ? CLONE_NEWNS : CLONE_NEWNS | CLONE_NEWUSER) != 0)
        return false;
    if (user != 0) {
        std::ofstream("/proc/self/setgroups") << "deny";
        std::ofstream("/proc/self/uid_map") << "0 " + std::to_string(user) + " 1";
        std::ofstream("/proc/self/gid_map") << "0 " + std::to_string(group) + " 1";
    }
    return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

/// Mounts a file system in memory on a folder, with options such as "size=64k".
inline bool mountMemory(const std::string &folder, const std::string &options)
{
    return mount("memory", folder.c_str(), "tmpfs", 0, options.c_str()) == 0;
}

}  // namespace penwright::test
