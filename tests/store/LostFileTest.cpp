#include <fstream>

#include "store/StoreTest.h"

namespace penwright::test {
namespace {

/// The store's files go away or change under a running tool: it may fail, with an error that names the file, but it
/// goes on running.
class LostFileTest : public StoreTest {
protected:
    LostFileTest() { write("a", "1"); }

    /// Uses the store in every way; returns the first description that does not name the file.
    std::string useStore()
    {
        std::string odd;
        const auto look = [&](const std::string &error) {
            if (error != "no error" && error.find("\n" + path + ": ") == std::string::npos)
                odd = error;
        };
        store().setBusyWait([] { return false; });
        look(errorOf([this] { write("a", std::string(100'000, 'x')); }));
        look(errorOf([this] { read("a"); }));
        look(errorOf([this] { store().readAll("Lumentor_PE", "Sec"); }));
        look(errorOf([this] { store().transact([this] { write("b", "2"); }); }));
        look(errorOf([this] { store().removeSection("Lumentor_PE", "Sec"); }));
        look(errorOf([this] {
            peek("a");
            pop("a");
        }));
        return odd;
    }

    const std::filesystem::path m_place = std::filesystem::path(path).parent_path();
};

TEST_F(LostFileTest, databaseDeleted)
{
    std::filesystem::remove(path);
    EXPECT_EQ(useStore(), "");
}

TEST_F(LostFileTest, folderDeletedAndMadeAnew)
{
    std::filesystem::remove_all(m_place);
    EXPECT_EQ(useStore(), "");
    SqliteSettingsStore another(path);
    another.write("Lumentor_PE", "Sec", "a", "new");
    EXPECT_EQ(useStore(), "");
    closeStore();
    EXPECT_EQ(another.read("Lumentor_PE", "Sec", "a"), "new");
}

TEST_F(LostFileTest, databaseReplacedByRubbish)
{
    std::filesystem::remove(path);
    std::ofstream(path) << std::string(10'000, 'x');
    EXPECT_EQ(useStore(), "");
    EXPECT_TRUE(contentOf(path) == std::string(10'000, 'x')) << "what is no store is not written to";
}

TEST_F(LostFileTest, databaseOverwrittenInPlace)
{
    std::ofstream(path) << std::string(10'000, 'x');
    EXPECT_EQ(useStore(), "");
}

TEST_F(LostFileTest, databaseEmptiedInPlace)
{
    std::ofstream(path, std::ios::trunc);
    EXPECT_EQ(useStore(), "");
}

TEST_F(LostFileTest, tableDropped)
{
    Peer(path).sql("DROP TABLE setting");
    EXPECT_EQ(errorOf([this] { read("a"); }), "13\n" + path + ": no such table: setting");
    EXPECT_EQ(peek("a"), std::nullopt);
    EXPECT_EQ(useStore(), "");
}

}  // namespace
}  // namespace penwright::test
