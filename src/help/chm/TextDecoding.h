#pragma once

#include <cstdint>
#include <string>

namespace penwright::chm {

bool isUtf8(const std::string &bytes);

/// Appends a code point as UTF-8; what is none becomes U+FFFD.
void appendUtf8(std::string &out, std::uint32_t codePoint);

/// Bytes as UTF-8: as they are when they are it already (a mark of it at the begin is dropped), else read in the
/// Windows code page of a language: 1250 for those of Central Europe, 1251 for the Cyrillic ones, 1252 for all others.
std::string decodedText(const std::string &bytes, std::uint32_t lcid);

}  // namespace penwright::chm
