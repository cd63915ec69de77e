#pragma once

#include <string>

namespace penwright {

/// Whether the toolkit lays a page out in a moment. Its time grows with the square of the longest word, and it goes
/// through nested elements by recursion, so that a hostile page would hang it or end its stack. Pages that people write
/// are far from these limits: 1 MiB, words of 20,000 bytes, and 200 elements in one another.
bool isShowable(const std::string &html);

}  // namespace penwright
