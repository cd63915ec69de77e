#pragma once

#include <optional>
#include <string>

namespace penwright {

/// The lock of one draft: a file beside it that is held locked for as long as this lives, and no longer than the
/// process does. The draft's own file is never locked this way, because closing a file drops the locks that SQLite has
/// on it.
class DraftLock {
public:
    /// `Shared` may be held by many who read, `Alone` by one who has the draft.
    enum class Kind { Shared, Alone };

    /// Makes the lock file at `path` and locks it alone; nothing when the name is taken. A failure is RunTimeError with
    /// the path.
    static std::optional<DraftLock> make(const std::string &path);

    /// Locks the file at `path`, which is made when it is missing; nothing when somebody else has it, or when it cannot
    /// be locked at all. Never waits.
    static std::optional<DraftLock> take(const std::string &path, Kind kind);

    DraftLock(DraftLock &&other) noexcept;
    DraftLock &operator=(DraftLock &&other) noexcept;
    ~DraftLock();

    /// Whether the file is still where it was made: somebody may have cleared the folder.
    bool isThere() const;

    /// Removes the file, then lets go of the lock.
    void remove();

private:
    DraftLock(std::string path, int file) : m_path(std::move(path)), m_file(file) {}

    std::string m_path;
    int m_file;
};

}  // namespace penwright
