#include "core/CommandLine.h"

#include "platform/RunTimeError.h"

namespace penwright {
namespace {

StartupState taken(const std::string &commandLine)
{
    StartupState start;
    parseCommandLine(commandLine, start);
    return start;
}

TEST(CommandLine, sixFieldsAreTaken)
{
    const StartupState start = taken("123,1,HostBox,7,24,Sec");
    EXPECT_EQ(start.HostWindow, 123);
    EXPECT_TRUE(start.EmbedInHost);
    EXPECT_EQ(start.HostInbox, "HostBox");
    EXPECT_EQ(start.InstanceTag, "7");
    EXPECT_EQ(start.OpenFileCount, 24);
    EXPECT_EQ(start.ExchangeSection, "Sec");
}

TEST(CommandLine, anyOtherNumberOfFieldsTakesNothing)
{
    for (const char *text : {"", "123", "123,1,HostBox,7,24", "123,1,HostBox,7,24,Sec,", "1,1,a,b,1,c\r\nx"}) {
        const StartupState start = taken(text);
        EXPECT_EQ(start.HostWindow, 0) << text;
        EXPECT_FALSE(start.EmbedInHost) << text;
        EXPECT_EQ(start.HostInbox, "") << text;
        EXPECT_EQ(start.InstanceTag, "SendData") << text;
        EXPECT_EQ(start.OpenFileCount, 0) << text;
        EXPECT_EQ(start.ExchangeSection, "") << text;
    }
}

TEST(CommandLine, hostWindowIsReadWhateverIsWrongWithTheRest)
{
    for (const char *text : {"123", "123,1,HostBox,7,24", "123,1,HostBox,7,99999,Sec", "123\r\n7,8", "\r\n123"})
        EXPECT_EQ(hostWindowOf(text), 123) << text;
    for (const char *text : {"", "abc,1", ",123", "99999999999,1,HostBox,7,24,Sec"})
        EXPECT_EQ(hostWindowOf(text), 0) << text;
}

TEST(CommandLine, lastLineCountsButTheFirstIsTaken)
{
    const StartupState start = taken("5,0,In,Tag,3,S\r\n9,1,Other,Else,4,T");
    EXPECT_EQ(start.HostWindow, 5);
    EXPECT_FALSE(start.EmbedInHost);
    EXPECT_EQ(start.ExchangeSection, "S");
    EXPECT_EQ(taken("5\r\n9,1,Other,Else,4,T").HostWindow, 5);
    EXPECT_EQ(taken("5\r\n9,1,Other,Else,4,T").HostInbox, "");
}

TEST(CommandLine, numbersGoByWhatTheyBeginWith)
{
    const StartupState start = taken("x,abc,In,Tag,y,S");
    EXPECT_EQ(start.HostWindow, 0);
    EXPECT_FALSE(start.EmbedInHost);
    EXPECT_EQ(start.OpenFileCount, 0);
    EXPECT_EQ(taken(" 12 px,-1,In,Tag,2.5,S").HostWindow, 12);
    EXPECT_TRUE(taken("1,-1,In,Tag,2.5,S").EmbedInHost);
    EXPECT_TRUE(taken("1,0.4,In,Tag,2.5,S").EmbedInHost);
    EXPECT_EQ(taken("1,-1,In,Tag,2.5,S").OpenFileCount, 2);
}

TEST(CommandLine, textFieldsAreNotTrimmed)
{
    EXPECT_EQ(taken("1,1, In , T ,0, S ").HostInbox, " In ");
    EXPECT_EQ(taken("1,1, In , T ,0, S ").ExchangeSection, " S ");
}

TEST(CommandLine, numberBeyondItsTypeOverflowsAndTakesNothing)
{
    for (const char *text : {"1,1,In,T,32768,S", "2147483648,1,In,T,0,S"}) {
        StartupState start;
        try {
            parseCommandLine(text, start);
            ADD_FAILURE() << text;
        } catch (const RunTimeError &error) {
            EXPECT_EQ(error.number(), 6);
            EXPECT_EQ(error.description(), "Overflow");
        }
        EXPECT_EQ(start.HostInbox, "");
    }
}

TEST(StartupState, beginsWithTheFixedNames)
{
    const StartupState start;
    EXPECT_EQ(start.SettingsApp, "Lumentor_PE");
    EXPECT_EQ(start.ToolName, "PenwrightPE");
    EXPECT_EQ(start.InstanceTag, "SendData");
    EXPECT_EQ(start.LoadLimit, 1);
    EXPECT_EQ(start.SleepInterval, 0.3F);
}

}  // namespace
}  // namespace penwright
