#include <fcntl.h>
#include <pty.h>
#include <signal.h>
#include <sys/resource.h>

#include <optional>
#include <set>
#include <vector>

#include "core/FileSaving.h"
#include "core/IesText.h"
#include "platform/RunTimeError.h"
#include "support/AllocationLimit.h"
#include "support/FakeDialogs.h"
#include "support/OwnMounts.h"
#include "support/SampleRecords.h"
#include "unit/core/FilesTest.h"
#include "unit/core/ScriptedCalls.h"

namespace penwright {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kOld = "the old file\r\n";

std::set<std::string> namesIn(const fs::path &folder)
{
    std::set<std::string> names;
    for (const auto &entry : fs::directory_iterator(folder))
        names.insert(entry.path().filename());
    return names;
}

void makeSmallText(std::string &text)
{
    appendIesText(text, test::smallRecord());
}

/// A fault that was arranged in a folder: what is saved under which name, and what still has to be done once the folder
/// has been looked at. `strike` answers false where this machine does not let it; `undo` lets the folder be looked at.
struct Arranged {
    std::string path;
    TextMaker make = makeSmallText;
    std::function<bool()> strike = [] { return true; };
    std::function<void()> undo = [] {};
};

/// A file "a.ies" stands in the folder already. Nothing: this machine does not let the fault be arranged.
using Arrange = std::function<std::optional<Arranged>(const fs::path &folder)>;

struct SavingError {
    std::string name;
    std::string text;
    std::string call;   ///< the system call that fails when the fault cannot be real, "" where no call is to blame
    int error;          ///< and how
    Arrange arrange{};  ///< the real fault, where there is one
};

Arrange savedAs(const std::string &name)
{
    return [name](const fs::path &folder) { return Arranged{folder / name}; };
}

Arrange made(const TextMaker &make)
{
    return [make](const fs::path &folder) { return Arranged{folder / "a.ies", make}; };
}

void makeTooLongALine(std::string &text)
{
    PhotometricRecord record = test::smallRecord();
    record.Keywords(2) = "[OTHER] " + std::string(40'000, 'x');
    appendIesText(text, record);
}

/// What would divide by zero does not exist: the error is raised where it would be.
void divideByZero(std::string &)
{
    throw RunTimeError(11, "Division by zero");
}

void makeWithoutMemory(std::string &text)
{
    const test::AllocationLimit limit(1000);
    text.assign(100'000, 'x');
}

std::optional<Arranged> linkInACircle(const fs::path &folder)
{
    fs::create_symlink("circle", folder / "circle");
    return Arranged{folder / "circle"};
}

std::optional<Arranged> pipeThatNobodyReads(const fs::path &folder)
{
    mkfifo((folder / "pipe").c_str(), 0600);
    return Arranged{folder / "pipe"};
}

/// Each name that a temporary file could have is taken by a folder.
std::optional<Arranged> takenNames(const fs::path &folder)
{
    for (int number = 1; number <= 100; ++number)
        fs::create_directory(folder /
                             (".penwright-" + std::to_string(getpid()) + "-" + std::to_string(number) + ".tmp"));
    return Arranged{folder / "a.ies"};
}

/// The file is a program that runs until its end of the pipe closes, with this process at the latest.
std::optional<Arranged> programThatRuns(const fs::path &folder)
{
    int ends[2];
    int ran[2];  // closed as the program begins to run
    fs::copy_file("/bin/cat", folder / "a.ies", fs::copy_options::overwrite_existing);
    if (chmod((folder / "a.ies").c_str(), 0700) != 0 || pipe2(ends, O_CLOEXEC) != 0 || pipe2(ran, O_CLOEXEC) != 0)
        return std::nullopt;
    if (fork() == 0) {
        dup2(ends[0], STDIN_FILENO);
        execl((folder / "a.ies").c_str(), "cat", nullptr);
        _exit(127);
    }
    char none = 0;
    close(ran[1]);
    const bool isRun = read(ran[0], &none, 1) == 0;
    close(ran[0]);
    if (const int file = open((folder / "a.ies").c_str(), O_WRONLY | O_CLOEXEC); !isRun || file >= 0) {
        close(file);
        return std::nullopt;  // no program may run there
    }
    return Arranged{folder / "a.ies"};
}

/// The message that saving shows, "" when it shows none.
std::string messageOf(const std::string &path, const TextMaker &make, FileCalls &calls)
{
    PosixTextFiles files(calls);
    test::FakeDialogs dialogs;
    dialogs.answers = {Answer::Cancel};
    saveFile(path, make, "\r\n", files, dialogs);
    return dialogs.transcript;
}

std::optional<Arranged> noFileNumber(const fs::path &folder)
{
    FileCalls calls;
    messageOf(folder / "gone/a.ies", makeSmallText,
              calls);  // sanitizers look at each type once, and need numbers for it
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    const auto limitTo = [before](rlim_t most) {
        const rlimit limit{most, before.rlim_max};
        return setrlimit(RLIMIT_NOFILE, &limit) == 0;
    };
    return Arranged{folder / "a.ies", makeSmallText, [limitTo] { return limitTo(0); },
                    [limitTo, before] { limitTo(before.rlim_cur); }};
}

std::optional<Arranged> someoneElsesFile(const fs::path &folder)
{
    chmod(folder.c_str(), 0777);
    chmod((folder / "a.ies").c_str(), getuid() == 0 ? 0644 : 0466);
    return Arranged{folder / "a.ies", makeSmallText,
                    [] { return getuid() != 0 || (setgid(65534) == 0 && setuid(65534) == 0); }};
}

/// A file system that a program of its own brings, and the program has died.
std::optional<Arranged> deadFileSystem(const fs::path &folder)
{
    const auto strike = [folder] {
        const int program = open("/dev/fuse", O_RDWR | O_CLOEXEC);
        const std::string options = "fd=" + std::to_string(program) + ",rootmode=40000,user_id=0,group_id=0";
        const bool isMounted =
            program >= 0 && test::haveOwnMounts() && mount("dead", folder.c_str(), "fuse", 0, options.c_str()) == 0;
        close(program);
        return isMounted;
    };
    return Arranged{folder / "a.ies", makeSmallText, strike, [folder] { umount2(folder.c_str(), MNT_DETACH); }};
}

std::optional<Arranged> fileSystem(const fs::path &folder, const std::string &options)
{
    if (!test::haveOwnMounts() || !test::mountMemory(folder, options))
        return std::nullopt;
    std::ofstream(folder / "a.ies", std::ios::binary) << kOld;
    return Arranged{folder / "a.ies"};
}

std::optional<Arranged> fullFileSystem(const fs::path &folder)
{
    return fileSystem(folder, "size=4k");
}

std::optional<Arranged> fileSystemWithoutNames(const fs::path &folder)
{
    return fileSystem(folder, "nr_inodes=2");
}

std::optional<Arranged> readOnlyFileSystem(const fs::path &folder)
{
    std::optional<Arranged> arranged = fileSystem(folder, "");
    if (!arranged || mount("none", folder.c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) != 0)
        return std::nullopt;
    return arranged;
}

/// A terminal whose other side has gone for good, under a name that stays.
std::optional<Arranged> deadDevice(const fs::path &folder)
{
    int user = -1;
    int device = -1;
    char name[64] = {};
    std::ofstream(folder / "device");
    if (openpty(&user, &device, name, nullptr, nullptr) != 0 || !test::haveOwnMounts() ||
        mount(name, (folder / "device").c_str(), nullptr, MS_BIND, nullptr) != 0)
        return std::nullopt;
    close(device);
    close(user);
    return Arranged{folder / "device"};
}

/// The eighteen texts of a failed save, each under a real fault where this machine lets one be arranged, and under one
/// of the system calls: one message, the old file, and nothing beside it.
class SavingErrors : public test::FilesTest, public testing::WithParamInterface<SavingError> {
protected:
    SavingErrors() { make("a.ies", std::string(kOld)); }

    /// What is wrong after saving, "" when all is as it should be.
    std::string wrongWith(const Arranged &arranged, FileCalls &calls) const
    {
        const std::set<std::string> names = namesIn(folder.path());
        const std::string old = test::contentOf(folder.file("a.ies"));
        if (!arranged.strike())
            return kNotHere;
        const std::string message = messageOf(arranged.path, arranged.make, calls);
        arranged.undo();
        const std::string expected =
            "[Error saving " + arranged.path + "|1] " + GetParam().text + "\r\nOK to Retry, Cancel to quit.\n";
        return (message == expected ? "" : "it says: " + message) +
               (test::contentOf(folder.file("a.ies")) == old ? "" : "the old file is another; ") +
               (namesIn(folder.path()) == names ? "" : "something lies beside the file");
    }

    std::string wrongUnderTheRealFault() const
    {
        FileCalls calls;
        const std::optional<Arranged> arranged = GetParam().arrange(folder.path());
        return arranged ? wrongWith(*arranged, calls) : kNotHere;
    }

    std::string wrongUnderAFailingCall() const
    {
        test::ScriptedCalls calls(GetParam().call, {GetParam().error});
        return wrongWith({folder.file("a.ies")}, calls);
    }

    /// What a routine answers in a process that may be limited and have mounts of its own.
    static std::string inAProcess(const std::function<std::string()> &body)
    {
        int ends[2];
        EXPECT_EQ(pipe2(ends, O_CLOEXEC), 0);
        const int status = inAChild([&] {
            const std::string text = body();
            return write(ends[1], text.data(), text.size()) == static_cast<ssize_t>(text.size()) ? 0 : 1;
        });
        EXPECT_EQ(status, 0);
        char text[4096];
        fcntl(ends[0], F_SETFL, O_NONBLOCK);
        const ssize_t length = read(ends[0], text, sizeof text);
        close(ends[0]);
        close(ends[1]);
        return {text, text + std::max<ssize_t>(length, 0)};
    }

    static constexpr const char *kNotHere = "(not on this machine)";
};

INSTANTIATE_TEST_SUITE_P(
    Texts, SavingErrors,
    testing::ValuesIn(std::vector<SavingError>{
        {"lineTooLong", "Calculation Overflow", "", 0, made(makeTooLongALine)},
        {"divisionByZero", "Division by Zero", "", 0, made(divideByZero)},
        {"nameTooLong", "Bad file name or number", "open", ENAMETOOLONG, savedAs(std::string(256, 'n'))},
        {"folder", "Bad file name or number", "open", EISDIR, savedAs("")},
        {"goneFromItsServer", "File not found. funny, I've got it!", "open", ESTALE},
        {"programThatRuns", "File is already open. Please close it in another application.", "open", ETXTBSY,
         programThatRuns},
        {"deadDevice",
         "The device selected has encountered an error while saving this file. Try again, or choose another disk.",
         "fsync", EIO, deadDevice},
        {"takenNames", "File already exists. Are you sure you want to save?", "create", EEXIST, takenNames},
        {"fullFileSystem", "Disk is full. Free up space on this disk or choose another.", "write", ENOSPC,
         fullFileSystem},
        {"fileSystemWithoutNames", "Disk is full. Free up space on this disk or choose another.", "create", ENOSPC,
         fileSystemWithoutNames},
        {"quota", "Disk is full. Free up space on this disk or choose another.", "write", EDQUOT},
        {"noFileNumber", "Too many files in this directory (Old FAT filesystem?).", "create", EMFILE, noFileNumber},
        {"pipeThatNobodyReads", "Device unavailable. Insert the disk and try again.", "open", ENXIO,
         pipeThatNobodyReads},
        {"someoneElsesFile",
         "Permission denied. Please be sure you have ownership of and that the file is not Read-Only.", "open", EACCES,
         someoneElsesFile},
        {"noDiskInTheDrive", "Disk not ready. Please try again.", "open", ENOMEDIUM},
        {"readOnlyFileSystem", "File is Read-Only. Cannot save.", "open", EROFS, readOnlyFileSystem},
        {"missingFolder", "Path not found. Please be sure to select a valid mounted device", "create", ENOENT,
         savedAs("gone/a.ies")},
        {"deadFileSystem", "An intermediate component of the filesystem has failed.", "open", ENOTCONN, deadFileSystem},
        {"noMemory", "Out of memory (RAM). Please close some other applications and try again.", "write", ENOMEM,
         made(makeWithoutMemory)},
        {"handleThatIsNone", "Invalid file handle or insufficient disk space to save file.", "write", EBADF},
        {"linkInACircle", "Windows Error 51 Too many levels of symbolic links PenwrightPE", "open", ELOOP,
         linkInACircle},
    }),
    [](const auto &row) { return row.param.name; });

TEST_P(SavingErrors, leaveTheOldFileAndNothingElse)
{
    ASSERT_TRUE(GetParam().arrange || !GetParam().call.empty());
    if (!GetParam().call.empty())
        EXPECT_EQ(wrongUnderAFailingCall(), "");
    const std::string wrong = GetParam().arrange ? inAProcess([this] { return wrongUnderTheRealFault(); }) : "";
    if (wrong == kNotHere)
        std::cout << "The real fault cannot be had on this machine; the failing system call stood for it.\n";
    else
        EXPECT_EQ(wrong, "");
}

}  // namespace
}  // namespace penwright
