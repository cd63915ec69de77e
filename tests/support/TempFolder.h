#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace penwright::test {

/// A folder of its own for one test, removed at the end with all that is in it.
class TempFolder {
public:
    TempFolder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "penwright-").string();
        pattern.append(6, 'X');  // which mkdtemp replaces
        if (!mkdtemp(pattern.data()))
            throw std::runtime_error("cannot make a folder like " + pattern);
        m_path = pattern;
    }
    TempFolder(const TempFolder &) = delete;
    TempFolder &operator=(const TempFolder &) = delete;
    ~TempFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    const std::filesystem::path &path() const { return m_path; }
    std::string file(const std::string &name) const { return (m_path / name).string(); }

private:
    std::filesystem::path m_path;
};

/// The whole content of a file, byte by byte; throws when it cannot be read.
inline std::string contentOf(const std::filesystem::path &path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        throw std::runtime_error("cannot read " + path.string());
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

}  // namespace penwright::test
