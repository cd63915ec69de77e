#pragma once

#include <string>

namespace penwright::chm {

/// A page without its markup: what stands in its title, and what a reader sees, runs of blanks made one blank.
struct PlainPage {
    std::string title;
    std::string text;
};

PlainPage plainPage(const std::string &html);

}  // namespace penwright::chm
