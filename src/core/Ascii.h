#pragma once

#include <string>
#include <string_view>

namespace penwright {

// Digits and letters of ASCII, whatever the machine's language is. All other bytes stay as they are.

constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

constexpr char lowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr char upperCase(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

inline std::string lowerCase(std::string_view text)
{
    std::string result(text);
    for (char &c : result)
        c = lowerCase(c);
    return result;
}

inline std::string upperCase(std::string_view text)
{
    std::string result(text);
    for (char &c : result)
        c = upperCase(c);
    return result;
}

}  // namespace penwright
