// Whatever happened to a help file, reading it ends, and ends with a text or an error.
#include <gtest/gtest.h>

#include <random>

#include "help/chm/ChmHelpFile.h"
#include "platform/RunTimeError.h"
#include "support/HelpSamples.h"
#include "support/TempFolder.h"

namespace penwright::test {
namespace {

/// Asks for all that a help window asks for; whether everything was there.
bool readEverything(const std::string &bytes)
{
    try {
        const auto file = readChm("x.chm", bytes);
        bool isWhole = !file->title().empty() && file->contents().size() >= 2 && file->texts().size() >= 2;
        for (const int id : {10, 20})
            isWhole = isWhole && file->topicFor(id);
        for (const HelpText &text : file->texts())
            isWhole = isWhole && !file->page(text.topic).empty();
        file->object("style.css");
        file->page(file->home().topic);
        return isWhole;
    } catch (const RunTimeError &error) {
        EXPECT_NE(error.description().find("x.chm"), std::string::npos);
        return false;
    }
}

class Damage : public testing::TestWithParam<std::string> {
protected:
    const std::string whole = GetParam().empty() ? sampleHelp() : contentOf(DATA_FOLDER "/" + GetParam());
};

TEST_P(Damage, aCutOffFileIsSurvived)
{
    ASSERT_TRUE(readEverything(whole));
    std::size_t read = 0;
    // The compressed file is mostly tables that are read as one; a length in seven meets them all.
    const std::size_t step = GetParam().empty() ? 1 : 7;
    for (std::size_t length = 0; length < whole.size(); length += step)
        read += readEverything(whole.substr(0, length));
    EXPECT_LT(read, whole.size() / step / 10) << "of a cut off file hardly anything is whole";
}

TEST_P(Damage, bytesThatHaveChangedAreSurvived)
{
    std::mt19937 random(20240229);
    const auto below = [&](std::size_t limit) { return random() % limit; };
    std::size_t read = 0;
    constexpr std::size_t kRounds = 2000;
    for (std::size_t round = 0; round < kRounds; ++round) {
        std::string bytes = whole;
        for (std::size_t change = 0; change < 1 + round % 8; ++change) {
            constexpr std::string_view kExtremes = "\x00\x01\x7F\x80\xFF";
            // Half of the changes hit the headers, where they tell most.
            const std::size_t place = below(round % 2 ? bytes.size() : 0x200);
            bytes[place] = below(2) ? kExtremes[below(5)] : static_cast<char>(below(256));
        }
        read += readEverything(bytes);
    }
    EXPECT_GT(read, kRounds / 20) << "most changes must be such that something is read";
    EXPECT_LT(read, kRounds - kRounds / 20);
}

INSTANTIATE_TEST_SUITE_P(Files, Damage, testing::Values("", "compressed.chm"),
                         [](const auto &row) { return row.param.empty() ? "Plain" : "Compressed"; });

}  // namespace
}  // namespace penwright::test
