#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>

namespace penwright {

/// The true texts of the hidden boxes `txtCmds` and `txtFiles`, with their "\r\n" line ends.
class CommandLog {
public:
    /// An entry longer than this is cut: a rude host's megabytes would otherwise be kept a thousand times over.
    static constexpr std::size_t kLongestEntry = 8192;

    static constexpr int kMostEntries = 1000;

    /// Appends an entry and a line end to the log, which keeps its latest 1,000 entries.
    void append(std::string_view entry);

    /// The log as one text, every line ended by "\r\n".
    std::string txtCmds() const;

    /// How many entries have been appended so far, those that the log has let go included.
    std::size_t appended() const { return m_appended; }

    /// The latest entries as one text, every one ended by "\r\n".
    std::string latest(std::size_t entries) const;

    /// Replaces the whole log by one entry.
    void setTxtCmds(std::string_view text);

    const std::string &txtFiles() const { return m_files; }
    void setTxtFiles(std::string text) { m_files = std::move(text); }

private:
    std::deque<std::string> m_lines;
    std::size_t m_appended = 0;
    std::string m_files;
};

}  // namespace penwright
