#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/IesText.h"
#include "pages/candela/CandelaChecks.h"
#include "pages/candela/StoreCandela.h"
#include "pages/distribution/DistributionFields.h"
#include "pages/keywords/KeywordLines.h"
#include "pages/luminaire/LampFields.h"
#include "pages/luminaire/TiltFields.h"
#include "support/GridEdits.h"
#include "support/ReadBack.h"
#include "TopicFolder.h"

namespace penwright::test {
namespace {

std::string textOf(const PhotometricRecord &record)
{
    std::string text;
    appendIesText(text, record);
    EXPECT_EQ(readBackFault(text + "\r\n", record), "");
    return text;
}

std::string withFileLineEnds(const std::string &text)
{
    std::string out;
    for (const char c : text)
        out += c == '\n' ? std::string("\r\n") : std::string(1, c);
    return out;
}

/// The example as it is typed into the pages; each page's own check passes it.
class ExampleLuminaire : public testing::Test {
protected:
    void typeLamps()
    {
        const LampFields fields{{"2", "4450", "1", "0.95", "117.4", "0.18", "1.183", " 0"}, 1, false, false};
        checkLampFields(fields, dlgWarn);
        storeLampFields(fields, dlgWarn, record);
    }

    void typeKeywords()
    {
        OneBased<KeywordRow> rows;
        for (const KeywordRow &row : std::vector<KeywordRow>{{"IESNA:LM-63-2002", ""},
                                                             {"[TEST]", "24-1187"},
                                                             {"[TESTLAB]", "North Hall Photometry"},
                                                             {"[ISSUEDATE]", "14 May 2024"},
                                                             {"[MANUFAC]", "Example Lighting"},
                                                             {"[LUMCAT]", "EL-2054"},
                                                             {"[LUMINAIRE]", "Recessed luminaire, 2 lamps"},
                                                             {"[MORE]", "white louver"},
                                                             {"[LAMP]", "54 W fluorescent lamp"}})
            rows.append(row);
        gfnKeyVerify(rows, dlgWarn);
        storeKeywordLines(rows, record);
    }

    void pickAngles()
    {
        AngleList vertical(AngleAxis::Vertical);
        AngleList horizontal(AngleAxis::Horizontal);
        apply(vertical, std::move(vertical.resize("10, Downlight 0 to 90, 10 degree increments", kTypeC)->edit));
        apply(horizontal,
              std::move(horizontal.resize("05, Quad Symmetric 0 to 90, 22.5 degree increment", kTypeC)->edit));
        const DistributionFields fields{kTypeC, vertical.cells(), horizontal.cells()};
        checkDistribution(fields, dlgWarn);
        storeDistribution(fields, record);
    }

    void typeCandela()
    {
        const std::vector<std::vector<float>> typed{{2480, 2420, 2245, 1970, 1620, 1223, 818, 446, 140, 0},
                                                    {2480, 2424, 2261, 2000, 1660, 1267, 856, 470, 152, 0},
                                                    {2480, 2435, 2300, 2074, 1760, 1374, 947, 528, 176, 0},
                                                    {2480, 2446, 2340, 2147, 1860, 1480, 1038, 587, 200, 0},
                                                    {2480, 2451, 2355, 2177, 1900, 1524, 1076, 611, 210, 0}};
        OneBasedTable<CandelaCell> cells(record.NumHorzAngles, record.NumVertAngles);
        for (int h = 1; h <= cells.rows(); ++h)
            for (int v = 1; v <= cells.columns(); ++v)
                cells(h, v) = typed.at(static_cast<std::size_t>(h - 1)).at(static_cast<std::size_t>(v - 1));
        checkCandela(record, cells, dlgWarn);
        storeCandela(cells, record);
    }

    PhotometricRecord record;
    WarningList dlgWarn;
};

TEST_F(ExampleLuminaire, isTheFileThatTheTopicTakesApart)
{
    typeLamps();
    typeKeywords();
    pickAngles();
    typeCandela();
    EXPECT_EQ(dlgWarn.text(), "");
    EXPECT_EQ(withFileLineEnds(topic("format.html").titled("pre", "example")), textOf(record));
}

TEST_F(ExampleLuminaire, withTiltDataHasTheLinesOfTheTiltTopic)
{
    OneBased<float> angles;
    OneBased<float> factors;
    for (int angle = 0; angle <= 90; angle += 15)
        angles.append(static_cast<float>(angle));
    for (const double factor : {1.0, 0.95, 0.94, 0.9, 0.88, 0.87, 0.94})
        factors.append(static_cast<float>(factor));
    const TiltFields fields{"7", std::int16_t{0}, angles, factors};
    checkTiltFields(fields, dlgWarn);
    EXPECT_EQ(dlgWarn.text(), "");
    storeTiltFields(fields, record);
    record.Keywords.append("IESNA:LM-63-2002 ");
    const std::string tilt = withFileLineEnds(topic("tilt.html").titled("pre", "tilt"));
    ASSERT_NE(tilt, "");
    EXPECT_TRUE(textOf(record).starts_with("IESNA:LM-63-2002 \r\n" + tilt + "\r\n")) << textOf(record);
}

/// How many lines the file of a table has: each angle and value five characters long.
int linesOfATable(int angles)
{
    PhotometricRecord record;
    record.Keywords.append("IESNA:LM-63-2002 ");
    record.NumVertAngles = record.NumHorzAngles = static_cast<std::int16_t>(angles);
    record.Candela = OneBasedTable<double>(angles, angles);
    for (int i = 1; i <= angles; ++i) {
        record.VertAngles.append(100.5F + static_cast<float>(i));
        record.HorAngles.append(100.5F + static_cast<float>(i));
        for (int v = 1; v <= angles; ++v)
            record.Candela(i, v) = 12345;
    }
    const std::string text = textOf(record);
    return 1 + static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

TEST(LargestTable, thatIsNeverFoldedIsTheOneThatTheTopicNames)
{
    constexpr int kOtherLines = 4;  // version, tilt, photometric and ballast line
    EXPECT_EQ(linesOfATable(22), kOtherLines + 2 + 22);
    EXPECT_EQ(linesOfATable(23), kOtherLines + 2 * (2 + 23));
    const std::string text = topic("format.html").sectionAt("width");
    EXPECT_NE(text.find("at most 22 vertical and 22 horizontal angles never folds"), std::string::npos);
    EXPECT_NE(text.find("more than five characters"), std::string::npos);
}

TEST_F(ExampleLuminaire, isNumberedByLinesAsTheTopicNumbersThem)
{
    const std::string file = topic("format.html").titled("pre", "example");
    std::vector<std::string> lines{""};
    for (const char c : file)
        if (c == '\n')
            lines.emplace_back();
        else
            lines.back() += c;
    ASSERT_EQ(lines.size(), 19U);
    EXPECT_EQ(lines[9], "TILT=NONE");                         // line 10
    EXPECT_TRUE(lines[10].starts_with("2 4450 1 10 5 1 2"));  // line 11, the photometric line
    EXPECT_TRUE(lines[13].starts_with("0 22.5"));             // line 14
    EXPECT_EQ(lines[14].substr(0, 19), "2480 2420 2245 1970");
    EXPECT_FLOAT_EQ(1970 * 0.95F, 1871.5F);
}

}  // namespace
}  // namespace penwright::test
