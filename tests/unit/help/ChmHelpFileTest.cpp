#include "help/chm/ChmHelpFile.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <filesystem>

#include "platform/RunTimeError.h"
#include "support/HelpSamples.h"
#include "support/TempFolder.h"

namespace penwright::test {
namespace {

using namespace std::string_literals;
using mkchm::makeContainer;

const std::string kPage = samplePage("P", "<p>p</p>");

std::unique_ptr<HelpFile> fileOf(const std::vector<ChmObject> &objects)
{
    return readChm("/help/x.chm", makeContainer(objects));
}

std::string contentsOf(const HelpFile &file)
{
    std::string lines;
    for (const HelpEntry &entry : file.contents())
        lines += std::string(static_cast<std::size_t>(entry.depth), '.') + entry.title + " -> " +
                 (entry.place ? entry.place->topic + "#" + entry.place->anchor : "") + "\n";
    return lines;
}

template <typename Action>
std::string errorOf(Action action)
{
    try {
        action();
    } catch (const RunTimeError &error) {
        return error.description();
    }
    return "no error";
}

TEST(OwnHelpFile, givesAllThatWasPutIn)
{
    const auto file = readChm("x.chm", sampleHelp());
    EXPECT_EQ(file->title(), "Sample Help");
    EXPECT_EQ(file->home(), (HelpPlace{"first.html", ""}));
    EXPECT_EQ(contentsOf(*file),
              "First & foremost -> first.html#\n.Second -> second.html#\nThird -> more/third.html#\n");
    EXPECT_EQ(file->topicFor(10), (HelpPlace{"first.html", ""}));
    EXPECT_EQ(file->topicFor(30), (HelpPlace{"more/third.html", ""}));
    EXPECT_EQ(file->topicFor(11), std::nullopt);
    for (const char *name : {"first.html", "second.html", "more/third.html"})
        EXPECT_EQ(file->page(name), sampleFile(name));
    EXPECT_EQ(file->object("/style.css"), sampleFile("style.css"));
    std::string texts;
    for (const HelpText &text : file->texts())
        texts += text.topic + "|" + text.title + "|" + text.text + "\n";
    EXPECT_EQ(texts,
              "first.html|First & foremost|First & foremost Lumens of a lamp. on\n"
              "more/third.html|Third|Third Candela only. back\n"
              "second.html|Second|Second Ballast factor of a lamp. Low\n");
}

TEST(OwnHelpFile, findsNamesWithoutRegardToCase)
{
    const auto file = readChm("x.chm", sampleHelp());
    EXPECT_EQ(file->find("ms-its:other.chm::/More\\THIRD.html#x"), (HelpPlace{"more/third.html", "x"}));
    EXPECT_EQ(file->find("fourth.html"), std::nullopt);
    EXPECT_EQ(file->find("style.css"), std::nullopt) << "it is no page";
    EXPECT_EQ(file->object("Style.CSS"), sampleFile("style.css"));
    EXPECT_EQ(file->object("nothing.css"), std::nullopt);
}

TEST(OwnHelpFile, findsEachOfManyObjects)
{
    std::vector<ChmObject> objects;
    for (int i = 0; i < 2000; ++i)
        objects.push_back({"/p" + std::to_string(i) + ".html", std::to_string(i)});
    const auto file = fileOf(objects);
    for (int i = 0; i < 2000; ++i)
        ASSERT_EQ(file->page("P" + std::to_string(i) + ".HTML"), std::to_string(i));
}

TEST(OtherMakers, contentsAndTopicComeFromTheWindow)
{
    const auto file = fileOf({{"/#SYSTEM", systemObject({{3, "T"}, {5, "main"}})},
                              {"/#STRINGS", "\0Window\0b.html\0real.hhc\0"s},
                              {"/#WINDOWS", windowObject(1, 15, 8)},
                              {"/a.html", kPage},
                              {"/b.html", kPage},
                              {"/another.hhc", sampleEntry("wrong", "a.html")},
                              {"/real.hhc", sampleEntry("right", "a.html")}});
    EXPECT_EQ(file->title(), "T");
    EXPECT_EQ(file->home().topic, "b.html");
    EXPECT_EQ(contentsOf(*file), "right -> a.html#\n");
}

TEST(OtherMakers, lastOfAllTheFirstContentsFileAndItsFirstPageCount)
{
    const auto file =
        fileOf({{"/a.html", kPage},
                {"/b.html", kPage},
                {"/Z.HHC", sampleEntry("Heading", "") + sampleEntry("B", "b.html#low") + sampleEntry("?", "c.html")}});
    EXPECT_EQ(file->title(), "x.chm");
    EXPECT_EQ(contentsOf(*file), "Heading -> \nB -> b.html#low\n? -> \n");
    EXPECT_EQ(file->home(), (HelpPlace{"b.html", "low"}));
    EXPECT_EQ(fileOf({{"/z.html", kPage}, {"/a.css", ""}})->home(), (HelpPlace{"z.html", ""}));
}

TEST(OtherMakers, aDefaultTopicThatIsNotThereIsPassedOver)
{
    const auto file = fileOf({{"/#SYSTEM", systemObject({{2, "gone.html"}, {0, "gone.hhc"}})}, {"/a.html", kPage}});
    EXPECT_EQ(file->home().topic, "a.html");
    EXPECT_EQ(contentsOf(*file), "");
}

TEST(OtherMakers, idsMayLeadToAnchorsInFolders)
{
    const auto file = fileOf({{"/#IVB", idObject({{7, 1}, {5, 1}, {6, 15}, {8, 99}})},
                              {"/#STRINGS", "\0dir\\A.HTM#low\0gone.html\0"s},
                              {"/Dir/a.htm", kPage}});
    EXPECT_EQ(file->topicFor(5), (HelpPlace{"Dir/a.htm", "low"}));
    EXPECT_EQ(file->topicFor(7), file->topicFor(5));
    EXPECT_EQ(file->topicFor(8), std::nullopt);
    EXPECT_EQ(file->topicFor(6), (HelpPlace{"gone.html", ""}));
    EXPECT_EQ(errorOf([&] { file->page("gone.html"); }), "The help file lacks a page: gone.html in /help/x.chm");
}

// One compiler stores the paths of the machine that it ran on; a page of the same name may lie in several folders.
TEST(OtherMakers, mayStoreAbsolutePaths)
{
    const std::string strings =
        "\0/home/u/help/index.html\0/home/u/help/B/index.html#low\0C:\\help\\b\\Index.html\0/home/u/help/gone.html\0"
        "home/u/help/index.html\0"s;
    std::vector<std::pair<unsigned, unsigned>> ids;
    for (unsigned id = 1, offset = 1; offset < strings.size();
         ++id, offset = static_cast<unsigned>(strings.find('\0', offset)) + 1)
        ids.emplace_back(id, offset);
    ASSERT_EQ(ids.size(), 5u);
    const auto file =
        fileOf({{"/#IVB", idObject(ids)},
                {"/#STRINGS", strings},
                {"/#SYSTEM", systemObject({{2, "/home/u/help/b/index.html"}})},
                {"/toc.hhc", sampleEntry("A", "/home/u/help/index.html#top") +
                                 sampleEntry("B", "D:/other/b/index.html") + sampleEntry("C", "/home/u/index.htm")},
                {"/b/index.html", kPage},
                {"/index.html", kPage}});
    EXPECT_EQ(file->topicFor(1), (HelpPlace{"index.html", ""}));
    EXPECT_EQ(file->topicFor(2), (HelpPlace{"b/index.html", "low"}));
    EXPECT_EQ(file->topicFor(3), (HelpPlace{"b/index.html", ""}));
    EXPECT_EQ(file->topicFor(4), (HelpPlace{"home/u/help/gone.html", ""})) << "no tail is a page";
    EXPECT_EQ(file->topicFor(5), (HelpPlace{"home/u/help/index.html", ""})) << "it is no absolute path";
    EXPECT_EQ(file->home(), (HelpPlace{"b/index.html", ""}));
    EXPECT_EQ(contentsOf(*file), "A -> index.html#top\nB -> b/index.html#\nC -> \n");
    EXPECT_EQ(file->find("/home/u/help/index.html"), std::nullopt) << "a link in a page is no stored path";
}

TEST(OtherMakers, absolutePathsOfARealFileLeadToItsPages)
{
    const auto file = openChm(DATA_FOLDER "/absolute-paths.chm");
    EXPECT_EQ(file->topicFor(5), (HelpPlace{"index.html", ""}));
    EXPECT_EQ(file->topicFor(6), (HelpPlace{"parts/index.html", ""}));
    EXPECT_NE(file->page("parts/index.html").find("Ballast factor."), std::string::npos);
}

TEST(OtherMakers, mayWriteTheFirstGuidTwice)
{
    std::string bytes = sampleHelp();
    bytes.replace(0x28, 16, bytes, 0x18, 16);
    EXPECT_EQ(readChm("x.chm", bytes)->title(), "Sample Help");
}

TEST(OtherMakers, textsAreInTheCodePageOfTheirLanguage)
{
    const auto file = fileOf({{"/#SYSTEM", systemObject({{3, "\xD1\xE2\xE5\xF2"}}) + systemRecord(4, "\x19\x04\0\0"s)},
                              {"/toc.hhc", sampleEntry("\xD1", "a.html")},
                              {"/a.html", samplePage("\xD2", "\xF2")},
                              {"/b.html", samplePage("П", "п")}});
    EXPECT_EQ(file->title(), "Свет");
    EXPECT_EQ(contentsOf(*file), "С -> a.html#\n");
    EXPECT_EQ(file->page("a.html"), samplePage("Т", "т"));
    EXPECT_EQ(file->page("b.html"), samplePage("П", "п"));
}

// A page without a title is called by its name, which a compiler may have stored in any bytes.
TEST(OtherMakers, namesOfPagesAreSaidInUtf8)
{
    const auto file =
        fileOf({{"/#SYSTEM", systemObject({{3, "T"}}) + systemRecord(4, "\x19\x04\0\0"s)}, {"/\xD1.html", "<p>p</p>"}});
    ASSERT_EQ(file->texts().size(), 1u);
    EXPECT_EQ(file->texts()[0].title, "С.html");
    EXPECT_EQ(file->texts()[0].topic, "\xD1.html");
    EXPECT_EQ(file->page("\xD1.html"), "<p>p</p>");
    EXPECT_EQ(errorOf([&] { file->page("\xD2.html"); }), "The help file lacks a page: Т.html in /help/x.chm");
}

// Made by another compiler: compressed, and with its own order of everything.
TEST(OtherMakers, compressedFilesAreRead)
{
    const auto file = openChm(DATA_FOLDER "/compressed.chm");
    EXPECT_EQ(file->title(), "Another maker's help");
    EXPECT_EQ(file->home().topic, "a.html");
    EXPECT_EQ(contentsOf(*file), "First -> a.html#\n.Second -> b.html#\n");
    ASSERT_EQ(file->texts().size(), 2u);
    EXPECT_NE(file->page("b.html").find("<p>Ballast factor.</p>"), std::string::npos);
    EXPECT_NE(file->page("a.html").find("<p>Lumens and candela.</p>"), std::string::npos) << "back before the first";
}

TEST(Refused, isWhatIsNoHelpFile)
{
    const TempFolder folder;
    const std::string path = folder.file("x.chm");
    const auto openingError = [&] { return errorOf([&] { openChm(path); }); };
    EXPECT_EQ(openingError(), "The help file is missing: " + path);
    std::ofstream(path).close();
    EXPECT_EQ(openingError(), "The help file cannot be read: " + path + ": it ends too early.");
    std::ofstream(path) << std::string(10000, 'x');
    EXPECT_EQ(openingError(), "The help file cannot be read: " + path + ": it is no compiled help file.");
    std::ofstream(path) << makeContainer({{"/a.css", "x"}});
    EXPECT_EQ(openingError(), "The help file cannot be read: " + path + ": it holds no page.");
    std::filesystem::resize_file(path, (64U << 20) + 1);
    EXPECT_EQ(openingError(), "The help file cannot be read: " + path + ": it is larger than 64 MiB.");
    std::filesystem::remove(path);
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    EXPECT_EQ(openingError(), "The help file cannot be read: " + path + ": it is no file.");
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    EXPECT_EQ(openingError(), "The help file cannot be read: " + path + ": it is no file.");
    EXPECT_EQ(errorOf([&] { openChm(path + "/" + std::string(300, 'n')); }).substr(0, 30),
              "The help file cannot be read: ");
}

TEST(Refused, isWhatHoldsTooMuch)
{
    std::vector<ChmObject> objects;
    for (int i = 0; i < 20001; ++i)
        objects.push_back({"/" + std::to_string(i) + ".html", ""});
    EXPECT_EQ(errorOf([&] { fileOf(objects); }),
              "The help file cannot be read: /help/x.chm: it holds more than 20000 names.");
}

TEST(Refused, isAPageThatIsTooLargeOrCutOff)
{
    const auto file = fileOf({{"/a.html", kPage}, {"/b.html", std::string((16U << 20) + 1, 'x')}});
    EXPECT_EQ(errorOf([&] { file->page("b.html"); }),
              "A page of the help file cannot be read: b.html in /help/x.chm: it is too large.");
    EXPECT_EQ(file->object("b.html"), std::nullopt);
    EXPECT_EQ(file->texts().size(), 1u);
    const std::string whole = makeContainer({{"/a.html", kPage}});
    const auto cut = readChm("/help/x.chm", whole.substr(0, whole.size() - 40));
    EXPECT_EQ(errorOf([&] { cut->page("a.html"); }),
              "A page of the help file cannot be read: a.html in /help/x.chm: it ends too early.");
}

TEST(Search, stopsAtATotalOfText)
{
    std::vector<ChmObject> objects;
    const std::string text = samplePage("x", "<!-- " + std::string(4U << 20, 'x') + " -->");
    for (int i = 0; i < 12; ++i)
        objects.push_back({"/" + std::to_string(i) + ".html", text});
    EXPECT_EQ(fileOf(objects)->texts().size(), 8u);
}

}  // namespace
}  // namespace penwright::test
