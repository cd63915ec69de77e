#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "support/ReadBack.h"
#include "support/TempFolder.h"

namespace penwright::test {

/// A folder in which programs write: each IES file that is left in it is read back at the end.
class ReadBackFolder : public TempFolder {
public:
    ~ReadBackFolder()
    {
        std::error_code ignored;
        for (const auto &entry : std::filesystem::recursive_directory_iterator(path(), ignored))
            if (entry.is_regular_file() && isIes(entry.path()))
                EXPECT_EQ(readBackFault(contentOf(entry.path())), "") << entry.path();
    }

private:
    static bool isIes(const std::filesystem::path &path)
    {
        std::string ending = path.extension().string();
        std::transform(ending.begin(), ending.end(), ending.begin(), [](unsigned char c) { return std::tolower(c); });
        return ending == ".ies";
    }
};

}  // namespace penwright::test
