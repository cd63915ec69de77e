#pragma once

#include <cstddef>
#include <cstdint>

/// What a help file may ask of this program. A real one is far below; a hostile one is told so.
namespace penwright::chm {

inline constexpr std::size_t kMiB = std::size_t{1} << 20;

inline constexpr std::size_t kLargestFile = 64 * kMiB;
inline constexpr std::size_t kLargestObject = 16 * kMiB;
inline constexpr std::size_t kMostNames = 20000;
inline constexpr std::size_t kMostMemory = 128 * kMiB;  ///< of the decompressor
inline constexpr int kDeepestEntry = 63;
inline constexpr std::size_t kMostTails = 32;  ///< of an absolute path that are looked for

/// How far into the compressed contents an object may lie: all before it must be decompressed to reach it.
inline constexpr std::size_t kLongestWay = 256 * kMiB;

/// What all pages together may hold, and may cost in bytes decompressed, when they are searched.
inline constexpr std::size_t kMostText = 32 * kMiB;
inline constexpr std::size_t kMostSearchWork = 512 * kMiB;

}  // namespace penwright::chm
