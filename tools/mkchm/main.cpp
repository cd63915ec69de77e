// Compiles a help project.
//   mkchm PROJECT OUTPUT
// The same sources make the same bytes in any folder, at any time and in any locale. What is wrong is told in one line
// on stderr, with the exit status 1; the output is then as it was before.
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "mkchm/HelpObjects.h"

namespace {

namespace fs = std::filesystem;

std::string contentOf(const fs::path &path)
{
    std::ifstream in;
    if (fs::is_regular_file(path))
        in.open(path, std::ios::binary);
    if (!in.is_open())
        throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(in), {}};
}

/// Puts a file in its place in one step, so that there is never half of it.
void replaceFile(const fs::path &path, const std::string &bytes)
{
    const fs::path part = path.string() + ".part";
    std::ofstream out(part, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    std::error_code error;
    if (out)
        fs::rename(part, path, error);
    if (out && !error)
        return;
    std::error_code ignored;
    fs::remove(part, ignored);
    throw std::runtime_error("cannot write " + path.string());
}

void compileFile(const fs::path &project, const fs::path &output)
{
    using namespace penwright::mkchm;
    const std::string text = contentOf(project);
    const auto read = [&](const std::string &name) { return contentOf(project.parent_path() / name); };
    try {
        replaceFile(output, compile(readProject(text), read));
    } catch (const ProjectError &error) {
        throw std::runtime_error(project.string() + ":" + error.what());
    } catch (const std::length_error &error) {
        throw std::runtime_error(project.string() + ": " + error.what());
    }
}

}  // namespace

int main(int count, char **arguments)
{
    if (count != 3) {
        std::cerr << "usage: mkchm PROJECT OUTPUT\n";
        return 1;
    }
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);  // a limit on the size of files is a failure like any other
#endif
    try {
        compileFile(arguments[1], arguments[2]);
    } catch (const std::exception &error) {
        std::cerr << "mkchm: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
