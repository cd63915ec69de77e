#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace penwright::test {

/// Acts, one to a line: a word of the table of acts, then what it is about.
using Script = std::vector<std::string>;

/// The scripts of a text, which are parted by blank lines. Lines that begin with '#' are remarks.
std::vector<Script> scriptsIn(const std::string &text);

/// A script as a text, each line ended.
std::string textOf(const Script &script);

/// A text as it stands in a script, and back: "\t", "\n" and "\\" for tabs, line ends and backslashes.
std::string escaped(std::string_view text);
std::string unescaped(std::string_view text);

/// A part of a script that still fails, from which no act can be left out: halves are left out first, then quarters
/// and so on, while `fails` answers true. The script itself fails.
Script shrunk(Script script, const std::function<bool(const Script &)> &fails);

}  // namespace penwright::test
