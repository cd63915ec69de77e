#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Room = std::string;

const fs::path kSource = SOURCE_FOLDER;

/// Who may include whom, by room. A folder that holds both kinds of code is two rooms: "wizard" for its rules and
/// "wizard+" for its windows. "pages/" stands for the room's own page folder.
const std::map<Room, std::set<Room>> kMayInclude{
    {"platform", {"platform"}},
    {"core", {"core", "platform"}},
    {"hostlink", {"hostlink", "core", "platform"}},
    {"wizard", {"wizard", "hostlink", "core", "platform"}},
    {"pages/", {"pages/", "wizard", "core", "platform"}},
    {"platform/chm", {"platform/chm", "platform"}},
    {"platform/posix", {"platform/posix", "platform"}},
    {"platform/sqlite", {"platform/sqlite", "platform"}},
    {"platform/qt", {"platform/qt", "platform"}},
    {"wizard+", {"wizard+", "wizard", "hostlink", "core", "platform/qt", "platform"}},
    {"pages/+", {"pages/+", "pages/", "wizard+", "wizard", "hostlink", "core", "platform/qt", "platform"}},
    {"hostbench", {"hostbench", "pages/", "wizard", "hostlink", "core", "platform/sqlite", "platform"}},
};

std::string contentOf(const fs::path &path)
{
    std::ifstream in(path);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

std::vector<std::string> includesOf(const fs::path &path, const std::regex &form)
{
    const std::string text = contentOf(path);
    std::vector<std::string> names;
    for (std::sregex_iterator it(text.begin(), text.end(), form), end; it != end; ++it)
        names.push_back((*it)[1]);
    return names;
}

const std::regex kOwnInclude("(?:^|\n)\\s*#\\s*include\\s*\"([^\"]+)\"");
const std::regex kSystemInclude("(?:^|\n)\\s*#\\s*include\\s*<([^>]+)>");

bool includesQt(const fs::path &path)
{
    const auto names = includesOf(path, kSystemInclude);
    return std::any_of(names.begin(), names.end(),
                       [](const std::string &name) { return std::regex_search(name, std::regex("^Q[A-Zt]")); });
}

/// Whether a file of a shared folder belongs to its windows: its folder lists it (or the .cpp of its name) there. A
/// header of its own is a window's when it includes Qt or a window's header.
bool isWindow(const fs::path &file)
{
    const std::string list = contentOf(file.parent_path() / "CMakeLists.txt");
    const std::regex windows("penwright_windows\\(([^)]*)\\)");
    std::smatch match;
    const std::string listed = std::regex_search(list, match, windows) ? match[1].str() : "";
    const std::string stem = file.stem().string();
    if (std::regex_search(listed, std::regex("\\s" + stem + "\\.cpp")))
        return true;
    if (std::regex_search(list, std::regex("\\s" + stem + "\\.cpp")))
        return false;
    return includesQt(file);
}

Room roomOf(const fs::path &file)
{
    const std::string folder = fs::relative(file.parent_path(), kSource).generic_string();
    if (folder.rfind("hostbench", 0) == 0)
        return "hostbench";
    if (folder == "wizard" || folder.rfind("pages/", 0) == 0)
        return folder + (isWindow(file) ? "+" : "");
    return folder;
}

/// The row of the table for a room: all page groups share one.
Room rowOf(const Room &room)
{
    if (room.rfind("pages/", 0) != 0)
        return room;
    return room.back() == '+' ? "pages/+" : "pages/";
}

bool mayInclude(const Room &from, const Room &to)
{
    if (from == "app")
        return to != "hostbench";
    const auto row = kMayInclude.find(rowOf(from));
    if (row == kMayInclude.end())
        return false;
    const auto folderOf = [](const Room &room) { return room.back() == '+' ? room.substr(0, room.size() - 1) : room; };
    if (from.rfind("pages/", 0) == 0 && to.rfind("pages/", 0) == 0 && folderOf(from) != folderOf(to))
        return false;
    return row->second.count(rowOf(to)) == 1;
}

std::vector<fs::path> sources()
{
    std::vector<fs::path> files;
    for (const auto &entry : fs::recursive_directory_iterator(kSource))
        if (entry.path().extension() == ".h" || entry.path().extension() == ".cpp")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

bool isRule(const Room &room)
{
    return room == "platform" || room == "core" || room == "hostlink" || room == "wizard" ||
           (room.rfind("pages/", 0) == 0 && room.back() != '+');
}

TEST(IncludeTable, everyIncludeOfOursIsAllowed)
{
    int seen = 0;
    for (const fs::path &file : sources()) {
        const Room from = roomOf(file);
        for (const std::string &name : includesOf(file, kOwnInclude)) {
            if (name.rfind("ui_", 0) == 0 || name.rfind("moc_", 0) == 0 || fs::path(name).extension() == ".moc")
                continue;
            const fs::path target = kSource / name;
            ASSERT_TRUE(fs::exists(target)) << file << " includes \"" << name << "\", which is not written from src/";
            EXPECT_TRUE(mayInclude(from, roomOf(target)))
                << file << " (" << from << ") includes " << name << " (" << roomOf(target) << ")";
            ++seen;
        }
    }
    EXPECT_GT(seen, 50);
}

TEST(IncludeTable, rulesIncludeOnlyTheStandardLibrary)
{
    for (const fs::path &file : sources())
        if (isRule(roomOf(file)))
            for (const std::string &name : includesOf(file, kSystemInclude))
                EXPECT_TRUE(std::regex_match(name, std::regex("[a-z_0-9]+"))) << file << " includes <" << name << ">";
}

TEST(IncludeTable, librariesAreKnownWhereTheyAreWrapped)
{
    for (const fs::path &file : sources()) {
        const Room room = roomOf(file);
        for (const std::string &name : includesOf(file, kSystemInclude)) {
            if (name.find("sqlite3") != std::string::npos)
                EXPECT_EQ(room, "platform/sqlite") << file;
            if (name.find("mspack") != std::string::npos)
                EXPECT_EQ(room, "platform/chm") << file;
            if (name.rfind("xcb/", 0) == 0)
                EXPECT_TRUE(room == "platform/qt" || room == "hostbench") << file;
        }
    }
}

// The reader of help files is no rule, for it wraps a library, and yet knows nothing of the toolkit.
TEST(IncludeTable, helpFilesAreReadWithoutTheToolkit)
{
    for (const fs::path &file : sources())
        if (roomOf(file) == "platform/chm" || roomOf(file) == "platform/posix" || roomOf(file) == "platform/sqlite")
            EXPECT_FALSE(includesQt(file)) << file;
}

TEST(IncludeTable, nobodyIncludesTheApp)
{
    for (const fs::path &file : sources())
        if (roomOf(file) != "app")
            for (const std::string &name : includesOf(file, kOwnInclude))
                EXPECT_NE(name.substr(0, 4), "app/") << file;
}

/// A room as docs/architecture.md names it.
std::string nameOnThePage(const Room &room)
{
    const Room row = room == "app" ? room : rowOf(room);
    if (row == "pages/")
        return "pages";
    if (row == "pages/+")
        return "pages windows";
    return row.back() == '+' ? row.substr(0, row.size() - 1) + " windows" : row;
}

/// Every edge between two rooms, as a row of the table on that page.
std::set<std::string> rowsOfTheGraph()
{
    std::map<std::string, std::set<std::string>> edges;
    for (const fs::path &file : sources()) {
        const std::string from = nameOnThePage(roomOf(file));
        for (const std::string &name : includesOf(file, kOwnInclude))
            if (fs::exists(kSource / name) && nameOnThePage(roomOf(kSource / name)) != from)
                edges[from].insert(nameOnThePage(roomOf(kSource / name)));
    }
    std::set<std::string> rows;
    for (const auto &[from, targets] : edges) {
        std::string row = "| " + from + " | ";
        for (const std::string &to : targets)
            row += (to == *targets.begin() ? "" : ", ") + to;
        rows.insert(row + " |");
    }
    return rows;
}

TEST(IncludeTable, architecturePageNamesEveryEdge)
{
    std::istringstream page(contentOf(kSource.parent_path() / "docs" / "architecture.md"));
    std::set<std::string> rows;
    bool isInTable = false;
    for (std::string line; std::getline(page, line);) {
        if (isInTable && line.rfind("| ", 0) == 0)
            rows.insert(line);
        isInTable = line.rfind("|---", 0) == 0 || (isInTable && line.rfind("| ", 0) == 0);
    }
    EXPECT_EQ(rows, rowsOfTheGraph());
}

// The table itself, on pairs that must come out one way or the other whatever the tree holds.
TEST(IncludeTable, tableTellsNeighboursApart)
{
    EXPECT_TRUE(mayInclude("pages/luminaire+", "wizard+"));
    EXPECT_TRUE(mayInclude("pages/luminaire+", "pages/luminaire"));
    EXPECT_FALSE(mayInclude("pages/luminaire+", "pages/candela"));
    EXPECT_FALSE(mayInclude("pages/luminaire", "pages/luminaire+"));
    EXPECT_FALSE(mayInclude("wizard", "wizard+"));
    EXPECT_FALSE(mayInclude("wizard+", "pages/luminaire+"));
    EXPECT_FALSE(mayInclude("platform/qt", "core"));
    EXPECT_FALSE(mayInclude("platform/sqlite", "platform/qt"));
    EXPECT_FALSE(mayInclude("platform/qt", "platform/chm"));
    EXPECT_FALSE(mayInclude("hostbench", "platform/qt"));
    EXPECT_FALSE(mayInclude("hostbench", "app"));
    EXPECT_TRUE(mayInclude("hostbench", "pages/candela"));
    EXPECT_FALSE(mayInclude("hostbench", "pages/candela+"));
    EXPECT_FALSE(mayInclude("wizard+", "pages/candela"));
    EXPECT_FALSE(mayInclude("a folder nobody knows", "core"));
}

}  // namespace
