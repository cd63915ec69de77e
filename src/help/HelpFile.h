#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace penwright {

/// The error of a help file or page that is not there.
inline constexpr int kHelpNotFound = 53;

/// A page of a help file by its name, as "folder/page.html", and a place in it; the anchor may be empty.
struct HelpPlace {
    std::string topic;
    std::string anchor;
    bool operator==(const HelpPlace &) const = default;
};

/// A line of the contents tree. Depth 0 is the outermost; a line is at most one deeper than the line before it. What
/// leads to no page of the file, as a mere heading does, has no place.
struct HelpEntry {
    std::string title;
    int depth = 0;
    std::optional<HelpPlace> place;
};

/// What a page says, without its markup.
struct HelpText {
    std::string topic;
    std::string title;
    std::string text;
};

/// A compiled help file that is open. All texts are UTF-8. Nothing outside the file is ever read.
class HelpFile {
public:
    virtual ~HelpFile() = default;

    /// The title that the file gives itself; its name when it gives none.
    virtual std::string title() const = 0;

    /// The page to begin with.
    virtual HelpPlace home() const = 0;

    virtual const std::vector<HelpEntry> &contents() const = 0;

    /// The page for a context id; nothing when the file does not know the id. The file may still lack the page.
    virtual std::optional<HelpPlace> topicFor(int contextId) const = 0;

    /// The place that a link leads to, written as in a page at the top of the file: with "\" or "/" between folders,
    /// percent signs, an anchor, and possibly the name of the help file before "::". Nothing when it leads to no page
    /// of the file.
    virtual std::optional<HelpPlace> find(const std::string &link) const = 0;

    /// The text of a page, its markup included. A page that the file lacks or that is damaged is RunTimeError with a
    /// description that names file and page.
    virtual std::string page(const std::string &topic) = 0;

    /// The bytes of any object, found as `find` finds a page; nothing when it is not there, damaged or too large.
    virtual std::optional<std::string> object(const std::string &link) = 0;

    /// Bytes of the file as text: UTF-8 if they are, else the code page of the file's language.
    virtual std::string decoded(const std::string &bytes) const = 0;

    /// The texts of all pages, as far as they can be read and do not grow beyond all measure.
    virtual std::vector<HelpText> texts() = 0;
};

/// Opens the help file at a path. What prevents it is RunTimeError with a description that names file and reason.
using HelpFileOpener = std::function<std::unique_ptr<HelpFile>(const std::string &path)>;

}  // namespace penwright
