#pragma once

#include <cstdint>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace penwright::mkchm {

/// What is wrong with a project, in one line for its author.
class ProjectError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What a help project asks for. Names of files are relative to the project's folder, with "/" between folders.
struct HelpProject {
    std::string title;
    std::string defaultTopic;
    std::string contentsFile;
    std::vector<std::string> files;               ///< as listed, the contents file added when it is not among them
    std::map<std::uint32_t, std::string> topics;  ///< by context id
};

/// Reads a project's text: the sections [OPTIONS] with Title, Default topic and Contents file, [FILES] with a name a
/// line, [ALIAS] with lines as "IDH_LAMP=lamp.html" and [MAP] with lines as "#define IDH_LAMP 202". A line that begins
/// with ";" is a comment. Names of files and sections are compared without regard to case.
/// Throws ProjectError for whatever it does not understand and for whatever does not fit together.
HelpProject readProject(std::string_view text);

}  // namespace penwright::mkchm
