#pragma once

#include <string>
#include <string_view>

namespace penwright {

/// Files on disk.
class TextFiles {
public:
    virtual ~TextFiles() = default;

    /// Puts `text` into the file at `path`, whole or not at all: on failure the old file is as it was.
    /// Returns 0, or the errno of what failed; EROFS also stands for a target whose modes allow nobody to write.
    virtual int replace(const std::string &path, std::string_view text) = 0;
};

}  // namespace penwright
