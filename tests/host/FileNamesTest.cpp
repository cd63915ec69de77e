#include "hostbench/FileNames.h"

#include <gtest/gtest.h>

#include <vector>

namespace penwright {
namespace {

struct NameCase {
    const char *what;
    std::vector<std::string> keywords;
    std::string filename;
    std::string proposed;
};

void PrintTo(const NameCase &row, std::ostream *out)
{
    *out << row.what;
}

class FileNames : public testing::TestWithParam<NameCase> {};

TEST_P(FileNames, areProposed)
{
    PhotometricRecord record;
    record.Keywords.resize(static_cast<int>(GetParam().keywords.size()));
    for (int i = 1; i <= record.Keywords.size(); ++i)
        record.Keywords(i) = GetParam().keywords[static_cast<std::size_t>(i - 1)];
    record.Filename = GetParam().filename;
    EXPECT_EQ(proposedFileName(record), GetParam().proposed);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FileNames,
    testing::Values(
        NameCase{"catalog number", {"[MANUFAC] Lamps & Co", "[LUMCAT] EL-2054 3.5K"}, "new_file_1", "EL-2054 3.5K.ies"},
        NameCase{"maker", {"IESNA:LM-63-2002 ", "[MANUFAC] Lamps & Co"}, "new_file_1", "Lamps - Co.ies"},
        NameCase{"empty catalog number", {"[LUMCAT] ", "[LUMCAT]", "[MANUFAC] Maker"}, "", "Maker.ies"},
        NameCase{"name of the file", {"[TEST] 12"}, "C:\\of.tool\\new_file_3", "new_file_3.ies"},
        NameCase{"suffix of the file", {}, "/home/me/street.light.IES", "street.light.ies"},
        NameCase{"nothing", {}, "", "luminaire.ies"},
        NameCase{"unsafe characters alone", {"[LUMCAT] ../.."}, "..", "luminaire.ies"},
        NameCase{"signs that folders and shells know",
                 {"[LUMCAT] ../a/b\\c:d*e?f\"g<h>i|j\tk$(x)`y`;&'z'~"},
                 "",
                 "a-b-c-d-e-f-g-h-i-j-k-(x)-y----z--.ies"},
        NameCase{"no option of a command", {"[LUMCAT] --rm -x"}, "", "rm -x.ies"},
        NameCase{"letters of any script", {"[LUMCAT] L\xC3\xA4mpe \xE7\x81\xAF"}, "", "L\xC3\xA4mpe \xE7\x81\xAF.ies"},
        NameCase{"a keyword that only begins alike", {"[LUMCATALOG] X", "[MANUFAC] M"}, "", "M.ies"}));

TEST(FileName, isCutBetweenTwoCharacters)
{
    PhotometricRecord record;
    std::string ae;
    for (int i = 0; i < 200; ++i)
        ae += "\xC3\xA4";
    for (const std::string begin : {"", "x"}) {
        record.Keywords = {"[LUMCAT] " + begin + ae};
        const std::string name = proposedFileName(record);
        EXPECT_LE(name.size(), 100U);
        EXPECT_GE(name.size(), 98U);
        EXPECT_EQ(name.substr(name.size() - 6), "\xC3\xA4.ies");
    }
}

}  // namespace
}  // namespace penwright
