#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "support/TempFolder.h"

namespace {

namespace fs = std::filesystem;
using Room = std::string;
using penwright::test::contentOf;

const fs::path kSource = SOURCE_FOLDER;

/// The rows of the table in docs/architecture.md, in their order: the floors of the house, the highest first. A row's
/// room may include the rooms that it names, and each of those stands below it.
struct Floor {
    Room room;
    std::set<Room> mayInclude;
};

/// The rooms whose files include nothing but the standard library and each other.
const std::set<Room> kRules{"pages", "wizard", "draft",    "review", "plot",
                            "grid",  "help",   "hostlink", "core",   "platform"};

/// The rooms that wrap a library or the system and know nothing of the toolkit.
const std::set<Room> kWithoutToolkit{"hostlib", "help/chm", "platform/posix", "platform/sqlite"};

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

/// The room of a file by the names of the page: a folder that holds both kinds of code is two rooms, "wizard" for its
/// rules and "wizard windows".
Room roomOf(const fs::path &file)
{
    const std::string folder = fs::relative(file.parent_path(), kSource).generic_string();
    if (folder.rfind("hostlib", 0) == 0)
        return "hostlib";
    const std::string room = folder.rfind("pages/", 0) == 0 ? "pages" : folder;
    const bool hasBoth = room == "pages" || room == "wizard" || room == "plot" || room == "grid";
    return hasBoth && isWindow(file) ? room + " windows" : room;
}

std::vector<std::string> parted(const std::string &text, const std::string &separator)
{
    std::vector<std::string> parts;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(separator, begin), text.size());
        parts.push_back(text.substr(begin, end - begin));
        begin = end + separator.size();
    }
    return parts;
}

std::vector<Floor> floorsOnThePage()
{
    std::istringstream page(contentOf(kSource.parent_path() / "docs" / "architecture.md"));
    std::vector<Floor> floors;
    bool isInTable = false;
    for (std::string line; std::getline(page, line);) {
        if (isInTable && line.rfind("| ", 0) == 0) {
            const std::vector<std::string> cells = parted(line.substr(2, line.size() - 4), " | ");
            const std::vector<std::string> rooms = parted(cells.at(1), ", ");
            floors.push_back({cells[0], {rooms.begin(), rooms.end()}});
        }
        isInTable = line.rfind("|---", 0) == 0 || (isInTable && line.rfind("| ", 0) == 0);
    }
    return floors;
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

/// The lines that a file includes from this tree, generated ones apart.
std::vector<std::string> ownIncludesOf(const fs::path &file)
{
    std::vector<std::string> names = includesOf(file, kOwnInclude);
    std::erase_if(names, [](const std::string &name) {
        return name.rfind("ui_", 0) == 0 || name.rfind("moc_", 0) == 0 || fs::path(name).extension() == ".moc";
    });
    return names;
}

// A header for hosts names its neighbours as hosts do.
fs::path targetOf(const std::string &name)
{
    return kSource / (name.rfind("penwright_host/", 0) == 0 ? "hostlib/include/" + name : name);
}

std::map<Room, std::set<Room>> graphOfTheTree()
{
    std::map<Room, std::set<Room>> graph;
    for (const fs::path &file : sources())
        for (const std::string &name : ownIncludesOf(file))
            if (const Room to = roomOf(targetOf(name)); to != roomOf(file))
                graph[roomOf(file)].insert(to);
    return graph;
}

TEST(IncludeTable, includesAreWrittenFromTheSourceFolder)
{
    int seen = 0;
    for (const fs::path &file : sources())
        for (const std::string &name : ownIncludesOf(file)) {
            EXPECT_TRUE(fs::exists(targetOf(name)))
                << file << " includes \"" << name << "\", which is not written from src/";
            ++seen;
        }
    EXPECT_GT(seen, 50);
}

// Each edge of the tree stands in the table, and the table has no edge that the tree lacks.
TEST(IncludeTable, pageNamesEveryEdge)
{
    std::map<Room, std::set<Room>> onThePage;
    for (const Floor &floor : floorsOnThePage())
        onThePage.emplace(floor.room, floor.mayInclude);
    EXPECT_EQ(onThePage, graphOfTheTree());
}

// So there is no arrow up and no circle.
TEST(IncludeTable, everyRoomIncludesOnlyWhatStandsBelowIt)
{
    const std::vector<Floor> floors = floorsOnThePage();
    ASSERT_GT(floors.size(), 15U);
    std::set<Room> above;
    for (const Floor &floor : floors) {
        above.insert(floor.room);
        for (const Room &to : floor.mayInclude)
            EXPECT_EQ(above.count(to), 0U) << floor.room << " includes " << to;
    }
}

TEST(IncludeTable, rulesIncludeRulesAndWindowsStayAlone)
{
    for (const auto &[from, targets] : graphOfTheTree())
        for (const Room &to : targets) {
            if (kRules.count(from) == 1)
                EXPECT_EQ(kRules.count(to), 1U) << from << " includes " << to;
            if (from.rfind("platform/", 0) == 0)
                EXPECT_EQ(to, "platform") << from << " includes " << to;
            EXPECT_NE(to, "app") << from;
            EXPECT_NE(to, "hostbench") << from;
        }
}

TEST(IncludeTable, noPageIncludesAnother)
{
    for (const fs::path &file : sources())
        for (const std::string &name : ownIncludesOf(file)) {
            const fs::path folder = fs::relative(file.parent_path(), kSource);
            if (folder.begin()->string() == "pages" && name.rfind("pages/", 0) == 0)
                EXPECT_EQ(fs::path(name).parent_path(), folder) << file << " includes " << name;
        }
}

TEST(IncludeTable, rulesIncludeOnlyTheStandardLibrary)
{
    for (const fs::path &file : sources())
        if (kRules.count(roomOf(file)) == 1)
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
                EXPECT_EQ(room, "help/chm") << file;
            if (name.rfind("xcb/", 0) == 0)
                EXPECT_TRUE(room == "platform/x11" || room == "hostbench") << file;
        }
    }
}

