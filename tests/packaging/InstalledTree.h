#pragma once

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/Process.h"
#include "support/TempFolder.h"

namespace penwright::test {

/// What a command prints and how it ends.
struct Ended {
    int status;
    std::string output;  ///< standard output and standard error
};

inline Ended runToEnd(const std::vector<std::string> &command, const Process::Environment &added = {},
                      Milliseconds bound = 60s)
{
    Process process(command, added, Process::Errors::Joined);
    std::string output = process.readAll(bound);
    return {process.waitForEnd().value_or(-1), std::move(output)};
}

/// The output of a command that has to succeed; throws when it does not.
inline std::string outputOf(const std::vector<std::string> &command, const Process::Environment &added = {})
{
    const auto [status, output] = runToEnd(command, added);
    if (status != 0)
        throw std::runtime_error(command[0] + " ends with " + std::to_string(status) + ":\n" + output);
    return output;
}

/// All files and links below a folder, one a line in order of their names, each link with what it leads to.
inline std::string listBelow(const std::filesystem::path &folder)
{
    std::vector<std::string> lines;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).string();
        if (entry.is_symlink())
            lines.push_back(name + " -> " + std::filesystem::read_symlink(entry.path()).string() + '\n');
        else if (entry.is_regular_file())
            lines.push_back(name + '\n');
    }
    std::sort(lines.begin(), lines.end());
    std::string text;
    for (const std::string &line : lines)
        text += line;
    return text;
}

/// All that there is to install, under a name with a blank and an umlaut, and moved once since: made for the first test
/// that asks, removed at the end of the process.
class InstalledTree {
public:
    static const std::filesystem::path &prefix()
    {
        static const InstalledTree tree;
        return tree.m_prefix;
    }
    static std::string file(const std::string &name) { return (prefix() / name).string(); }

private:
    InstalledTree() : m_prefix(m_folder.path() / "ein Präfix mit Lücken")
    {
        const std::string first = m_folder.file("zuerst für kurze Zeit");
        outputOf({CMAKE, "--install", BUILD_FOLDER, "--prefix", first});
        std::filesystem::rename(first, m_prefix);
    }

    TempFolder m_folder;
    std::filesystem::path m_prefix;
};

}  // namespace penwright::test
