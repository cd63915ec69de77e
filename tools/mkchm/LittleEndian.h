#pragma once

#include <cstdint>
#include <string>

namespace penwright::mkchm {

/// Appends the low `bytes` bytes of a number, lowest first.
inline void append(std::string &out, std::uint64_t number, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        out += static_cast<char>(number >> (8 * i) & 0xFF);
}

inline void append16(std::string &out, std::uint64_t number)
{
    append(out, number, 2);
}
inline void append32(std::string &out, std::uint64_t number)
{
    append(out, number, 4);
}
inline void append64(std::string &out, std::uint64_t number)
{
    append(out, number, 8);
}

/// Appends an integer of the directory's own form: seven bits a byte, highest first, the high bit set on all but the
/// last byte.
inline void appendEncInt(std::string &out, std::uint64_t number)
{
    int shift = 0;
    while (number >> shift > 0x7F)
        shift += 7;
    for (; shift > 0; shift -= 7)
        out += static_cast<char>((number >> shift & 0x7F) | 0x80);
    out += static_cast<char>(number & 0x7F);
}

}  // namespace penwright::mkchm
