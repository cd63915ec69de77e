#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Fixed values of a compiled help file. The GUIDs stand as they lie in the file: the first three groups byte-swapped.
namespace penwright::mkchm {

using namespace std::string_view_literals;

inline constexpr std::uint32_t kLanguage = 0x409;  ///< LCID of US English
inline constexpr std::size_t kHeaderSize = 0x60;
inline constexpr std::size_t kLengthSectionSize = 0x18;
inline constexpr std::size_t kDirectoryHeaderSize = 0x54;

/// {7C01FD10-7BAA-11D0-9E0C-00A0C922E6EC}
inline constexpr auto kFileGuid = "\x10\xFD\x01\x7C\xAA\x7B\xD0\x11\x9E\x0C\x00\xA0\xC9\x22\xE6\xEC"sv;
/// {7C01FD11-7BAA-11D0-9E0C-00A0C922E6EC}
inline constexpr auto kSectionsGuid = "\x11\xFD\x01\x7C\xAA\x7B\xD0\x11\x9E\x0C\x00\xA0\xC9\x22\xE6\xEC"sv;
/// {5D02926A-212E-11D0-9DF9-00A0C922E6EC}
inline constexpr auto kDirectoryGuid = "\x6A\x92\x02\x5D\x2E\x21\xD0\x11\x9D\xF9\x00\xA0\xC9\x22\xE6\xEC"sv;

}  // namespace penwright::mkchm
