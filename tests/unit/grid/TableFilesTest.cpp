#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>

#include "core/NumberText.h"
#include "core/TextBytes.h"
#include "grid/TableText.h"
#include "support/TempFolder.h"

namespace penwright {
namespace {

namespace fs = std::filesystem;

constexpr std::array kUnitNames{"cd", "cd/klm", "kcd", "mcd", "other"};

std::string choicesText(const TableReading &reading)
{
    static constexpr const char *kSeparators[]{"tab", "semicolon", "comma", "blanks"};
    const auto signName = [](char sign) -> std::string {
        return sign == kNoSign ? "none" : sign == ' ' ? "blank" : std::string(1, sign);
    };
    const char *angles = reading.isList           ? "list"
                         : reading.hasAngleRow    ? reading.hasAngleColumn ? "row and column" : "row"
                         : reading.hasAngleColumn ? "column"
                                                  : "none";
    return std::string("separator: ") + kSeparators[static_cast<int>(reading.separator)] +
           "\ndecimal sign: " + reading.decimalSign + "\nthousands sign: " + signName(reading.thousandsSign) +
           "\nlines to skip: " + std::to_string(reading.linesToSkip) + "\nangles: " + angles + "\nvertical: " +
           (reading.isList         ? reading.verticalDown ? "first" : "second"
            : reading.verticalDown ? "down"
                                   : "across") +
           "\nunit: " + kUnitNames[static_cast<std::size_t>(reading.unit)] + "\n";
}

std::string anglesText(const std::string &name, const OneBased<double> &angles)
{
    std::string text = name + ":" + (angles.empty() ? " none" : "");
    for (const double angle : angles)
        text += " " + generalText(angle);
    return text + "\n";
}

/// The choices, the angles, and a line of values for each horizontal angle.
std::string contentText(const TableReading &reading, const TableContent &content)
{
    std::string text = choicesText(reading) + anglesText("V", content.vertical) + anglesText("H", content.horizontal);
    for (int h = 1; h <= content.values.rows(); ++h)
        for (int v = 1; v <= content.values.columns(); ++v)
            text += generalText(content.values(h, v)) + (v < content.values.columns() ? " " : "\n");
    return text;
}

/// What comes of the bytes when everything is guessed.
std::string readingText(const std::string &bytes)
{
    const std::string text = utf8Text(bytes);
    const TableReading reading = guessTable(text);
    const auto table = readTable(text, reading);
    if (const TableFault *fault = std::get_if<TableFault>(&table))
        return "refused: " + fault->text + "\n";
    return contentText(reading, std::get<TableContent>(table));
}

std::vector<std::string> tableNames()
{
    std::vector<std::string> names;
    for (const auto &entry : fs::directory_iterator(TABLES_FOLDER))
        if (entry.path().extension() == ".txt")
            names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

class TableFiles : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(All, TableFiles, testing::ValuesIn(tableNames()), [](const auto &each) {
    std::string name = each.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

TEST_P(TableFiles, areReadAsTheyAreMeant)
{
    const fs::path file = fs::path(TABLES_FOLDER) / GetParam();
    EXPECT_EQ(readingText(test::contentOf(file.string() + ".txt")), test::contentOf(file.string() + ".expected"));
}

TEST(TableFiles, areMany)
{
    EXPECT_GE(tableNames().size(), 60U);
}

}  // namespace
}  // namespace penwright
