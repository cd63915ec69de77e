#include "platform/sqlite/SqliteFolder.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "platform/RunTimeError.h"

namespace penwright {
namespace {

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

std::string userConfigFolder()
{
    const std::filesystem::path config = variable("XDG_CONFIG_HOME");
    if (config.is_absolute())
        return config.string();
    return (std::filesystem::path(homeFolder()) / ".config").string();
}

}  // namespace penwright
