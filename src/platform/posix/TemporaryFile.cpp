#include "platform/posix/TemporaryFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/posix/FileCalls.h"

namespace penwright {
namespace {

constexpr int kMostNames = 100;
constexpr std::string_view kFront = ".penwright-";
constexpr std::string_view kEnd = ".tmp";

std::string nameOf(pid_t process, int number)
{
    return std::string(kFront) + std::to_string(process) + "-" + std::to_string(number) + std::string(kEnd);
}

bool isNumber(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool isOurName(std::string_view name)
{
    if (name.size() < kFront.size() + kEnd.size() || !name.starts_with(kFront) || !name.ends_with(kEnd))
        return false;
    const std::string_view numbers = name.substr(kFront.size(), name.size() - kFront.size() - kEnd.size());
    const std::size_t hyphen = numbers.find('-');
    return hyphen != std::string_view::npos && isNumber(numbers.substr(0, hyphen)) &&
           isNumber(numbers.substr(hyphen + 1));
}

struct CloseFolder {
    void operator()(DIR *folder) const { ::closedir(folder); }
};

std::vector<std::string> ourNamesIn(const std::string &folder)
{
    std::vector<std::string> names;
    const std::unique_ptr<DIR, CloseFolder> entries(::opendir(folder.c_str()));
    while (const dirent *entry = entries ? ::readdir(entries.get()) : nullptr)
        if (isOurName(entry->d_name))
            names.emplace_back(entry->d_name);
    return names;
}

/// Whether the file has lost its name to somebody who took it for left over before it was locked.
bool isNameless(int file)
{
    struct stat now {};
    return ::fstat(file, &now) == 0 && now.st_nlink == 0;
}

/// Whether an open file is a regular one of this user, nobody writes it, and nobody else has just removed it: its name
/// may belong to a new file by then. Leaves it locked when it is.
bool isLeftOver(int file)
{
    struct stat found {};
    return ::fstat(file, &found) == 0 && S_ISREG(found.st_mode) && found.st_uid == ::geteuid() &&
           ::flock(file, LOCK_EX | LOCK_NB) == 0 && !isNameless(file);
}

}  // namespace

int openTemporary(FileCalls &calls, std::string &name, const std::string &folder, mode_t modes)
{
    for (int number = 1; number <= kMostNames; ++number) {
        name = folder + nameOf(::getpid(), number);
        const int file = calls.open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, modes);
        if (file < 0 && errno != EEXIST)
            return file;
        if (file < 0)
            continue;
        // A file system without locks writes the file all the same; nobody can take it for left over there.
        const bool isLocked = ::flock(file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
        if (isLocked && !isNameless(file))
            return file;
        calls.close(file);
    }
    errno = EEXIST;
    return -1;
}

void removeLeftOver(const std::string &folder)
{
    for (const std::string &name : ourNamesIn(folder)) {
        const std::string path = folder + name;
        // Neither a link is followed nor a pipe waited for.
        const int file = ::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        if (file < 0)
            continue;
        if (isLeftOver(file))
            ::unlink(path.c_str());
        ::close(file);
    }
}

}  // namespace penwright
