#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <numbers>
#include <string>
#include <vector>

#include "core/IesText.h"
#include "core/PhotometricRecord.h"
#include "pages/distribution/PredefinedAngles.h"
#include "pages/keywords/KeywordLines.h"
#include "pages/keywords/KeywordTable.h"
#include "pages/luminaire/LuminousShapes.h"
#include "SourceTexts.h"
#include "TopicFolder.h"

namespace penwright::test {
namespace {

TEST(HelpTables, explainEveryCaptionOfThePagesForm)
{
    for (const PageTopic &page : kPageTopics) {
        const std::vector<std::string> captions = captionsOf(std::string(SOURCE_FOLDER) + "/" + page.form);
        EXPECT_GT(captions.size(), 2U) << page.form;
        const std::string text = topic(page.topic).text();
        for (const std::string &caption : captions)
            EXPECT_NE(text.find(caption), std::string::npos) << page.topic << " " << caption;
        EXPECT_EQ(topic(page.topic).linkOf("Keys"), "keys.html") << page.topic;
    }
    for (const char *button : {"Next >", "< Back", "Cancel", "Help"})
        EXPECT_TRUE(contains(topic("keys.html").textsOf("ui"), button)) << button;
}

/// The texts marked as captions that a table of the program holds, in the order of the topic.
template <typename Table, typename Text>
std::vector<std::string> markedOf(const std::string &name, const Table &table, const Text &textOf)
{
    std::vector<std::string> known;
    for (const auto &row : table)
        known.emplace_back(textOf(row));
    std::vector<std::string> marked;
    for (const std::string &text : topic(name).textsOf("ui"))
        if (contains(known, collapsed(text)) && !contains(marked, collapsed(text)))
            marked.push_back(collapsed(text));
    return marked;
}

template <typename Table, typename Text>
std::vector<std::string> textsOf(const Table &table, const Text &textOf)
{
    std::vector<std::string> texts;
    for (const auto &row : table)
        texts.emplace_back(textOf(row));
    return texts;
}

TEST(HelpTables, holdTheTwentyKeywordsInTheOrderOfTheList)
{
    const auto keyword = [](const KeywordEntry &entry) { return entry.keyword; };
    EXPECT_EQ(markedOf("keywords.html", kStandardKeywords, keyword), textsOf(kStandardKeywords, keyword));
    EXPECT_EQ(markedOf("keywords.html", kVersionLines, keyword), textsOf(kVersionLines, keyword));
}

TEST(HelpTables, countThePredefinedSetsOfEachList)
{
    const auto sizeOf = [](std::int16_t type, AngleAxis axis) {
        return std::to_string(predefinedAngles(type, axis).size());
    };
    const std::string text = topic("angles.html").sectionAt("lists");
    const std::string typeC = sizeOf(kTypeC, AngleAxis::Vertical) + " vertical and " +
                              sizeOf(kTypeC, AngleAxis::Horizontal) + " horizontal sets for type C";
    const std::string typeB = sizeOf(kTypeB, AngleAxis::Vertical) + " that serve both lists of type B";
    EXPECT_NE(text.find(typeC), std::string::npos) << typeC;
    EXPECT_NE(text.find(typeB), std::string::npos) << typeB;
    const auto same = [](std::string_view set) { return set; };
    EXPECT_EQ(textsOf(predefinedAngles(kTypeB, AngleAxis::Horizontal), same),
              textsOf(predefinedAngles(kTypeB, AngleAxis::Vertical), same));
}

/// What a keyword row of a count becomes in the file, in characters.
std::size_t lineLengthOf(int count)
{
    OneBased<KeywordRow> rows;
    rows.append({"[OTHER]", std::string(static_cast<std::size_t>(count) - 7, 'x')});
    EXPECT_EQ(rows(1).length(), count);
    PhotometricRecord record;
    storeKeywordLines(rows, record);
    return record.Keywords(1).size();
}

TEST(HelpTables, adviseTheCountsThatMakeLinesOfTheRightLength)
{
    const std::string text = topic("keywords.html").sectionAt("table");
    EXPECT_NE(text.find("stay at a count of 252, for the blank makes 253"), std::string::npos);
    EXPECT_EQ(lineLengthOf(252), 253U);
    EXPECT_NE(text.find("a keyword line may have 80: stay at 79"), std::string::npos);
    EXPECT_EQ(lineLengthOf(79), 80U);
}

TEST(HelpTables, giveTheSolidAngleOfEachZone)
{
    const std::string text = topic("finish.html").sectionAt("lumens");
    const auto cosine = [](int degrees) { return std::cos(degrees * std::numbers::pi / 180); };
    for (int zone = 0; zone < 90; zone += 10) {
        char row[40];
        std::snprintf(row, sizeof row, "%d to %d %d %.3f", zone, zone + 10, zone + 5,
                      2 * std::numbers::pi * (cosine(zone) - cosine(zone + 10)));
        EXPECT_NE(text.find(row), std::string::npos) << row;
    }
}

/// A rule of the signs as the topic writes it.
std::string signOf(Stored rule, char own)
{
    switch (rule) {
        case Stored::Zero:
            return "0";
        case Stored::Typed:
            return {own};
        case Stored::Magnitude:
            return std::string("+") + own;
        case Stored::NegatedMagnitude:
            return std::string("\u2212") + own;
        default:
            return "";
    }
}

std::string signsOf(const LuminousShape &shape)
{
    const std::string width = signOf(shape.storedWidth, 'w');
    const std::string length = shape.storedLength == Stored::SameAsWidth ? width : signOf(shape.storedLength, 'l');
    if (shape.storedHeight == Stored::SameAsWidth)
        return width + " " + length + " " + width;
    if (shape.storedHeight == Stored::SameAsLength)
        return width + " " + length + " " + length;
    return width + " " + length + " " + signOf(shape.storedHeight, 'h');
}

TEST(HelpTables, holdTheShapesWithTheSignsThatAreWritten)
{
    const auto name = [](const LuminousShape &shape) { return shape.name; };
    EXPECT_EQ(markedOf("lamp.html", kLuminousShapes, name), textsOf(kLuminousShapes, name));
    EXPECT_EQ(topic("lamp.html").textsOf("signs"), textsOf(kLuminousShapes, signsOf));
}

TEST(HelpTables, showEachShapeBySmallPicture)
{
    const std::vector<std::string> pictures = topic("lamp.html").valuesOf("img", "src");
    ASSERT_EQ(pictures.size(), kLuminousShapes.size());
    const std::vector<std::string> words = topic("lamp.html").valuesOf("img", "alt");
    for (std::size_t i = 0; i < pictures.size(); ++i) {
        char expected[40];
        std::snprintf(expected, sizeof expected, "pictures/shape-%02zu.png", i + 1);
        EXPECT_EQ(pictures[i], expected);
        EXPECT_EQ(words[i], "Sketch: " + std::string(kLuminousShapes[i].name));
        const std::string png = contentOf(helpPath(pictures[i]));
        EXPECT_TRUE(png.starts_with("\x89PNG")) << expected;
        EXPECT_LT(png.size(), 4096U) << expected;
    }
}

/// How to get a shape of the format that the list does not give by its name.
TEST(HelpTables, giveWaysToAllShapesThatKeepTheirWord)
{
    const auto stored = [](int position, float width, float length, float height) {
        const Dimensions d = storedDimensions(position, {width, length, height});
        return std::vector<float>{d.width, d.length, d.height};
    };
    using Numbers = std::vector<float>;
    EXPECT_EQ(stored(8, 2, 9, 9), (Numbers{-2, -2, -2}));    // sphere, by the spheroid
    EXPECT_EQ(stored(6, 2, 3, -4), (Numbers{-2, -3, -4}));   // spheroid, by the vertical cylinder
    EXPECT_EQ(stored(10, 2, 3, 9), (Numbers{-2, 3, -2}));    // horizontal cylinder, by the ellipsoidal one
    EXPECT_EQ(stored(12, 3, 2, 9), (Numbers{3, -2, -2}));    // the same across
    EXPECT_EQ(stored(14, 2, 0, 2), (Numbers{-2, 0, -2}));    // vertical circle, by the ellipse
    EXPECT_EQ(stored(-1, -2, 3, -4), (Numbers{-2, 3, -4}));  // no shape: as typed
    EXPECT_EQ(stored(-1, 2, -3, -4), (Numbers{2, -3, -4}));
    const std::string text = topic("lamp.html").text();
    for (const char *signs :
         {"\u2212D \u2212D \u2212D", "\u2212W \u2212L \u2212H", "\u2212D L \u2212D", "W \u2212D \u2212D",
          "\u2212D 0 \u2212D", "\u2212W L \u2212H", "W \u2212L \u2212H", "\u2212W 0 \u2212H"})
        EXPECT_NE(text.find(signs), std::string::npos) << signs;
}

TEST(HelpTables, nameTheFoldWidthsOfTheWriter)
{
    const std::string text = topic("format.html").text();
    for (const KeywordEntry &version : kVersionLines) {
        const int width = foldWidth(version.keyword);
        const std::string row =
            std::string(version.keyword) + " " + std::to_string(width) + " " + std::to_string(width - 1);
        EXPECT_NE(text.find(row), std::string::npos) << row;
    }
    const int other = foldWidth("IESNA:LM-63-2002 ");
    EXPECT_NE(text.find("any other " + std::to_string(other) + " " + std::to_string(other - 1)), std::string::npos);
}

}  // namespace
}  // namespace penwright::test
