#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "core/PhotometricRecord.h"
#include "hostbench/FileReview.h"

namespace penwright {

/// A photometric file that a host holds.
struct HeldFile {
    PhotometricRecord record;
    bool isSaved = false;                ///< on disk under its name
    std::string text;                    ///< as it stands on disk, "" where it is the writer's of the record
    std::optional<FileReview> review{};  ///< where the record has been looked through already
};

/// A file that is shown and held in one; it does not change.
using SharedFile = std::shared_ptr<const HeldFile>;

/// The files that a host holds, at most 25, in the order in which they came. Places are counted from 0.
class HeldFiles {
public:
    int count() const { return static_cast<int>(m_files.size()); }
    bool isFull() const;

    /// How many of them are nowhere but here.
    int unsavedCount() const;

    const HeldFile &at(int place) const { return *shared(place); }
    const SharedFile &shared(int place) const { return m_files.at(static_cast<std::size_t>(place)); }

    /// Adds a file and returns its place. A saved file takes the place of one of the same name, as it did on disk; an
    /// unnamed file never does. -1 when the list is full: the file is not added.
    int add(HeldFile file);

    /// As `add`, for a file that need not be held: it leaves room for what wizards at work will bring.
    int addBesides(HeldFile file, int wizardsAtWork);

    /// Marks the file as saved on disk under `filename`.
    void setSaved(int place, const std::string &filename);

    void remove(int place) { m_files.erase(m_files.begin() + place); }

private:
    int addWithin(HeldFile file, int most);

    std::vector<SharedFile> m_files;
};

}  // namespace penwright
