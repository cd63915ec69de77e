#pragma once

#include <string>
#include <vector>

namespace penwright {

/// The names in the folder of the drafts. A draft is a file "draft-...sqlite3", its lock the same name with ".lock"
/// behind it; "last.sqlite3" is the last finished file; what was put aside begins with "aside-".
class DraftFolder {
public:
    explicit DraftFolder(std::string path) : m_path(std::move(path)) {}

    /// Makes the folder, for its owner alone, and the folders above it. A failure is RunTimeError 70, 75, 61 or 76.
    void make() const;

    /// The names of all drafts, in no order. Locks without a draft, which killed runs left, go on the way.
    std::vector<std::string> drafts() const;

    /// A name that no draft has: the time, the process, and chance.
    static std::string newName();

    /// Whether a name has the form that newName gives.
    static bool isDraftName(const std::string &name);

    /// The path of a file of the folder; no link on its way once the folder is there.
    std::string pathOf(const std::string &name) const;
    std::string lockOf(const std::string &name) const { return pathOf(name) + ".lock"; }

    /// Makes an empty file for its owner alone, which is not there yet. A failure is RunTimeError.
    void makeFile(const std::string &name) const;

    /// Whether something stands under a name, a link that leads nowhere included.
    bool isThere(const std::string &name) const;

    /// Whether a file is one that may be opened, with its journals: regular ones of this user, no links, of a size that
    /// a draft can have.
    bool isFileOfOurs(const std::string &name) const;

    /// Whether a file has no byte.
    bool isFileOfNothing(const std::string &name) const;

    /// Gives the file another name, with its journals; whether that was possible.
    bool putAside(const std::string &name) const;

    /// Removes a file with its journals.
    void remove(const std::string &name) const;

    /// Gives a file, which nobody has open, the name of another and so takes that one's place.
    void replace(const std::string &name, const std::string &replaced) const;

private:
    std::string m_path;
};

inline constexpr const char *kLastFile = "last.sqlite3";

}  // namespace penwright
