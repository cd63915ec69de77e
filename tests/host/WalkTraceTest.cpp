#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "host/HostRun.h"
#include "support/ReadBackFolder.h"

namespace penwright {
namespace {

using test::Process;

/// The first argument of a traced call, such as AF_UNIX.
std::string firstArgument(const std::string &call)
{
    const std::size_t begin = call.find('(') + 1;
    return call.substr(begin, call.find_first_of(",)", begin) - begin);
}

/// The folder of a path, with names of the run's own made plain.
std::string placeOf(const std::string &quoted, const std::string &home)
{
    std::string place = std::filesystem::path(quoted.substr(1)).parent_path();
    if (place.starts_with(home))
        place.replace(0, home.size(), "HOME");
    const std::string temporary = (std::filesystem::temp_directory_path() / "qt_temp-").string();
    if (place.starts_with(temporary))
        place.replace(0, std::min(place.find('/', temporary.size()), place.size()), "TEMPORARY");
    return place;
}

/// What stands behind the keywords of a file.
std::vector<std::string> keywordValues(const std::filesystem::path &file)
{
    std::vector<std::string> values;
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);)
        if (const std::size_t end = line.find("] "); line.starts_with("[") && end != std::string::npos)
            values.push_back(line.substr(end + 2, line.find_last_not_of("\r ") - end - 1));
    return values;
}

TEST(WalkTrace, hostAndToolSpeakToNobodyBeyondThisMachineAndWriteIntoTheirFoldersAlone)
{
    const test::Screen screen(false);
    const test::ReadBackFolder home;
    Process::Environment here = test::environment(screen.name(), home.path());
    for (auto &[name, value] : here)
        if (name == "LSAN_OPTIONS")
            value = "detect_leaks=0";  // it traces the process itself, which one tracer alone can do
    here.emplace_back("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + home.file("no bus"));  // else the toolkit starts one
    Process host({"strace", "-f", "-qq", "-e", "trace=socket,connect,execve,openat,open,creat,mkdir", "-e",
                  "signal=none", "-o", home.file("trace"), HOSTBENCH, "--walk", home.file("left")},
                 here, Process::Errors::Joined);
    const std::string output = host.readAll(std::chrono::seconds(110));
    EXPECT_EQ(host.waitForEnd(), 0) << output;

    std::set<std::string> families;
    std::set<std::string> programs;
    std::set<std::string> written;
    std::set<std::string> temporaryModes;
    std::ifstream trace(home.file("trace"));
    for (std::string line; std::getline(trace, line);) {
        const std::string call =
            line.substr(std::min(line.find_first_not_of("0123456789 "), line.size()));  // behind the process
        if (call.starts_with("socket("))
            families.insert(firstArgument(call));
        if (call.starts_with("execve("))
            programs.insert(std::filesystem::path(firstArgument(call)).filename());
        const std::size_t path = call.find('"');
        const bool isDone = call.find(" = -1 ") == std::string::npos && path != std::string::npos;
        if (isDone && call.find("O_CREAT") != std::string::npos)
            written.insert(placeOf(call.substr(path), home.path()));
        if (isDone && call.starts_with("mkdir(") && call.find("/qt_temp-") == call.rfind('/', call.find("\", ")))
            temporaryModes.insert(call.substr(call.find("\", ") + 3, 4));
    }
    EXPECT_EQ(families, std::set<std::string>{"AF_UNIX"});
    EXPECT_EQ(programs, (std::set<std::string>{"PenwrightPE\"", "hostbench\""}));
    EXPECT_EQ(written,
              (std::set<std::string>{"HOME/left", "TEMPORARY", "TEMPORARY/Lumentor", "TEMPORARY/Lumentor/drafts"}));
    EXPECT_EQ(temporaryModes, std::set<std::string>{"0700"});
    const std::vector<std::string> values = keywordValues(home.file("left/luminaire.ies"));
    EXPECT_GE(values.size(), 3U);
    for (const std::string &value : values)
        EXPECT_EQ(output.find(value), std::string::npos) << value << " in what the programs print:\n" << output;
}

}  // namespace
}  // namespace penwright
