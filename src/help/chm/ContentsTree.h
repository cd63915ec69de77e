#pragma once

#include <string>
#include <vector>

namespace penwright::chm {

/// A line of a contents file as it is written; `link` is empty for a mere heading.
struct ContentsLine {
    std::string title;
    std::string link;
    int depth = 0;
};

/// Reads a contents file. Such a file looks like HTML but seldom is it, so no more is looked for than lists, objects
/// and their parameters "Name" and "Local"; whatever else stands there is passed over. Lines below the greatest depth
/// stand at it.
std::vector<ContentsLine> readContents(const std::string &text);

}  // namespace penwright::chm
