#include "mkchm/HelpProject.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "mkchm/HelpObjects.h"

namespace penwright::mkchm {
namespace {

using namespace std::string_literals;

const std::string kOptions = "[OPTIONS]\nTitle=The Help\nDefault topic=a.html\nContents file=toc.hhc\n";
const std::string kFiles = "[FILES]\na.html\nb.html\n";

TEST(Project, takesOptionsFilesAndIds)
{
    const HelpProject project = readProject(
        "\xEF\xBB\xBF; a comment\r\n[Options]\r\n title = T=1 \r\nDEFAULT TOPIC=A.html\r\n"
        "Contents file=toc.hhc\r\n\r\n[FILES]\r\na.html\r\npictures\\p.png\r\n"
        "[ALIAS]\r\nB_ID = A.HTML\r\nA_ID=a.html\r\n[MAP]\r\n#define A_ID 7\r\n"
        "#define\tB_ID\t0x1F\r\n");
    EXPECT_EQ(project.title, "T=1");
    EXPECT_EQ(project.defaultTopic, "A.html");
    EXPECT_EQ(project.files, (std::vector<std::string>{"a.html", "pictures/p.png", "toc.hhc"}));
    EXPECT_EQ(project.topics, (std::map<std::uint32_t, std::string>{{7, "a.html"}, {31, "a.html"}}));
}

TEST(Project, listsItsContentsFileOnce)
{
    EXPECT_EQ(readProject(kOptions + kFiles + "toc.hhc\n").files,
              (std::vector<std::string>{"a.html", "b.html", "toc.hhc"}));
}

struct Fault {
    std::string name;
    std::string text;
    std::string message;
};

class ProjectFault : public testing::TestWithParam<Fault> {};

TEST_P(ProjectFault, isNamedWithItsLine)
{
    try {
        readProject(GetParam().text);
        ADD_FAILURE() << "it was accepted";
    } catch (const ProjectError &error) {
        EXPECT_EQ(std::string(error.what()), GetParam().message);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Faults, ProjectFault,
    testing::ValuesIn(std::vector<Fault>{
        {"AliasWithoutNumber", kOptions + kFiles + "[ALIAS]\nX=a.html\n", "9: the alias \"X\" has no number in [MAP]"},
        {"NumberWithoutAlias", kOptions + kFiles + "[MAP]\n#define X 1\n",
         "9: the number 1 of \"X\" has no alias in [ALIAS]"},
        {"AliasToUnlistedFile", kOptions + kFiles + "[ALIAS]\nX=c.html\n[MAP]\n#define X 1\n",
         "9: the alias \"X\" leads to \"c.html\", which is not in [FILES]"},
        {"FileTwice", kOptions + kFiles + "A.HTML\n", "8: the file \"A.HTML\" stands twice"},
        {"AliasTwice", kOptions + kFiles + "[ALIAS]\nX=a.html\nX=b.html\n", "10: the alias \"X\" stands twice"},
        {"NameWithTwoNumbers", kOptions + kFiles + "[ALIAS]\nX=a.html\n[MAP]\n#define X 1\n#define X 2\n",
         "12: the name \"X\" has two numbers"},
        {"RepeatedId", kOptions + kFiles + "[ALIAS]\nX=a.html\nY=b.html\n[MAP]\n#define X 1\n#define Y 0x01\n",
         "13: the number 1 is given to \"X\" and to \"Y\""},
        {"NoNumber", kOptions + kFiles + "[MAP]\n#define X 12a\n", "9: no number: \"12a\""},
        {"NumberTooLarge", kOptions + kFiles + "[MAP]\n#define X 4294967296\n", "9: no number: \"4294967296\""},
        {"NegativeNumber", kOptions + kFiles + "[MAP]\n#define X -1\n", "9: no number: \"-1\""},
        {"NoDefine", kOptions + kFiles + "[MAP]\nX 1\n", "9: no #define NAME NUMBER: \"X 1\""},
        {"NoAssignment", kOptions + kFiles + "[ALIAS]\nX\n", "9: no NAME=VALUE: \"X\""},
        {"NoTitle", "[OPTIONS]\nDefault topic=a.html\nContents file=c\n[FILES]\na.html\n",
         "5: [OPTIONS] has no \"Title\""},
        {"NoDefaultTopic", "[OPTIONS]\nTitle=T\nContents file=c\n", "3: [OPTIONS] has no \"Default topic\""},
        {"NoContentsFile", "[OPTIONS]\nTitle=T\nDefault topic=a\n", "3: [OPTIONS] has no \"Contents file\""},
        {"DefaultTopicUnlisted", kOptions + "[FILES]\nb.html\n", "6: the default topic \"a.html\" is not in [FILES]"},
        {"OptionTwice", "[OPTIONS]\nTitle=T\ntitle=U\n", "3: the option \"title\" stands twice"},
        {"UnknownOption", "[OPTIONS]\nColour=red\n", "2: unknown option \"Colour\""},
        {"TitleTooLong", "[OPTIONS]\nTitle=" + std::string(1001, 'T') + "\n", "2: the option \"Title\" is too long"},
        {"UnknownSection", "[WINDOWS]\n", "1: unknown section \"[WINDOWS]\""},
        {"NoSection", "\nTitle=T\n", "2: no section holds this line: \"Title=T\""},
        {"OutOfTheFolder", "[FILES]\na/../../b\n", "2: no plain name of a file in the project's folder: \"a/../../b\""},
        {"AbsoluteName", "[FILES]\n\\etc\\passwd\n",
         "2: no plain name of a file in the project's folder: \"\\etc\\passwd\""},
        {"SystemName", "[FILES]\n#SYSTEM\n", "2: a name that only the system's own objects may have: \"#SYSTEM\""},
    }),
    [](const auto &row) { return row.param.name; });

TEST(SystemObjects, leadFromIdsToTopics)
{
    const auto objects =
        systemObjects({"T", "a.html", "toc.hhc", {}, {{203, "b.html"}, {202, "a.html"}, {9, "b.html"}}});
    ASSERT_EQ(objects.size(), 3u);
    EXPECT_EQ(objects[0].name, "/#SYSTEM");
    EXPECT_EQ(objects[0].bytes, "\x03\0\0\0"s + "\x04\0\x24\0\x09\x04\0\0"s + std::string(32, '\0') + "\x02\0\x07\0"s +
                                    "a.html\0"s + "\x03\0\x02\0T\0"s + "\0\0\x08\0"s + "toc.hhc\0"s);
    EXPECT_EQ(objects[1].name, "/#IVB");
    EXPECT_EQ(objects[1].bytes,
              "\x18\0\0\0"s + "\x09\0\0\0\x01\0\0\0"s + "\xCA\0\0\0\x08\0\0\0"s + "\xCB\0\0\0\x01\0\0\0"s);
    EXPECT_EQ(objects[2].name, "/#STRINGS");
    EXPECT_EQ(objects[2].bytes, "\0b.html\0a.html\0"s);
}

}  // namespace
}  // namespace penwright::mkchm
