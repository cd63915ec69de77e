#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace penwright {

/// The name of this tool in every command to the host, and the default title of its message boxes.
inline constexpr std::string_view kToolName = "PenwrightPE";

/// The one exception of the program: a run-time error by its number, with a description and a source for the user.
/// It stands on the floor that rules and platform share, because store and files report their failures with it too.
class RunTimeError : public std::runtime_error {
public:
    explicit RunTimeError(int number, const std::string &description, std::string source = std::string(kToolName))
        : std::runtime_error(description), m_number(number), m_source(std::move(source))
    {
    }

    int number() const { return m_number; }
    std::string description() const { return what(); }
    const std::string &source() const { return m_source; }

private:
    int m_number;
    std::string m_source;
};

inline RunTimeError invalidCall()
{
    return RunTimeError(5, "Invalid procedure call or argument");
}
inline RunTimeError overflow()
{
    return RunTimeError(6, "Overflow");
}
inline RunTimeError subscriptOutOfRange()
{
    return RunTimeError(9, "Subscript out of range");
}
inline RunTimeError typeMismatch()
{
    return RunTimeError(13, "Type mismatch");
}

}  // namespace penwright
