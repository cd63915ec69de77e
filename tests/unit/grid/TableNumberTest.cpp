#include "grid/TableNumber.h"

#include <gtest/gtest.h>

#include "grid/TableAngle.h"
#include "grid/TableLines.h"

namespace penwright {
namespace {

struct NumberCase {
    std::string cell;
    char decimal;
    char thousands;
    std::optional<double> value;
};

class TableNumber : public testing::TestWithParam<NumberCase> {};

constexpr std::nullopt_t kNone = std::nullopt;

INSTANTIATE_TEST_SUITE_P(Signs, TableNumber,
                         testing::ValuesIn(std::vector<NumberCase>{
                             {"12.5", '.', kNoSign, 12.5},
                             {"12,5", '.', kNoSign, kNone},
                             {"12,5", ',', kNoSign, 12.5},
                             {"12.5", ',', kNoSign, kNone},
                             {".5", '.', kNoSign, .5},
                             {"5.", '.', kNoSign, 5},
                             {"5,", ',', kNoSign, kNone},
                             {"-12,5", ',', kNoSign, -12.5},
                             {"\xE2\x88\x92\x31\x32", '.', kNoSign, -12},
                             {"+12", '.', kNoSign, 12},
                             {"1e3", '.', kNoSign, 1000},
                             {"1,5E-3", ',', kNoSign, .0015},
                             {"1,234.5", '.', ',', 1234.5},
                             {"1.234,5", ',', '.', 1234.5},
                             {"1.234.567", ',', '.', 1234567},
                             {"1'234.5", '.', '\'', 1234.5},
                             {"1\xE2\x80\x99\x32\x33\x34", '.', '\'', 1234},
                             {"1 234,5", ',', ' ', 1234.5},
                             {"1\xC2\xA0\x32\x33\x34", ',', ' ', 1234},
                             {"1\xE2\x80\xAF\x32\x33\x34", ',', ' ', 1234},
                             {"998", ',', '.', 998},
                             {"1234", ',', '.', 1234},
                             {"1.23", ',', '.', kNone},
                             {"1.2345", ',', '.', kNone},
                             {"1234.567", ',', '.', kNone},
                             {"0.123", ',', '.', kNone},
                             {"1..234", ',', '.', kNone},
                             {".234", ',', '.', kNone},
                             {"1.234.", ',', '.', kNone},
                             {"", '.', kNoSign, kNone},
                             {"-", '.', kNoSign, kNone},
                             {"1-2", '.', kNoSign, kNone},
                             {"12 cd", '.', kNoSign, kNone},
                             {"nan", '.', kNoSign, kNone},
                             {"inf", ',', kNoSign, kNone},
                             {"0x10", '.', kNoSign, kNone},
                             {"1e39", '.', kNoSign, kNone},
                             {"1e400", ',', kNoSign, kNone},
                             {std::string(100, '1'), ',', kNoSign, kNone},
                         }));

TEST_P(TableNumber, isReadWithTheSigns)
{
    TableReading reading;
    reading.decimalSign = GetParam().decimal;
    reading.thousandsSign = GetParam().thousands;
    EXPECT_EQ(tableNumber(GetParam().cell, reading), GetParam().value) << GetParam().cell;
}

TEST(TableAngle, isReadWithItsWords)
{
    const auto degrees = [](std::string_view cell) {
        const auto angle = tableAngle(cell, TableReading());
        return angle ? std::optional(angle->degrees) : std::nullopt;
    };
    for (const char *cell : {"90", "C90", "C 90", "c=90", "C90\xC2\xB0", "90 deg", "Gamma 90", "\xCE\xB3=90", "[90]",
                             "90\xC2\xBA", "C-plane 90", "C90-C270", "C90/C270", "C 90 - C 270"})
        EXPECT_EQ(degrees(cell), 90) << cell;
    EXPECT_EQ(degrees("-22.5"), -22.5);
    EXPECT_EQ(degrees("H-22.5\xC2\xB0"), -22.5);
    EXPECT_EQ(degrees("C.5"), 0.5);
    for (const char *cell : {"", "C", "Lamp 2", "54 W", "9O", "90-95", "2 x 54", "C90x"})
        EXPECT_EQ(degrees(cell), std::nullopt) << cell;
    EXPECT_EQ(tableAngle("C90", TableReading())->word, AngleWord::Horizontal);
    EXPECT_EQ(tableAngle("v 10", TableReading())->word, AngleWord::Vertical);
    EXPECT_FALSE(tableAngle("10", TableReading())->isMarked);
}

TEST(TableAngle, wordsAreKnown)
{
    EXPECT_EQ(angleWord("Gamma [deg]"), AngleWord::Vertical);
    EXPECT_EQ(angleWord("C-Ebene"), AngleWord::Horizontal);
    EXPECT_EQ(angleWord("Angle"), AngleWord::Any);
    EXPECT_EQ(angleWord("Lamps"), AngleWord::None);
    for (const char *word : {"Average", "AVG.", "Mittelwert", "Sum", "Total lm", "Average [cd]", "Zonal lumens"})
        EXPECT_TRUE(isSummary(word)) << word;
    for (const char *word : {"", "cd/klm", "candela per 1000 lm", "C0", "I [cd]", "Gamma"})
        EXPECT_FALSE(isSummary(word)) << word;
}

std::string linesText(std::string_view text, TableSeparator separator)
{
    std::string all;
    TableLines lines(text, separator);
    for (TableLine line; lines.next(line);) {
        all += std::to_string(line.number);
        for (const std::string_view cell : line.cells)
            all += "|" + std::string(cell);
        all += "\n";
    }
    return all;
}

TEST(TableLines, areCutIntoCells)
{
    EXPECT_EQ(linesText("a\t b \tc\r\n\r\n\t\t\nd\t\te\t\t", TableSeparator::Tab), "1|a|b|c\n4|d||e\n");
    EXPECT_EQ(linesText("  a \t b\rc", TableSeparator::Blanks), "1|a|b\n2|c\n");
    EXPECT_EQ(linesText("\xC2\xA0\x61\xE2\x80\xAF;b", TableSeparator::Semicolon), "1|a|b\n");
}

TEST(TableLines, quotesHoldSeparatorsAndLineEnds)
{
    EXPECT_EQ(linesText("\"a,b\",\"c\r\nd\",e\nf", TableSeparator::Comma), "1|a,b|c\r\nd|e\n3|f\n");
    EXPECT_EQ(linesText("\"a\"\"b\",c", TableSeparator::Comma), "1|a\"\"b|c\n");
    EXPECT_EQ(linesText("\"a\"b,c", TableSeparator::Comma), "1|\"a\"b|c\n");
    EXPECT_EQ(linesText("\"a,b\nc", TableSeparator::Comma), "1|\"a|b\n2|c\n");
}

struct AdviceCase {
    std::string text;
    bool isAdvised;
};

class SignAdvice : public testing::TestWithParam<AdviceCase> {};

TEST_P(SignAdvice, isGivenForNumbersByOtherSignsAlone)
{
    EXPECT_EQ(whyNoNumber(GetParam().text), GetParam().isAdvised
                                                ? " is not a number. The decimal sign is a point, as in 2481.37."
                                                : " is not a number.");
}

INSTANTIATE_TEST_SUITE_P(Texts, SignAdvice,
                         testing::ValuesIn(std::vector<AdviceCase>{{"2481,37", true},
                                                                   {"-,5", true},
                                                                   {"2.481,37", true},
                                                                   {"2,481", true},
                                                                   {"2'481", true},
                                                                   {"2 481", true},
                                                                   {"1.234.567", true},
                                                                   {"2481.37", false},
                                                                   {"abc", false},
                                                                   {"", false},
                                                                   {"1,2,3", false},
                                                                   {"0x10", false}}));

TEST(TableNumber, hasAThousandDigitsAtMost)
{
    EXPECT_EQ(tableNumber(std::string(999, '0') + "1", TableReading()), 1);
    EXPECT_EQ(tableNumber(std::string(1000, '0') + "1", TableReading()), std::nullopt);
}

}  // namespace
}  // namespace penwright
