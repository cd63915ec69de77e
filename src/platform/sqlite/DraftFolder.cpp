#include "platform/sqlite/DraftFolder.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <memory>
#include <random>
#include <string_view>

#include "platform/Freed.h"
#include "platform/sqlite/DraftLock.h"
#include "platform/sqlite/SqliteFolder.h"

namespace penwright {
namespace {

constexpr std::string_view kFront = "draft-";
constexpr std::string_view kEnd = ".sqlite3";
constexpr std::string_view kLockEnd = ".sqlite3.lock";

/// A table of 10^6 values is 20 MB of text. What is larger than this is not read into memory.
constexpr off_t kLargest = 256'000'000;

struct CloseFolder {
    void operator()(DIR *folder) const { ::closedir(folder); }
};

std::vector<std::string> namesIn(const std::string &path)
{
    std::vector<std::string> names;
    const std::unique_ptr<DIR, CloseFolder> entries(::opendir(path.c_str()));
    while (const dirent *entry = entries ? ::readdir(entries.get()) : nullptr)
        names.emplace_back(entry->d_name);
    return names;
}

bool isPlain(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || c == '-' || c == 'T';
}

bool isNameWithEnd(std::string_view name, std::string_view end)
{
    if (name.size() <= kFront.size() + end.size() || !name.starts_with(kFront) || !name.ends_with(end))
        return false;
    const std::string_view middle = name.substr(kFront.size(), name.size() - kFront.size() - end.size());
    return std::all_of(middle.begin(), middle.end(), isPlain);
}

std::string chanceText()
{
    std::random_device chance;
    std::array<char, 9> text{};
    std::snprintf(text.data(), text.size(), "%08x", chance());
    return text.data();
}

std::string timeText()
{
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    ::gmtime_r(&now, &parts);
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y%m%dT%H%M%S", &parts);
    return {text.data(), length};
}

}  // namespace

void DraftFolder::make() const
{
    makePrivateFolder(m_path);
}

std::vector<std::string> DraftFolder::drafts() const
{
    std::vector<std::string> drafts;
    for (const std::string &name : namesIn(m_path)) {
        if (isDraftName(name))
            drafts.push_back(name);
        if (!isNameWithEnd(name, kLockEnd) || isThere(name.substr(0, name.size() - kLockEnd.size() + kEnd.size())))
            continue;
        if (auto lock = DraftLock::take(pathOf(name), DraftLock::Kind::Alone))
            lock->remove();
    }
    return drafts;
}

std::string DraftFolder::newName()
{
    return std::string(kFront) + timeText() + "-" + std::to_string(::getpid()) + "-" + chanceText() + std::string(kEnd);
}

bool DraftFolder::isDraftName(const std::string &name)
{
    return isNameWithEnd(name, kEnd);
}

std::string DraftFolder::pathOf(const std::string &name) const
{
    const Freed<char> folder(::realpath(m_path.c_str(), nullptr));
    return (std::filesystem::path(folder ? folder.get() : m_path) / name).string();
}

void DraftFolder::makeFile(const std::string &name) const
{
    const std::string path = pathOf(name);
    const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, kPrivate);
    if (file < 0)
        throw fileError(path, errno);
    ::close(file);
}

bool DraftFolder::isThere(const std::string &name) const
{
    struct stat found {};
    return ::lstat(pathOf(name).c_str(), &found) == 0;
}

bool DraftFolder::isFileOfOurs(const std::string &name) const
{
    const auto isOurs = [this](const std::string &file, bool mayBeMissing) {
        struct stat found {};
        if (::lstat(pathOf(file).c_str(), &found) != 0)
            return mayBeMissing && errno == ENOENT;
        return S_ISREG(found.st_mode) && found.st_uid == ::geteuid() && found.st_size <= kLargest;
    };
    return isOurs(name, false) && isOurs(name + "-journal", true) && isOurs(name + "-wal", true) &&
           isOurs(name + "-shm", true);
}

bool DraftFolder::isFileOfNothing(const std::string &name) const
{
    struct stat found {};
    return ::lstat(pathOf(name).c_str(), &found) == 0 && S_ISREG(found.st_mode) && found.st_size == 0;
}

bool DraftFolder::putAside(const std::string &name) const
{
    const std::string other =
        "aside-" + name.substr(0, name.size() - kEnd.size()) + "-" + chanceText() + std::string(kEnd);
    if (std::rename(pathOf(name).c_str(), pathOf(other).c_str()) != 0)
        return false;
    for (const char *end : {"-journal", "-wal"})
        std::rename(pathOf(name + end).c_str(), pathOf(other + end).c_str());
    ::unlink(pathOf(name + "-shm").c_str());
    return true;
}

void DraftFolder::remove(const std::string &name) const
{
    for (const char *end : {"", "-journal", "-wal", "-shm"})
        ::unlink(pathOf(name + end).c_str());
}

void DraftFolder::replace(const std::string &name, const std::string &replaced) const
{
    if (std::rename(pathOf(name).c_str(), pathOf(replaced).c_str()) != 0)
        throw fileError(pathOf(name), errno);
}

}  // namespace penwright
