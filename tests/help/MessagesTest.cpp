#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <vector>

#include "core/FileErrors.h"
#include "platform/RunTimeError.h"
#include "SourceTexts.h"
#include "TopicFolder.h"

namespace penwright::test {
namespace {

/// Where the code keeps what it tells the user of the wizard.
const std::vector<std::string> kMessageCode{"core",
                                            "wizard",
                                            "draft",
                                            "pages",
                                            "grid",
                                            "plot",
                                            "review",
                                            "controls",
                                            "hostlink",
                                            "app/StartUp.cpp",
                                            "app/Tool.h",
                                            "app",
                                            "platform/sqlite",
                                            "platform/RunTimeError.h",
                                            "help/chm/ChmContainer.cpp",
                                            "help/chm/ChmHelpFile.cpp",
                                            "help/window/QtHelpViewer.cpp"};

/// Texts of several words that are no messages: they are read out by screen readers, stand in a log that is never
/// shown, are the title of a window that is hidden still or a dialog's filter, a unit, or are said by the compiler.
const std::set<std::string> kNoMessages{
    "What is missing or wrong",
    "Sketch of the luminous shape",
    "No shape",
    "Candela plot",
    "Linear view",
    "SVG pictures (*.svg)|*.svg",
    "PNG pictures (*.png)|*.png",
    "no values",
    "No values.",
    " on the opposite side",
    " candela at ",
    "Vertical plane through horizontal angle ",
    "; horizontal cone through vertical angle ",
    "\nand more",
    ": the length lies along 0 and 180 degrees, 0 at the lower left; the width along 90 and 270 degrees, 90 at the "
    "lower "
    "right; the height upright.",
    "New row",
    "Picture and file",
    "Polar picture of the main planes",
    "Rows are vertical angles, columns are horizontal angles",
    "The line is too long: more than ",
    "No data or error -1",
    "Data received but not used",
    "Updated data received and used",
    "No data error: ",
    "no file",
    "General error: ",
    "Problem parsing tilt data",
    "Problem parsing other data",
    "Problem parsing vertical angles",
    "Problem parsing horizontal angles",
    "New Photometric File",
    "IES files (*.ies)|*.ies;*.IES",
    "Tables as text (*.csv, *.tsv, *.txt)|*.csv;*.tsv;*.txt",
    "each shape has its solid, in the order of the list",
    "cd/1000 lm",
};

bool isLetter(char c)
{
    return std::isalpha(static_cast<unsigned char>(c)) != 0;
}

bool isSql(const std::string &text)
{
    const std::string word = text.substr(0, text.find(' '));
    return word.size() >= 5 && std::all_of(word.begin(), word.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

/// Whether a literal is a text of words, not a name, a key or a separator.
bool isSentence(const std::string &literal)
{
    const std::string text = collapsed(literal);
    return text.find(' ') != std::string::npos && std::count_if(text.begin(), text.end(), isLetter) >= 4 &&
           !isSql(text);
}

std::string withoutMnemonic(std::string text)
{
    std::erase(text, '&');
    return text;
}

/// Whether a text can be put together of whole literals; short ones count only when they hold no letters.
bool isMadeOf(std::string_view text, const std::set<std::string> &literals)
{
    std::vector<bool> reached(text.size() + 1, false);
    reached[0] = true;
    for (std::size_t at = 0; at < text.size(); ++at)
        for (const std::string &literal : literals)
            if (reached[at] && !literal.empty() && text.substr(at).starts_with(literal) &&
                (literal.size() >= 3 || std::none_of(literal.begin(), literal.end(), isLetter)))
                reached[at + literal.size()] = true;
    return reached.back();
}

class HelpMessages : public testing::Test {
protected:
    HelpMessages() : literals(literalsBelow(kMessageCode))
    {
        for (const std::string &name : topicNames()) {
            for (const auto &parts : topic(name).fixedPartsOf("msg"))
                messageParts.insert(messageParts.end(), parts.begin(), parts.end());
            for (const std::string &text : topic(name).textsOf("ui"))
                captions.insert(collapsed(text));
        }
        for (const PageTopic &page : kPageTopics)
            for (const std::string &caption : captionsOf(std::string(SOURCE_FOLDER) + "/" + page.form))
                formCaptions.insert(caption);
    }

    bool isExplained(const std::string &literal) const
    {
        const auto holdsIt = [&literal](const std::string &part) { return part.find(literal) != std::string::npos; };
        return std::any_of(messageParts.begin(), messageParts.end(), holdsIt) ||
               captions.count(collapsed(withoutMnemonic(literal))) > 0;
    }

    std::set<std::string> literals;
    std::vector<std::string> messageParts;
    std::set<std::string> captions;
    std::set<std::string> formCaptions;
};

/// The tables that tests of their own hold against the topics.
const std::vector<std::string> kTables{"pages/keywords/KeywordTable.h", "pages/luminaire/LuminousShapes.cpp",
                                       "pages/distribution/PredefinedAngles.cpp", "wizard/PageTable.h"};

/// Names of fields that stand before a message, as the topics spell them out.
const std::vector<std::string> kFieldNames{"Number of Lamps", "Lumens per Lamp", "Candela Multiplier", "Ballast Factor",
                                           "Number of Tilt Angles"};

TEST_F(HelpMessages, everyMessageOfTheCodeIsExplained)
{
    const std::set<std::string> tables = literalsBelow(kTables);
    const std::string fieldTexts = topic("lamp.html").text() + topic("tilt.html").text();
    int count = 0;
    for (const std::string &literal : literals) {
        if (!isSentence(literal) || kNoMessages.count(literal) || tables.count(literal))
            continue;
        if (std::count(kFieldNames.begin(), kFieldNames.end(), literal))
            EXPECT_NE(fieldTexts.find(literal), std::string::npos) << literal;
        else
            EXPECT_TRUE(isExplained(literal)) << '"' << literal << '"';
        ++count;
    }
    EXPECT_GT(count, 80);
}

TEST_F(HelpMessages, everyTextMarkedAsAMessageIsOneOfTheCode)
{
    ASSERT_GT(messageParts.size(), 100U);
    for (const std::string &part : messageParts)
        EXPECT_TRUE(isMadeOf(part, literals)) << '"' << part << '"';
}

TEST_F(HelpMessages, everyTextMarkedAsACaptionIsOneOfTheProgram)
{
    std::set<std::string> known = formCaptions;
    for (const std::string &literal : literals)
        known.insert(collapsed(withoutMnemonic(literal)));
    ASSERT_GT(captions.size(), 80U);
    for (const std::string &caption : captions)
        EXPECT_TRUE(known.count(caption)) << '"' << caption << '"';
}

TEST_F(HelpMessages, theTextsThatAreNoMessagesAreStillInTheCode)
{
    for (const std::string &text : kNoMessages)
        EXPECT_TRUE(literals.count(text)) << text;
}

TEST_F(HelpMessages, theTopicOfTheLastPageHasEveryTextOfASavingError)
{
    const std::vector<std::string> messages = topic("finish.html").textsOf("msg");
    constexpr int kFixedTexts = 17;
    int count = 0;
    for (int number = 0; number <= 40000; ++number) {
        const std::string text = savingErrorText(RunTimeError(number, "d", "s"));
        if (text.starts_with("Windows Error "))
            continue;
        EXPECT_TRUE(contains(messages, text)) << number << " " << text;
        ++count;
    }
    EXPECT_EQ(count, kFixedTexts);
    EXPECT_TRUE(contains(messages, "Windows Error "));
    EXPECT_TRUE(writingQuestionText(RunTimeError(76, "")).ends_with("OK to Retry, Cancel to quit."));
}

TEST(SourceTexts, literalsAreFoundAsTheCompilerSeesThem)
{
    const std::vector<std::string> expected{"a \"b\"\r\nc", "// no comment", "d"};
    EXPECT_EQ(
        literalsOf(
            "#include \"x.h\"\n f(\"a \\\"b\\\"\\r\\n\"\n  \"c\"); // \"not\"\n g('\"', 1'000, \"// no comment\", "
            "/* \"nor\" */ \"d\");"),
        expected);
}

}  // namespace
}  // namespace penwright::test
