#include "grid/TableText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>

#include "core/TextBytes.h"
#include "support/Growth.h"
#include "support/TempFolder.h"

namespace penwright {
namespace {

const std::string kTable = "Gamma\tC0\tC90\n0\t2480\t2480\n45\t1500\t1600\n90\t0\t10\n";

TableContent contentOf(std::string_view text, const TableReading &reading)
{
    const auto table = readTable(text, reading);
    if (const TableFault *fault = std::get_if<TableFault>(&table)) {
        ADD_FAILURE() << fault->text;
        return {};
    }
    return std::get<TableContent>(table);
}

TableFault faultOf(std::string_view text, const TableReading &reading)
{
    const auto table = readTable(text, reading);
    const TableFault *fault = std::get_if<TableFault>(&table);
    return fault != nullptr ? *fault : TableFault{"read", 0, 0};
}

std::string square(int side)
{
    std::string text;
    for (int row = 0; row < side; ++row)
        for (int column = 0; column < side; ++column)
            text += std::to_string(100 + (row * column) % 997) + (column + 1 < side ? ".5\t" : "\n");
    return text;
}

TEST(TableText, isTurnedAsTheReadingSays)
{
    TableReading reading = guessTable(kTable);
    const TableContent down = contentOf(kTable, reading);
    EXPECT_EQ(down.vertical, (OneBased<double>{0, 45, 90}));
    EXPECT_EQ(down.values(2, 3), 10);
    reading.verticalDown = false;
    const TableContent across = contentOf(kTable, reading);
    EXPECT_EQ(across.vertical, (OneBased<double>{0, 90}));
    EXPECT_EQ(across.horizontal, (OneBased<double>{0, 45, 90}));
    EXPECT_EQ(across.values(3, 2), 10);
}

TEST(TableText, hasNoOneValueAtAPoleWithACellThatIsNoNumber)
{
    const std::string lines = "\t0\t45\t90\t135\n90\t5\t6\t7\t8\n135\t3\t4\t5\t6\n";
    EXPECT_TRUE(guessTable(lines + "180\t1\t1\t1\t1\n").verticalDown);
    EXPECT_FALSE(guessTable(lines + "180\t1\tx\t1\t1\n").verticalDown);
}

TEST(TableText, isReadByOtherChoicesThanTheGuess)
{
    TableReading reading;
    const TableContent all = contentOf("0\t45\n0\t2480\n", reading);
    EXPECT_EQ(all.values.columns(), 2);
    EXPECT_TRUE(all.vertical.empty());
    reading.thousandsSign = '.';
    reading.decimalSign = ',';
    EXPECT_EQ(contentOf("2.480\t998\n", reading).values(1, 1), 2480);
    reading.thousandsSign = kNoSign;
    EXPECT_EQ(faultOf("2.480\t998\n", reading).text, "Line 1, cell 1: \"2.480\" is no number.");
    EXPECT_EQ(faultOf("2.480\t2.490\n", reading).text,
              "No line of numbers was found; a table has one for each angle. Line 1, cell 1: \"2.480\" is no number.");
    EXPECT_EQ(faultOf("998\t2.480\n", reading).text, "Line 1, cell 2: \"2.480\" is no number.");
}

TEST(TableText, faultNamesItsPlace)
{
    const TableFault fault = faultOf(kTable + "x\ty\tz\n100\t1\t2\n", guessTable(kTable));
    EXPECT_EQ(fault.line, 5U);
    EXPECT_EQ(fault.cell, 1U);
}

TEST(TableText, skipsAnyNumberOfLines)
{
    TableReading reading = guessTable(kTable);
    reading.linesToSkip = 1000;
    EXPECT_EQ(faultOf(kTable, reading).line, 0U);
    reading.linesToSkip = -1;
    EXPECT_EQ(contentOf(kTable, reading).values.columns(), 3);
}

TEST(TableText, tellsWhatDoesNotFit)
{
    const TableContent table = contentOf(kTable, guessTable(kTable));
    EXPECT_FALSE(tableMisfit(table, 3, 2));
    EXPECT_EQ(tableMisfit(table, 2, 3), "3 x 2 values read; 2 x 3 needed (vertical x horizontal angles).");
}

TEST(TableText, aMillionValuesAreRead)
{
    const std::string text = square(1000);
    const TableReading reading = guessTable(text);
    const TableContent table = contentOf(text, reading);
    EXPECT_EQ(table.values.rows(), 1000);
    EXPECT_EQ(table.values(3, 5), 108.5);
}

TEST(TableText, numberedLineThatLacksAValueIsRefusedFarFromTheGuess)
{
    std::string text = "No. Gamma C0 C90\n";
    for (int line = 1; line <= 400; ++line)
        text += std::to_string(line) + " " + std::to_string(line / 4) + "." + std::to_string(line % 4 * 25) + " 10" +
                (line == 350 ? "\n" : " 11\n");
    const auto table = readTable(text, guessTable(text));
    ASSERT_TRUE(std::holds_alternative<TableFault>(table));
    EXPECT_EQ(std::get<TableFault>(table).text,
              "Line 351: 2 cells where the lines above have 3. Read before it: 349 lines of 2 values.");
}

TEST(TableText, oneLineHasNoMoreValuesThanThereAreAngles)
{
    const std::string oneLine = [] {
        std::string line = square(200);
        std::replace(line.begin(), line.end(), '\n', '\t');
        return line;
    }();
    EXPECT_EQ(faultOf(oneLine, guessTable(oneLine)).text,
              "Line 1: a table has 1 to 32767 lines and columns of values.");
}

TEST(TableText, hasNoMoreLinesThanThereAreAngles)
{
    std::string text;
    for (int line = 0; line < 32768; ++line)
        text += "7\n";
    EXPECT_EQ(
        faultOf(text, TableReading()).text,
        "Line 32768: a table has 1 to 32767 lines and columns of values. Read before it: 32767 lines of 1 value.");
}

TEST(TableText, aTextWithoutATableHasNoUnit)
{
    EXPECT_EQ(guessTable("Intensities in cd/klm\nto follow\n"), TableReading());
}

TEST(TableText, readingCanBeStopped)
{
    const std::string text = square(600);
    int asked = 0;
    double last = 0;
    const auto goOn = [&](double part) {
        EXPECT_GT(part, last);
        last = part;
        return ++asked < 2;
    };
    const auto table = readTable(text, guessTable(text), goOn);
    ASSERT_TRUE(std::holds_alternative<TableFault>(table));
    EXPECT_EQ(std::get<TableFault>(table).text, "");
    EXPECT_EQ(asked, 2);
}

TEST(TableText, takesTimeInProportion)
{
    const auto read = [](std::string_view text) {
        for (const TableSeparator separator : {TableSeparator::Tab, TableSeparator::Comma, TableSeparator::Blanks}) {
            TableReading reading;
            reading.separator = separator;
            readTable(text, reading);
        }
    };
    for (const char *part :
         {"1,2\t3 4\n", "\"x\"\"", "\"", "\"\",", ",,,,,,,,", "a b\n", "\n", "     \t", "\r\"a\n", "1 cd "})
        EXPECT_LT(test::growth(part, 500, read), test::kMostGrowth) << part;
}

TEST(TableText, aGuessTakesTheSameTimeForAnyLength)
{
    const auto guess = [](std::string_view text) { guessTable(text); };
    for (const char *part : {"1,2\t3 4\n", "1 ", "\"x\"\"", "a1.234\n"}) {
        const double shorter = test::secondsFor(part, 10'000, guess);
        EXPECT_LT(test::secondsFor(part, 100'000, guess), 3 * shorter + 0.01) << part;
    }
}

/// The tables of the tests with bytes changed, cut, doubled and put in, the same for the same seed.
TEST(TableText, damagedTablesAreReadOrRefused)
{
    std::vector<std::string> files;
    for (const auto &entry : std::filesystem::directory_iterator(TABLES_FOLDER))
        files.push_back(test::contentOf(entry.path()).substr(0, 400));
    std::sort(files.begin(), files.end());
    std::mt19937 random(13);
    const auto below = [&random](std::size_t limit) { return random() % std::max<std::size_t>(limit, 1); };
    static constexpr std::string_view kWords[]{"\t", ";", ",",        ".",     "\n",      "\"",
                                               "-",  "C", "\xC2\xB0", "1e400", "\xFF\xFE"};
    for (int i = 0; i < 600; ++i) {
        std::string file = files[below(files.size())] + " ";
        for (std::size_t times = 1 + below(4); times > 0; --times) {
            const std::size_t place = below(file.size());
            if (below(2) == 0)
                file.replace(place, below(3), kWords[below(std::size(kWords))]);
            else
                file.insert(below(file.size()), file.substr(place, below(30)));
        }
        const std::string text = utf8Text(file);
        const auto table = readTable(text, guessTable(text));
        if (const TableFault *fault = std::get_if<TableFault>(&table)) {
            ASSERT_TRUE(fault->text.ends_with('.')) << file;
            continue;
        }
        const TableContent &content = std::get<TableContent>(table);
        ASSERT_GT(content.values.rows() * content.values.columns(), 0) << file;
        ASSERT_TRUE(content.vertical.empty() || content.vertical.size() == content.values.columns()) << file;
        ASSERT_TRUE(content.horizontal.empty() || content.horizontal.size() == content.values.rows()) << file;
    }
}

}  // namespace
}  // namespace penwright
