#include <cerrno>
#include <filesystem>

#include "unit/core/FilesTest.h"

namespace penwright {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMost = 4'000'000;

bool goOn(double)
{
    return true;
}

/// The system's calls, with something that happens before each reading.
struct WatchedCalls : FileCalls {
    ssize_t read(int file, void *data, std::size_t size) override
    {
        before();
        if (failure != 0)
            return errno = failure, -1;
        return FileCalls::read(file, data, size);
    }
    std::function<void()> before = [] {};
    int failure = 0;
};

class ReadingFiles : public test::FilesTest {
protected:
    int errorOf(const std::string &path)
    {
        const FileContent content = watched.read(path, kMost, goOn);
        EXPECT_EQ(content.bytes, "");
        return content.error;
    }

    WatchedCalls calls;
    PosixTextFiles watched{calls};
};

TEST_F(ReadingFiles, givesEveryByte)
{
    std::string bytes(3'500'000, 'x');
    for (std::size_t i = 0; i < bytes.size(); i += 997)
        bytes[i] = static_cast<char>(i);
    for (const std::string &text : {std::string(), std::string("a\0b\r\n", 5), bytes}) {
        const FileContent content = files.read(make("a.csv", text), kMost, goOn);
        EXPECT_EQ(content.error, 0);
        EXPECT_TRUE(content.bytes == text);
    }
    fs::create_symlink("a.csv", folder.path() / "link");
    EXPECT_EQ(files.read(folder.file("link"), kMost, {}).bytes.size(), bytes.size());
}

TEST_F(ReadingFiles, refusesWhatIsNoFileOrTooLong)
{
    EXPECT_EQ(errorOf(folder.file("gone.csv")), ENOENT);
    EXPECT_EQ(errorOf(make("a.csv", "1") + "/b"), ENOTDIR);
    EXPECT_EQ(errorOf(folder.path().string()), EISDIR);
    EXPECT_EQ(errorOf(std::string("a\0b", 3)), EINVAL);
    ASSERT_EQ(mkfifo(folder.file("pipe").c_str(), 0600), 0);
    EXPECT_EQ(errorOf(folder.file("pipe")), ENODEV);
    EXPECT_EQ(errorOf("/dev/zero"), ENODEV);
    EXPECT_EQ(errorOf(make("long.csv", std::string(kMost + 1, 'x'))), EFBIG);
    EXPECT_EQ(files.read(make("full.csv", std::string(kMost, 'x')), kMost, goOn).error, 0);
}

TEST_F(ReadingFiles, refusesWhatItsOwnerKeeps)
{
    const std::string path = make("a.csv", "1");
    chmod(path.c_str(), 0200);
    fs::permissions(folder.path(), fs::perms::all);
    EXPECT_EQ(asNobody([&] { return files.read(path, kMost, goOn).error; }), EACCES);
}

TEST_F(ReadingFiles, tellsOfAFileThatOthersCutOrWriteMeanwhile)
{
    const std::string path = make("a.csv", std::string(3'000'000, 'x'));
    calls.before = [&] { fs::resize_file(path, 10); };
    EXPECT_EQ(errorOf(path), ESTALE);
    make("a.csv", std::string(3'000'000, 'x'));
    calls.before = [&] { std::ofstream(path, std::ios::app) << "more"; };
    EXPECT_EQ(errorOf(path), ESTALE);
}

TEST_F(ReadingFiles, hasAllOfAFileThatIsDeletedMeanwhile)
{
    const std::string path = make("a.csv", std::string(3'000'000, 'x'));
    calls.before = [&] { fs::remove(path); };
    const FileContent content = watched.read(path, kMost, goOn);
    EXPECT_EQ(content.error, 0);
    EXPECT_EQ(content.bytes.size(), 3'000'000U);
}

TEST_F(ReadingFiles, tellsWhatTheSystemSays)
{
    calls.failure = EIO;
    EXPECT_EQ(errorOf(make("a.csv", "1")), EIO);
}

TEST_F(ReadingFiles, endsWhenItIsNotToGoOnAndTellsHowFarItIs)
{
    const std::string path = make("a.csv", std::string(3'000'000, 'x'));
    double last = -1;
    const auto half = [&last](double part) {
        EXPECT_GT(part, last);
        last = part;
        return part < 0.5;
    };
    EXPECT_EQ(watched.read(path, kMost, half).error, ECANCELED);
    EXPECT_GE(last, 0.5);
    EXPECT_LT(last, 1);
}

}  // namespace
}  // namespace penwright
