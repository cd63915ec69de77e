// A host as another program sees it: it speaks plain SQL to the shared store and knows nothing of the tool's own code.
// Reads one command a line:
//   sql STATEMENTS        runs them; answers with the rows, columns joined by "|", then "ok" or "error: " and why
//   watch                 reads record 1 until its file name is "last"; answers "whole N half M"
//   store COUNT           writes record 1 COUNT times, each time as a whole, the last one named "last"; answers "ok"
//   flood NAME COUNT      writes c1, c2, ... every millisecond; answers which were overwritten before they were taken
//   polite NAME COUNT     the same, each only when the one before has been taken; answers "ok"
//   take NAME             waits for a command, empties it and answers with it
#include <sqlite3.h>

#include <chrono>
#include <iostream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

using Row = std::vector<std::string>;

constexpr const char *kWhere = " WHERE application = 'Lumentor_PE' AND section = 'Sec' ";

class Database {
public:
    explicit Database(const char *path)
    {
        if (sqlite3_open(path, &m_database) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(m_database));
        sqlite3_busy_timeout(m_database, 20000);
    }
    ~Database() { sqlite3_close(m_database); }
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    std::vector<Row> run(const std::string &sql)
    {
        std::vector<Row> rows;
        const auto keep = [](void *into, int columns, char **values, char **) {
            Row row;
            for (int i = 0; i < columns; ++i)
                row.emplace_back(values[i] ? values[i] : "(null)");
            static_cast<std::vector<Row> *>(into)->push_back(row);
            return 0;
        };
        if (sqlite3_exec(m_database, sql.c_str(), keep, &rows, nullptr) != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(m_database));
        return rows;
    }

    std::string value(const std::string &name)
    {
        const auto rows = run("SELECT data FROM setting" + std::string(kWhere) + "AND name = '" + name + "'");
        return rows.empty() ? "" : rows[0][0];
    }

    void put(const std::string &name, const std::string &data)
    {
        run("INSERT INTO setting (application, section, name, data) VALUES ('Lumentor_PE', 'Sec', '" + name + "', '" +
            data + "') ON CONFLICT (application, section, name) DO UPDATE SET data = excluded.data");
    }

private:
    sqlite3 *m_database = nullptr;
};

/// Whether five values that every record carries its number in carry the same one.
bool isWhole(std::map<std::string, std::string> &values)
{
    const std::string number = values["OptionalData1"];
    const std::string other = values["OtherData1"];
    return values["PictureFilename1"] == number && other.substr(0, other.find(',')) == number &&
           values["Candela1"] == number && (values["Filename1"] == number || values["Filename1"] == "last");
}

std::string watch(Database &database)
{
    int whole = 0, half = 0;
    for (;;) {
        std::map<std::string, std::string> values;
        for (const Row &row : database.run("SELECT name, data FROM setting" + std::string(kWhere)))
            values[row[0]] = row[1];
        if (values["Filename1"].empty())
            continue;
        ++(isWhole(values) ? whole : half);
        if (values["Filename1"] == "last")
            return "whole " + std::to_string(whole) + " half " + std::to_string(half);
    }
}

std::string store(Database &database, int count)
{
    for (int i = 1; i <= count; ++i) {
        const std::string number = std::to_string(i);
        database.run("BEGIN IMMEDIATE");
        database.put("Filename1", i == count ? "last" : number);
        database.put("OtherData1", number + ",1,1,1,1,0,0,0,1,1");
        database.put("HorAngles1", "1,0");
        database.put("VertAngles1", "1,0");
        database.put("Candela1", number);
        database.put("OptionalData1", number);
        database.put("PictureFilename1", number);
        database.run("COMMIT");
    }
    return "ok";
}

std::string flood(Database &database, const std::string &name, int count)
{
    std::string overwritten = "overwritten";
    for (int i = 1; i <= count; ++i) {
        database.run("BEGIN IMMEDIATE");
        const std::string before = database.value(name);
        database.put(name, "c" + std::to_string(i));
        database.run("COMMIT");
        if (!before.empty())
            overwritten += " " + before;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return overwritten;
}

std::string polite(Database &database, const std::string &name, int count)
{
    for (int i = 1; i <= count;) {
        database.run("BEGIN IMMEDIATE");
        if (database.value(name).empty())
            database.put(name, "c" + std::to_string(i++));
        database.run("COMMIT");
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return "ok";
}

std::string take(Database &database, const std::string &name)
{
    for (;;) {
        const std::string data = database.value(name);
        if (!data.empty()) {
            database.put(name, "");
            return data;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

std::string answer(Database &database, const std::string &line)
{
    std::istringstream words(line);
    std::string verb, name;
    int count = 0;
    words >> verb;
    if (verb == "sql") {
        std::string text;
        for (const Row &row : database.run(line.substr(4))) {
            for (std::size_t i = 0; i < row.size(); ++i)
                text += (i > 0 ? "|" : "") + row[i];
            text += "\n";
        }
        return text + "ok";
    }
    if (verb == "watch")
        return watch(database);
    if (verb == "store" && words >> count)
        return store(database, count);
    if (verb == "flood" && words >> name >> count)
        return flood(database, name, count);
    if (verb == "polite" && words >> name >> count)
        return polite(database, name, count);
    if (verb == "take" && words >> name)
        return take(database, name);
    return "error: what is " + line;
}

}  // namespace

int main(int argc, char **argv)
{
    if (argc != 2)
        return 2;
    Database database(argv[1]);
    for (std::string line; std::getline(std::cin, line);) {
        try {
            std::cout << answer(database, line) << std::endl;
        } catch (const std::runtime_error &failure) {
            std::cout << "error: " << failure.what() << std::endl;
        }
    }
    return 0;
}
