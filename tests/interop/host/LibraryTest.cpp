#include "interop/host/Guide.h"

namespace penwright::test {
namespace {

class InstalledLibrary : public Guide {
protected:
    static void run(const std::vector<std::string> &command)
    {
        Process process(command, {}, Process::Errors::Joined);
        const std::string output = process.readAll(200s);
        ASSERT_EQ(process.waitForEnd(), 0) << command[1] << ":\n" << output;
    }

    /// Installs the library and builds the page's host with nothing but that.
    void buildHost()
    {
        const std::string prefix = m_folder.file("ein Präfix mit Lücken");
        extract("CMakeLists.txt");
        extract("host.cpp");
        ASSERT_NO_FATAL_FAILURE(run({CMAKE, "--install", BUILD_FOLDER, "--component", "host", "--prefix", prefix}));
        ASSERT_NO_FATAL_FAILURE(run({CMAKE, "-G", "Ninja", "-S", m_folder.path(), "-B", m_folder.file("build"),
                                     "-DCMAKE_PREFIX_PATH=" + prefix, "-DCMAKE_CXX_COMPILER=" COMPILER}));
        ASSERT_NO_FATAL_FAILURE(run({CMAKE, "--build", m_folder.file("build")}));
    }
};

TEST_F(InstalledLibrary, buildsTheHostOfThePageWhichBringsTheFile)
{
    ASSERT_NO_FATAL_FAILURE(buildHost());
    Process host({m_folder.file("build/host")});
    ASSERT_TRUE(finishLuminaire());
    EXPECT_EQ(endOf(host), 0);
    EXPECT_EQ(host.readAll(), contentOf(EXPECTED_FILE));
}

}  // namespace
}  // namespace penwright::test
