#include <gtest/gtest.h>

#include <cctype>
#include <iterator>
#include <sstream>
#include <string>

#include "TopicFolder.h"

namespace penwright::test {
namespace {

/// Words that a lighting engineer would stumble over; a program that reads the file is a program.
constexpr const char *kStiffWords[]{
    "reader",         "readers",       "choose none", "mend", "mended",  "in truth", "tidy",     "shall", "a must",
    "no line of the", "of no concern", "comes along", "anew", "whoever", "for ever", "likewise", "told",  "parted",
};

/// All words that somebody sees who reads the whole help, and those that are no messages of the wizard itself.
constexpr long kMostWords = 8080;
constexpr long kMostOwnWords = 5800;

bool isLetterAt(const std::string &text, std::size_t place)
{
    return place < text.size() && std::isalpha(static_cast<unsigned char>(text[place]));
}

/// Whether a text has these whole words, in capitals or not.
bool says(std::string text, const std::string &words)
{
    for (char &character : text)
        character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    for (std::size_t at = text.find(words); at != std::string::npos; at = text.find(words, at + 1))
        if (!isLetterAt(text, at - 1) && !isLetterAt(text, at + words.size()))
            return true;
    return false;
}

TEST(PlainWords, areUsedInEveryTopic)
{
    for (const std::string &name : topicNames()) {
        const std::string text = topic(name).textWithout("msg");
        for (const char *words : kStiffWords)
            EXPECT_FALSE(says(text, words)) << name << ": " << words;
    }
}

long wordsIn(const std::string &text)
{
    std::istringstream words(text);
    return std::distance(std::istream_iterator<std::string>(words), {});
}

TEST(PlainWords, areFew)
{
    long all = 0;
    long own = 0;
    for (const std::string &name : topicNames()) {
        all += wordsIn(topic(name).text());
        own += wordsIn(topic(name).textWithout("msg"));
    }
    EXPECT_LE(all, kMostWords);
    EXPECT_LE(own, kMostOwnWords);
    EXPECT_GT(own, kMostOwnWords / 2) << "not all topics were read";
}

TEST(PlainWords, areToldFromStiffOnes)
{
    EXPECT_TRUE(says("Readers differ.", "readers"));
    EXPECT_TRUE(says("recommended: mend it", "mend"));
    EXPECT_FALSE(says("we recommend it", "mend"));
}

}  // namespace
}  // namespace penwright::test
