#include "hostbench/OpenedFile.h"

#include <gtest/gtest.h>

#include "core/IesText.h"
#include "hostbench/SampleLuminaire.h"

namespace penwright {
namespace {

std::string problemOf(std::string_view bytes)
{
    const auto opened = openedFile("/home/me/lamp.ies", bytes);
    const auto *problem = std::get_if<std::string>(&opened);
    return problem ? *problem : "none";
}

TEST(OpenedFile, isHeldAsItStandsOnDisk)
{
    const std::string text = iesFileText(sampleLuminaire());
    const auto opened = openedFile("/home/me/lamp.ies", text);
    const auto *file = std::get_if<HeldFile>(&opened);
    ASSERT_NE(file, nullptr);
    EXPECT_TRUE(file->isSaved);
    EXPECT_EQ(file->record.Filename, "/home/me/lamp.ies");
    EXPECT_EQ(file->record.Directory, "/home/me/");
    EXPECT_EQ(file->text, text);
    EXPECT_EQ(file->record.NumVertAngles, sampleLuminaire().NumVertAngles);
    EXPECT_EQ(iesFileText(file->record), text);
}

TEST(OpenedFile, isReadAsLatin1WhereItIsNoUtf8)
{
    const std::string text =
        "IESNA:LM-63-2002\n[LUMCAT] L\xE4mpe\nTILT=NONE\n1 1000 1 1 1 1 2 0 0 0\n1 1 10\n0\n0\n5\n";
    const auto opened = openedFile("/lamp.ies", text);
    ASSERT_TRUE(std::holds_alternative<HeldFile>(opened)) << problemOf(text);
    EXPECT_NE(std::get<HeldFile>(opened).text.find("L\xC3\xA4mpe"), std::string::npos);
}

TEST(OpenedFile, aFaultNamesFileAndLine)
{
    const std::string cut = iesFileText(sampleLuminaire()).substr(0, 700);
    for (const std::string &bytes :
         {std::string(), std::string("no IES file"), std::string("\0\0\0", 3), cut,
          std::string("IESNA:LM-63-2002\nTILT=NONE\n1 1 1 30000 30000 1 2 0 0 0\n1 1 1\n")}) {
        const std::string problem = problemOf(bytes);
        EXPECT_EQ(problem.rfind("lamp.ies: Line ", 0), 0U) << problem;
        EXPECT_EQ(problem.find('\n'), std::string::npos) << problem;
    }
}

}  // namespace
}  // namespace penwright