TEST(IncludeTable, librariesAreWrappedWithoutTheToolkit)
{
    for (const fs::path &file : sources())
        if (kWithoutToolkit.count(roomOf(file)) == 1)
            EXPECT_FALSE(includesQt(file)) << file;
}

/// A header and the .cpp of its name as one part, written from src/ without an ending.
std::string partOf(const fs::path &file)
{
    return fs::relative(file, kSource).replace_extension().generic_string();
}

// Inside a room too: of two parts of the program one at most knows the other, by whatever way round.
TEST(IncludeTable, noTwoPartsKnowEachOther)
{
    std::map<std::string, std::set<std::string>> known;
    for (const fs::path &file : sources())
        for (const std::string &name : ownIncludesOf(file))
            known[partOf(file)].insert(partOf(targetOf(name)));
    const auto whatIsReachedFrom = [&](const std::string &part) {
        std::set<std::string> reached;
        std::vector<std::string> open{part};
        while (!open.empty()) {
            const std::string next = open.back();
            open.pop_back();
            for (const std::string &to : known[next])
                if (to != next && reached.insert(to).second)
                    open.push_back(to);
        }
        return reached;
    };
    ASSERT_GT(known.size(), 100U);
    for (const fs::path &file : sources())
        EXPECT_EQ(whatIsReachedFrom(partOf(file)).count(partOf(file)), 0U) << file << " is part of a circle";
}

// The reading of rooms itself, on files whose room is beyond doubt.
TEST(IncludeTable, roomsAreToldApart)
{
    EXPECT_EQ(roomOf(kSource / "wizard/FieldCheck.h"), "wizard");
    EXPECT_EQ(roomOf(kSource / "wizard/WizardWindow.h"), "wizard windows");
    EXPECT_EQ(roomOf(kSource / "pages/luminaire/LampFields.cpp"), "pages");
    EXPECT_EQ(roomOf(kSource / "pages/luminaire/LampPage.cpp"), "pages windows");
    EXPECT_EQ(roomOf(kSource / "platform/Dialogs.h"), "platform");
    EXPECT_EQ(roomOf(kSource / "platform/qt/QtDialogs.h"), "platform/qt");
    EXPECT_EQ(roomOf(kSource / "hostlib/include/penwright_host/HostRecord.h"), "hostlib");
}

}  // namespace
