#pragma once

#include <string>
#include <string_view>

namespace penwright::chm {

/// Text with the characters that its references stand for: "&amp;", "&#233;", "&#xE9;" and the common names. What is no
/// reference stays as it is.
std::string withoutEntities(std::string_view text);

}  // namespace penwright::chm
