#pragma once

#include <sys/stat.h>

#include <string>

#include "platform/RunTimeError.h"

namespace penwright {

/// The mode of a file that its owner alone reads and writes.
inline constexpr mode_t kPrivate = 0600;

/// While it lives, new files and folders are for their owner alone.
class PrivateModes {
public:
    PrivateModes() : m_before(umask(077)) {}
    PrivateModes(const PrivateModes &) = delete;
    PrivateModes &operator=(const PrivateModes &) = delete;
    ~PrivateModes() { umask(m_before); }

private:
    mode_t m_before;
};

/// Makes the folder of the file at `path`, with the folders above it. A failure is RunTimeError 70, 75, 61 or 76 and
/// names the file.
void makeFolderOf(const std::string &path);

/// Makes a folder for the owner alone, with the folders above it. A failure is as fileError says.
void makePrivateFolder(const std::string &path);

/// The run-time error of a failed call on the file at `path`: 70, 75, 61 or 76, with the file and the system's words.
RunTimeError fileError(const std::string &path, int errnoValue);

/// The user's configuration folder: $XDG_CONFIG_HOME where it is absolute, else ".config" in the home folder.
std::string userConfigFolder();

/// The user's folder for what programs keep of their runs: $XDG_STATE_HOME where it is absolute, else ".local/state" in
/// the home folder.
std::string userStateFolder();

}  // namespace penwright
