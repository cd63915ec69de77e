#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace penwright {

/// What reading a file gave.
struct FileContent {
    int error = 0;      ///< 0, or the errno of what failed
    std::string bytes;  ///< all of the file; "" on failure
};

/// Files on disk.
class TextFiles {
public:
    virtual ~TextFiles() = default;

    /// Puts `text` into the file at `path`, whole or not at all: on failure the old file is as it was.
    /// Returns 0, or the errno of what failed; EROFS also stands for a target whose modes allow nobody to write.
    virtual int replace(const std::string &path, std::string_view text) = 0;

    /// Reads a whole file of at most `most` bytes, on any thread. Beside what the system says: EFBIG for a longer one,
    /// ENODEV for a pipe or a device, which may never end, ESTALE for one that others write to meanwhile, and ECANCELED
    /// when `goOn`, which is asked now and then with the part that is read, 0 to 1, says no.
    virtual FileContent read(const std::string &path, std::size_t most, const std::function<bool(double)> &goOn) = 0;
};

}  // namespace penwright
