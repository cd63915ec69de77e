#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

#include <xcb/xcb.h>

#include "mkchm/HelpProject.h"
#include "platform/Freed.h"
#include "support/Process.h"
#include "support/TempFolder.h"

namespace penwright::test {
namespace {

namespace fs = std::filesystem;

/// How many pixels of each colour the screen shows, as 0xRRGGBB.
std::map<std::uint32_t, int> coloursOnScreen()
{
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const auto cookie = xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, screen->root, 0, 0,
                                      screen->width_in_pixels, screen->height_in_pixels, ~0U);
    const auto image = freed(xcb_get_image_reply(connection, cookie, nullptr));
    std::map<std::uint32_t, int> colours;
    if (image) {
        const auto *pixels = reinterpret_cast<const std::uint32_t *>(xcb_get_image_data(image.get()));
        for (int i = 0; i < xcb_get_image_data_length(image.get()) / 4; ++i)
            ++colours[pixels[i] & 0xFFFFFF];
    }
    xcb_disconnect(connection);
    return colours;
}

/// A colour that nothing on the screen has of itself, another for each context id.
std::uint32_t colourOf(std::uint32_t id)
{
    return 0x30C010U + (id - 200) * 0x100510U;
}

std::string htmlColour(std::uint32_t colour)
{
    char text[8];
    std::snprintf(text, sizeof text, "#%06x", colour);
    return text;
}

/// The program's help with each page on a ground of its own colour, compiled in a folder that is gone afterwards: a
/// reader might otherwise find a page on the disk.
class OtherReader : public testing::TestWithParam<std::uint32_t> {
protected:
    OtherReader()
    {
        const TempFolder sources;
        fs::copy(HELP_FOLDER, sources.path(), fs::copy_options::recursive);
        project = mkchm::readProject(contentOf(sources.file("Lumentor_PE-HTML.hhp")));
        for (const auto &[id, topic] : project.topics) {
            std::string page = contentOf(sources.file(topic));
            page.insert(page.find("<body") + 5, " bgcolor=\"" + htmlColour(colourOf(id)) + "\"");
            std::ofstream(sources.file(topic)) << page;
        }
        Process compiler({MKCHM, sources.file("Lumentor_PE-HTML.hhp"), help});
        compilerStatus = compiler.waitForEnd();
    }

    TempFolder folder;
    const std::string help = folder.file("Lumentor_PE-HTML.chm");
    mkchm::HelpProject project;
    std::optional<int> compilerStatus;
};

TEST_P(OtherReader, opensTheHelpAtItsId)
{
    ASSERT_EQ(compilerStatus, 0);
    ASSERT_EQ(project.topics.count(GetParam()), 1u);
    constexpr int kMostOfAPage = 20000;  // pixels
    const Process reader({"xchm", "-c", std::to_string(GetParam()), help}, {}, Process::Errors::Dropped);
    std::map<std::uint32_t, int> shown;
    EXPECT_TRUE(waitUntil(
        [&] {
            shown = coloursOnScreen();
            return shown[colourOf(GetParam())] > kMostOfAPage;
        },
        30s));
    for (const auto &[id, topic] : project.topics)
        if (id != GetParam())
            EXPECT_LT(shown[colourOf(id)], kMostOfAPage) << topic << " is shown";
}

INSTANTIATE_TEST_SUITE_P(Ids, OtherReader, testing::Range(202U, 208U));

TEST(OtherUnpacker, findsTheHelpWhole)
{
    Process unpacker({"7zz", "t", HELP_FILE}, {}, Process::Errors::Joined);
    const std::string said = unpacker.readAll();
    EXPECT_NE(said.find("Type = Chm"), std::string::npos) << said;
    EXPECT_NE(said.find("Everything is Ok"), std::string::npos) << said;
    EXPECT_EQ(unpacker.waitForEnd(), 0);
}

TEST(OtherUnpacker, getsOutWhatWasPutIn)
{
    const TempFolder folder;
    Process unpacker({"7zz", "x", HELP_FILE, "-o" + folder.path().string()}, {}, Process::Errors::Joined);
    const std::string said = unpacker.readAll();
    ASSERT_EQ(unpacker.waitForEnd(), 0) << said;
    for (const std::string &file : mkchm::readProject(contentOf(HELP_FOLDER "/Lumentor_PE-HTML.hhp")).files)
        EXPECT_EQ(contentOf(folder.file(file)), contentOf(fs::path(HELP_FOLDER) / file)) << file;
}

}  // namespace
}  // namespace penwright::test
