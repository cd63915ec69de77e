#include <sys/stat.h>

#include <optional>

#include "store/DraftTest.h"
#include "store/InjectedCall.h"
#include "support/OwnMounts.h"

namespace penwright::test {
namespace {

ssize_t refusedWrite(int, const void *, size_t, off_t)
{
    errno = ENOSPC;
    return -1;
}

/// A file system in memory for one folder, in a process of its own; where this machine has none to give, writes fail as
/// they do on a full one from `fill` on.
class SmallDisk {
public:
    explicit SmallDisk(const std::string &folder)
        : m_folder(folder), m_isReal(haveOwnMounts() && mountMemory(folder, "size=256k,mode=700"))
    {
        if (!m_isReal)
            std::cerr << "No file system can be mounted on this machine; failing writes stand for a full one.\n";
    }

    bool isReal() const { return m_isReal; }

    void fill()
    {
        if (m_isReal)
            return;
        m_first.emplace("pwrite", &refusedWrite);
        m_second.emplace("pwrite64", &refusedWrite);
    }

    void makeRoom()
    {
        m_second.reset();
        m_first.reset();
        if (m_isReal)
            mount("none", m_folder.c_str(), nullptr, MS_REMOUNT, "size=8m");
    }

private:
    std::string m_folder;
    bool m_isReal;
    std::optional<InjectedCall> m_first;
    std::optional<InjectedCall> m_second;
};

const std::string kTooMuch(1'000'000, '7');

class MountedStoreTest : public StoreTest {
protected:
    MountedStoreTest() { std::filesystem::create_directories(m_place); }

    const std::filesystem::path m_place = std::filesystem::path(path).parent_path();
};

TEST_F(MountedStoreTest, fullFileSystemIsAnErrorAndTheStoreStaysWhole)
{
    EXPECT_EQ(inChild([this] {
                  SmallDisk disk(m_place);
                  write("a", "before");
                  disk.fill();
                  std::string told = errorOf([this] { write("a", kTooMuch); });
                  told += "\n" + read("a");
                  disk.makeRoom();
                  write("a", kTooMuch);
                  told += read("a") == kTooMuch ? "\nwritten" : "\nlost";
                  closeStore();
                  return told;
              }),
              "61\n" + path + ": database or disk is full\nbefore\nwritten");
}

/// What a routine returns while a folder in another can only be read. Where it cannot be mounted so, modes of both say
/// the same to an ordinary user.
std::string whileReadOnly(const std::filesystem::path &top, const std::string &folder,
                          const std::function<std::string()> &body)
{
    const std::string text = inChild([&]() -> std::string {
        const bool isReal = haveOwnMounts() && mount(folder.c_str(), folder.c_str(), nullptr, MS_BIND, nullptr) == 0 &&
                            mount("none", folder.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) == 0;
        return isReal ? body() : "(no mount)";
    });
    if (text != "(no mount)")
        return text;
    std::cerr << "No file system can be mounted on this machine; modes stand for one that is read-only.\n";
    const auto setModes = [&folder, &top](mode_t ofFiles, mode_t ofFolders) {
        for (const auto &entry : std::filesystem::directory_iterator(folder))
            chmod(entry.path().c_str(), ofFiles);
        for (std::filesystem::path up = folder; up != top.parent_path(); up = up.parent_path())
            chmod(up.c_str(), ofFolders);
    };
    setModes(0444, 0555);
    const std::string refused = inOrdinaryChild(body);
    setModes(0600, 0700);
    return refused;
}

TEST_F(MountedStoreTest, readOnlyFileSystemIsRefusedInOneSentence)
{
    write("a", "before");
    closeStore();
    EXPECT_EQ(whileReadOnly(folder.path(), m_place, [this] { return errorOf([this] { open(); }); }),
              "75\n" + path + ": the file is read-only");
}

class MountedDraftTest : public DraftTest {
protected:
    MountedDraftTest() { std::filesystem::create_directories(drafts); }
};

TEST_F(MountedDraftTest, fullFileSystemIsAnErrorAndTheDraftStaysWhatItWas)
{
    EXPECT_EQ(inChild([this] {
                  SmallDisk disk(drafts);
                  auto run = std::make_unique<SqliteDraftStore>(drafts);
                  write(*run, "first");
                  write(*run, "before");
                  disk.fill();
                  // For much, failing calls would hit the map of the log first, which a real disk has room for.
                  const std::vector<DraftText> large{{4, "cdaGridCd", disk.isReal() ? kTooMuch : "7"}};
                  std::string told = errorOf([&] { write(*run, "after", large); }).substr(0, 3);
                  disk.makeRoom();
                  run = std::make_unique<SqliteDraftStore>(drafts);
                  told += offered(run->look());
                  write(*run, "there is room again", {{4, "cdaGridCd", kTooMuch}});
                  run.reset();
                  return told + offered();
              }),
              "61\nbefore\nthere is room again\nbefore\n");
}

TEST_F(MountedDraftTest, readOnlyFileSystemIsAnErrorOnlyForWhoWrites)
{
    leave("sound");
    const std::string told = whileReadOnly(folder.path(), drafts, [this] {
        SqliteDraftStore run(drafts);
        const DraftsFound found = run.look();
        return std::to_string(found.putAside) + offered(found) + errorOf([&] { write(run, "any"); }).substr(0, 2);
    });
    EXPECT_TRUE(told == "075" || told == "070") << told << ": what cannot be locked is neither offered nor put aside";
    EXPECT_EQ(offered(), "sound\n");
}

}  // namespace
}  // namespace penwright::test
