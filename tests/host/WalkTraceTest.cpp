#include <gtest/gtest.h>

#include <fstream>
#include <set>

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

TEST(WalkTrace, hostAndToolSpeakToNobodyBeyondThisMachine)
{
    const test::Screen screen(false);
    const test::ReadBackFolder home;
    Process::Environment here = test::environment(screen.name(), home.path());
    for (auto &[name, value] : here)
        if (name == "LSAN_OPTIONS")
            value = "detect_leaks=0";  // it traces the process itself, which one tracer alone can do
    here.emplace_back("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + home.file("no bus"));  // else the toolkit starts one
    Process host({"strace", "-f", "-qq", "-e", "trace=socket,connect,execve", "-e", "signal=none", "-o",
                  home.file("trace"), HOSTBENCH, "--walk", home.file("left")},
                 here, Process::Errors::Joined);
    const std::string output = host.readAll(std::chrono::seconds(110));
    EXPECT_EQ(host.waitForEnd(), 0) << output;

    std::set<std::string> families;
    std::set<std::string> programs;
    std::ifstream trace(home.file("trace"));
    for (std::string line; std::getline(trace, line);) {
        const std::string call =
            line.substr(std::min(line.find_first_not_of("0123456789 "), line.size()));  // behind the process
        if (call.starts_with("socket("))
            families.insert(firstArgument(call));
        if (call.starts_with("execve("))
            programs.insert(std::filesystem::path(firstArgument(call)).filename());
    }
    EXPECT_EQ(families, std::set<std::string>{"AF_UNIX"});
    EXPECT_EQ(programs, (std::set<std::string>{"PenwrightPE\"", "hostbench\""}));
}

}  // namespace
}  // namespace penwright
