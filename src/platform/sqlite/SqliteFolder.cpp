#include "platform/sqlite/SqliteFolder.h"

#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace penwright {
namespace {

constexpr mode_t kOwnerAlone = 0700;

int errorNumber(const std::error_code &failure)
{
    if (failure == std::errc::permission_denied || failure == std::errc::operation_not_permitted)
        return 70;
    if (failure == std::errc::read_only_file_system)
        return 75;
    if (failure == std::errc::no_space_on_device)
        return 61;
    return 76;
}

std::string variable(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

std::string homeFolder()
{
    std::string home = variable("HOME");
    if (!home.empty())
        return home;
    const passwd *user = getpwuid(getuid());
    return user && user->pw_dir ? user->pw_dir : "/";
}

std::string folderFor(const char *name, const char *inHome)
{
    const std::filesystem::path folder = variable(name);
    if (folder.is_absolute())
        return folder.string();
    return (std::filesystem::path(homeFolder()) / inHome).string();
}

}  // namespace

void makeFolderOf(const std::string &path)
{
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    if (folder.empty())
        return;
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    if (failure)
        throw RunTimeError(errorNumber(failure), path + ": " + failure.message());
}

void makePrivateFolder(const std::string &path)
{
    const std::filesystem::path above = std::filesystem::path(path).parent_path();
    std::error_code ignored;
    if (above != path && !std::filesystem::exists(above, ignored))
        makePrivateFolder(above.string());
    if (::mkdir(path.c_str(), kOwnerAlone) == 0)
        return;
    const int error = errno;
    if (!std::filesystem::is_directory(path, ignored))
        throw fileError(path, error);
}

RunTimeError fileError(const std::string &path, int errnoValue)
{
    const std::error_code failure(errnoValue, std::generic_category());
    return RunTimeError(errorNumber(failure), path + ": " + failure.message());
}

std::string userConfigFolder()
{
    return folderFor("XDG_CONFIG_HOME", ".config");
}

std::string userStateFolder()
{
    return folderFor("XDG_STATE_HOME", ".local/state");
}

}  // namespace penwright
