#pragma once

#include "platform/posix/FileCalls.h"
#include "platform/TextFiles.h"

struct stat;

namespace penwright {

/// Files by way of a temporary one beside the target, flushed to disk and renamed over it. Symbolic links are followed;
/// modes, and the owner where the system lets us, of an existing file are kept. Pipes and devices are written in place
/// (one that takes nothing for ten seconds is EIO), and so is a file whose folder takes no new one: a failure there
/// puts the old text back as far as the disk allows. A temporary file that a killed process left in the folder goes.
class PosixTextFiles : public TextFiles {
public:
    PosixTextFiles();
    explicit PosixTextFiles(FileCalls &calls);

    int replace(const std::string &path, std::string_view text) override;
    FileContent read(const std::string &path, std::size_t most, const std::function<bool(double)> &goOn) override;

private:
    int replaceAny(const std::string &path, std::string_view text);
    int replaceExisting(const std::string &target, const struct stat &existing, std::string_view text);
    int replaceByRename(const std::string &target, const struct stat *existing, std::string_view text);
    int writeInPlace(const std::string &target, bool isRegular, std::string_view text);
    int askWritable(const std::string &target);
    int writeAll(int file, std::string_view text);
    int closed(int file, int error);
    void flushFolder(const std::string &folder);

    FileCalls &m_calls;
};

}  // namespace penwright
