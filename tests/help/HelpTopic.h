#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace penwright::test {

/// The content of a file, nothing when it cannot be read.
std::string contentOf(const std::string &path);

/// The text with every run of blanks and line ends made one blank, none at its ends.
std::string collapsed(std::string_view text);

/// The names of a folder's files below it, with "/" between, sorted.
std::vector<std::string> filesBelow(const std::string &folder);

/// One tag or one text of an HTML file.
struct HtmlToken {
    std::string tag;  ///< "td", "/td"; "" for a text
    std::map<std::string, std::string> attributes;
    std::string text;  ///< entities decoded; runs of white space are one blank outside of <pre>, no-break blanks blanks
};

std::vector<HtmlToken> htmlTokens(std::string_view html);

/// A topic of the help, as far as a test asks about it.
class HelpTopic {
public:
    explicit HelpTopic(const std::string &path);

    /// All that a reader sees, white space collapsed.
    std::string text() const;

    /// The same without the elements of a class.
    std::string textWithout(std::string_view className) const;

    /// The text of each element of a class, its <br> as "\r\n".
    std::vector<std::string> textsOf(std::string_view className) const;

    /// The fixed parts of each element of a class: what stands between its <var>, which stand for what varies.
    std::vector<std::vector<std::string>> fixedPartsOf(std::string_view className) const;

    /// The values of an attribute of a tag, in their order.
    std::vector<std::string> valuesOf(std::string_view tag, const std::string &attribute) const;

    /// Where the link of a text leads to; nothing when no link has it.
    std::string linkOf(std::string_view text) const;

    /// What stands between the heading that holds an anchor and the next heading, white space collapsed.
    std::string sectionAt(std::string_view anchor) const;

    /// The text of the element of a tag and title.
    std::string titled(std::string_view tag, std::string_view title) const;

private:
    std::vector<HtmlToken> m_tokens;
};

}  // namespace penwright::test
