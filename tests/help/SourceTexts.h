#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace penwright::test {

/// The string literals of C++ code, as the compiler sees them: comments and includes left out, neighbours joined.
std::vector<std::string> literalsOf(std::string_view code);

/// The texts of a form that the user sees: captions, titles and prompts, white space collapsed.
std::vector<std::string> captionsOf(const std::string &formPath);

/// The literals of all code below the folders or in the files named, relative to src.
std::set<std::string> literalsBelow(const std::vector<std::string> &places);

}  // namespace penwright::test
