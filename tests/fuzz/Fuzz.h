#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

/// What libFuzzer calls for each input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace penwright::test {

/// Ends the run with a finding where what has to hold for every input does not.
inline void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

inline std::string_view textOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), size};
}

/// The parts of a text between separators, as many as are asked for: the last one runs to its end, missing ones are
/// empty.
inline std::vector<std::string_view> partsOf(std::string_view text, char separator, std::size_t count)
{
    std::vector<std::string_view> parts;
    while (parts.size() + 1 < count) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    }
    parts.push_back(text);
    return parts;
}

}  // namespace penwright::test
