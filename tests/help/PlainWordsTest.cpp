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

/// All words that a reader sees, but for the messages of the wizard itself.
constexpr long kMostWords = 9200;

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

TEST(PlainWords, areFew)
{
    long count = 0;
    for (const std::string &name : topicNames()) {
        std::istringstream words(topic(name).textWithout("msg"));
        count += std::distance(std::istream_iterator<std::string>(words), {});
    }
    EXPECT_LE(count, kMostWords);
    EXPECT_GT(count, kMostWords / 2) << "not all topics were read";
}

TEST(PlainWords, areToldFromStiffOnes)
{
    EXPECT_TRUE(says("Readers differ.", "readers"));
    EXPECT_TRUE(says("recommended: mend it", "mend"));
    EXPECT_FALSE(says("we recommend it", "mend"));
}

}  // namespace
}  // namespace penwright::test
