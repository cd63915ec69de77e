#include "wizard/TypingGo.h"

#include <gtest/gtest.h>

#include <string>

namespace penwright::test {
namespace {

/// The go of each key: "a" is a character, "<" a deletion, "." another key; upper-case "A" and "{" come to a selection.
std::string goesOf(const std::string &keys)
{
    TypingGo go;
    std::string goes;
    for (const char key : keys) {
        const bool isCharacter = key == 'a' || key == 'A';
        const bool isDeletion = key == '<' || key == '{';
        go.add(isCharacter  ? TypingGo::Key::Character
               : isDeletion ? TypingGo::Key::Deletion
                            : TypingGo::Key::Other,
               key == 'A' || key == '{');
        goes += std::to_string(go.number());
    }
    return goes;
}

TEST(TypingGo, isOneForCharactersAndTheDeletionThatMendsASlip)
{
    EXPECT_EQ(goesOf("aaa"), "111");
    EXPECT_EQ(goesOf("aa<a"), "1111");
    EXPECT_EQ(goesOf("aa<a<a"), "111111");
    EXPECT_EQ(goesOf("aa.aa"), "11111");
}

TEST(TypingGo, isAnotherOneForWhatGoesOnDeleting)
{
    EXPECT_EQ(goesOf("aaa<<<"), "111122");
    EXPECT_EQ(goesOf("aaa<<<aa"), "11112222");
    EXPECT_EQ(goesOf("a<<"), "111") << "a single character is no text to lose";
    EXPECT_EQ(goesOf("<<<"), "111") << "nothing was typed in it";
    EXPECT_EQ(goesOf("aa<.<<"), "111111") << "nothing was typed since";
}

TEST(TypingGo, isAnotherOneWhereASelectionIsReplacedOrDeleted)
{
    EXPECT_EQ(goesOf("aa.A"), "1112");
    EXPECT_EQ(goesOf("Aa"), "22");
    EXPECT_EQ(goesOf("aa{a"), "1122");
    EXPECT_EQ(goesOf("aa{a<<"), "112222") << "one character was typed since";
}

TEST(TypingGo, isTheSameWhereTheBoxSelectsItsTextByItself)
{
    EXPECT_EQ(goesOf("aAAA"), "1111");
    EXPECT_EQ(goesOf("aA<A"), "1112") << "nobody knows who selected it";
    TypingGo go;
    go.add(TypingGo::Key::Character, false);
    go.end();
    go.add(TypingGo::Key::Character, true);
    EXPECT_EQ(go.number(), 3);
}

TEST(TypingGo, endsAtOnceOrWithTheAct)
{
    TypingGo go;
    go.actEnded();
    EXPECT_EQ(go.number(), 1);
    go.endWithAct();
    EXPECT_EQ(go.number(), 1);
    go.actEnded();
    EXPECT_EQ(go.number(), 2);
    go.actEnded();
    EXPECT_EQ(go.number(), 2);
    go.end();
    EXPECT_EQ(go.number(), 3);
}

}  // namespace
}  // namespace penwright::test
