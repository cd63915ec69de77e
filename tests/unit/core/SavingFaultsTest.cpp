#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>

#include "core/FileErrors.h"
#include "core/FileSaving.h"
#include "core/IesText.h"
#include "support/FakeDialogs.h"
#include "support/SampleRecords.h"
#include "unit/core/FilesTest.h"

namespace penwright {
namespace {

namespace fs = std::filesystem;

/// What a child process ends with when it has seen what it should; no accident ends so.
constexpr int kSeen = 42;

/// Saving real files: what the user reads when a real fault befalls the file.
class SavingFaults : public test::FilesTest {
protected:
    SavingFaults() { dialogs.answers = {Answer::Cancel}; }

    /// The first line of the message that saving under `path` shows, "" when it shows none.
    std::string messageOf(const std::string &path)
    {
        const bool isWritten = save(path);
        EXPECT_EQ(isWritten, dialogs.transcript.empty());
        const std::string title = "[Error saving " + path + "|1] ";
        const std::string question = "\r\nOK to Retry, Cancel to quit.\n";
        const std::string &shown = dialogs.transcript;
        if (shown.empty())
            return "";
        EXPECT_EQ(shown.substr(0, title.size()), title);
        EXPECT_EQ(shown.substr(shown.size() - question.size()), question);
        return shown.substr(title.size(), shown.size() - title.size() - question.size());
    }

    bool save(const std::string &path)
    {
        const auto make = [](std::string &text) { appendIesText(text, test::smallRecord()); };
        return saveFile(path, make, "\r\n", files, dialogs);
    }

    test::FakeDialogs dialogs;
};

TEST_F(SavingFaults, missingFolder)
{
    EXPECT_EQ(messageOf(folder.file("gone/a.ies")), "Path not found. Please be sure to select a valid mounted device");
}

TEST_F(SavingFaults, folderThatIsAFile)
{
    EXPECT_EQ(messageOf(make("file", "") + "/a.ies"),
              "Path not found. Please be sure to select a valid mounted device");
}

TEST_F(SavingFaults, readOnlyFile)
{
    const std::string path = make("a.ies", "old");
    chmod(path.c_str(), 0444);
    EXPECT_EQ(messageOf(path), "File is Read-Only. Cannot save.");
}

TEST_F(SavingFaults, folderAsFile)
{
    EXPECT_EQ(messageOf(folder.path().string()), "Bad file name or number");
}

TEST_F(SavingFaults, nameTooLong)
{
    EXPECT_EQ(messageOf(folder.file(std::string(256, 'n'))), "Bad file name or number");
}

TEST_F(SavingFaults, noName)
{
    EXPECT_EQ(messageOf(""), "Bad file name or number");
}

TEST_F(SavingFaults, fullDevice)
{
    EXPECT_EQ(messageOf("/dev/full"), "Disk is full. Free up space on this disk or choose another.");
}

TEST_F(SavingFaults, pipeThatNobodyReads)
{
    const std::string pipe = folder.file("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(messageOf(pipe), "Device unavailable. Insert the disk and try again.");
}

TEST_F(SavingFaults, someoneElsesFile)
{
    const std::string path = make("a.ies", "old");
    chmod(path.c_str(), getuid() == 0 ? 0644 : 0022);
    chmod(folder.path().c_str(), 0777);
    const std::string expected =
        "Permission denied. Please be sure you have ownership of and that the file is not Read-Only.";
    EXPECT_EQ(asNobody([&] { return messageOf(path) == expected ? kSeen : 0; }), kSeen);
}

TEST_F(SavingFaults, noFreeFileNumber)
{
    const std::string path = folder.file("a.ies");
    const std::string expected = "Too many files in this directory (Old FAT filesystem?).";
    const int seen = inAChild([&] {
        PosixTextFiles limited;
        limited.replace(path, "");  // the sanitizer looks at each type once, and needs file numbers to do so
        rlimit few{64, 64};
        setrlimit(RLIMIT_NOFILE, &few);
        int last = -1;
        while (const int file = open("/dev/null", O_RDONLY | O_CLOEXEC)) {
            if (file < 0)
                break;
            last = file;
        }
        const int error = limited.replace(path, "x");
        while (last > 2)
            close(last--);
        return savingErrorText(errorFromErrno(error)) == expected ? kSeen : 0;
    });
    EXPECT_EQ(seen, kSeen);
}

TEST_F(SavingFaults, linkInACircleIsToldInTheSystemsWords)
{
    fs::create_symlink("a", folder.path() / "a");
    EXPECT_EQ(messageOf(folder.file("a")), "Windows Error 51 Too many levels of symbolic links PenwrightPE");
}

TEST_F(SavingFaults, retrySucceedsOnceTheFolderIsThere)
{
    dialogs.answers = {Answer::Ok};
    dialogs.onShow = [this](const MessageBox &) { fs::create_directory(folder.path() / "late"); };
    EXPECT_TRUE(save(folder.file("late/a.ies")));
    EXPECT_EQ(test::contentOf(folder.file("late/a.ies")), iesFileText(test::smallRecord()));
}

TEST_F(SavingFaults, cancelledSaveLeavesNothing)
{
    messageOf(folder.file("gone/a.ies"));
    EXPECT_EQ(entries(), 0);
}

}  // namespace
}  // namespace penwright
