#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace penwright {

/// What one control of a page holds, as a draft keeps it: the page by its index, the control by its name.
struct DraftText {
    int page = 0;
    std::string name;
    std::string text;
    bool operator==(const DraftText &) const = default;
};

/// What a draft says of itself.
struct DraftHead {
    std::int64_t time = 0;  ///< seconds since 1970 when it was last written, by the clock of then
    int page = 0;           ///< index of the page that was shown
    std::string about;      ///< what the file is about, "" when nothing of it was typed
    bool operator==(const DraftHead &) const = default;
};

/// A draft with all its texts, each page's in the order of the form.
struct Draft {
    DraftHead head{};
    std::vector<DraftText> texts;
};

/// A draft among others: `name` is its name in the store.
struct DraftEntry {
    std::string name;
    DraftHead head{};
};

/// What a look into the store finds.
struct DraftsFound {
    std::vector<DraftEntry> free;   ///< drafts that no run has, the latest written first, whatever the clocks said
    std::optional<DraftHead> last;  ///< the last finished file
    int putAside = 0;               ///< files that this look did not understand and gave another name
};

/// How taking over ended.
enum class TakeEnd {
    Taken,    ///< the draft is the run's own now
    InUse,    ///< another run has it
    Gone,     ///< there is no such draft any more
    Damaged,  ///< it was not understood and has been put aside
    Failed,   ///< it could not be read this time, and stays as it is
};

/// Gives the texts of a draft one by one; nothing when there are no more.
using DraftTextSource = std::function<std::optional<DraftText>()>;

/// The drafts of this user, one for each run. A run has at most one as its own, which no other run can take while this
/// one lives, however it ends. A file that is not understood (damaged, of another version, somebody else's) is never
/// deleted, but put aside under another name. What fails for want of room, rights or a disk is a RunTimeError that
/// names the file.
class DraftStore {
public:
    virtual ~DraftStore() = default;

    /// Looks for drafts that are free and for the last finished file. Only the latest 20 drafts stay.
    virtual DraftsFound look() = 0;

    /// Writes the run's own draft, whole or not at all; the first call makes it. The head's time is kept as it is.
    virtual void write(const DraftHead &head, const DraftTextSource &texts) = 0;

    /// Makes a free draft the run's own, in the place of what it had, and reads it into `draft`.
    virtual TakeEnd takeOver(const std::string &name, Draft &draft) = 0;

    /// Deletes a free draft; one that is in use, or that another run has gone on with since it was found, stays as it
    /// is.
    virtual void discard(const DraftEntry &draft) = 0;

    /// Leaves the run's own draft as a free one, which any run can take. The next write makes a new draft.
    virtual void leave() = 0;

    /// Deletes the run's own draft.
    virtual void drop() = 0;

    /// Makes the run's own draft the last finished file. The next write makes a new draft.
    virtual void finish() = 0;

    /// Reads the last finished file; nothing when there is none, or none that is understood.
    virtual std::optional<Draft> readLast() = 0;
};

}  // namespace penwright
