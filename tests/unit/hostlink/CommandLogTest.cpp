#include "hostlink/CommandLog.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace penwright::test {
namespace {

TEST(CommandLog, everyEntryEndsWithALineEnd)
{
    CommandLog log;
    log.append("START");
    log.append("");
    EXPECT_EQ(log.txtCmds(), "START\r\n\r\n");
}

TEST(CommandLog, keepsTheLatestThousandEntries)
{
    CommandLog log;
    for (int i = 1; i <= 1003; ++i)
        log.append(std::to_string(i));
    const std::string text = log.txtCmds();
    EXPECT_EQ(text.substr(0, 6), "4\r\n5\r\n");
    EXPECT_EQ(text.substr(text.size() - 6), "1003\r\n");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1000);
    EXPECT_EQ(log.appended(), 1003U);
}

TEST(CommandLog, longEntryIsCut)
{
    CommandLog log;
    log.append(std::string(10'000'000, 'x'));
    EXPECT_EQ(log.txtCmds(), std::string(8192, 'x') + "\r\n");
}

TEST(CommandLog, latestEntriesComeAlone)
{
    CommandLog log;
    for (const char *entry : {"a", "b", "c"})
        log.append(entry);
    EXPECT_EQ(log.latest(0), "");
    EXPECT_EQ(log.latest(2), "b\r\nc\r\n");
    EXPECT_EQ(log.latest(9), "a\r\nb\r\nc\r\n");
}

TEST(CommandLog, canBeReplacedAsAWhole)
{
    CommandLog log;
    log.append("a");
    log.append("b");
    log.setTxtCmds("15");
    EXPECT_EQ(log.txtCmds(), "15\r\n");
}

}  // namespace
}  // namespace penwright::test
