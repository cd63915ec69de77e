#include <algorithm>
#include <random>
#include <vector>

#include "core/IesText.h"
#include "support/SampleRecords.h"
#include "unit/core/IesReaderTest.h"

namespace penwright {
namespace {

/// Damage of files, the same for the same seed: bytes changed, parts cut, doubled or moved, and words put in that
/// readers stumble over.
class Damage {
public:
    explicit Damage(unsigned seed) : m_random(seed) {}

    std::string of(std::string text)
    {
        for (std::size_t times = 1 + below(4); times > 0; --times)
            hurt(text);
        return text;
    }

    std::size_t below(std::size_t limit) { return m_random() % std::max<std::size_t>(limit, 1); }

private:
    void hurt(std::string &text)
    {
        static const std::vector<std::string> kWords{
            "1000000", "32767",     "32768",    "-1",          "0",        "1e400", "1e-400",      "nan",
            "inf",     "0x1F",      ",",        ",,",          "\r",       "\n",    "\t",          "\x1A",
            "TILT=",   "TILT=NONE", "1.5",      "\xB0",        "\xFF\xFE", "+",     "-",           ".",
            "1e+",     "1E+308",    "IESNA91 ", "99999999999", "[MORE]",   "\"",    "\xEF\xBB\xBF"};
        const std::size_t place = below(text.size());
        const std::size_t length = below(below(4) == 0 ? text.size() - place : 6);
        switch (below(7)) {
            case 0:
                text[place] = static_cast<char>(below(256));
                break;
            case 1:
                text.erase(place, length);
                break;
            case 2:
                text.resize(place);
                break;
            case 3:
                text.insert(below(text.size()), text.substr(place, length));
                break;
            case 4:
                text.insert(place, 1, static_cast<char>(below(256)));
                break;
            default:
                text.replace(place, below(3), kWords[below(kWords.size())]);
        }
        if (text.empty())
            text = " ";
    }

    std::mt19937 m_random;
};

std::vector<std::string> samples()
{
    std::vector<std::string> files{test::kWholeFile, test::kFileWithoutTilt, iesFileText(test::smallRecord()),
                                   test::with(test::kWholeFile, "IESNA:LM-63-1995", "IES:LM-63-2019")};
    std::string inUtf16 = "\xFF\xFE";
    for (const char c : test::kFileWithoutTilt)
        inUtf16 += {c, '\0'};
    files.push_back(inUtf16);
    return files;
}

/// What every file must come to, whatever stands in it: a fault with a line that the file has, which is counted, or a
/// record whose counts and lists agree and which comes back from its own text.
void expectSense(const std::string &file, int &refused)
{
    const auto reading = readIesFile(file);
    if (const IesFault *fault = std::get_if<IesFault>(&reading)) {
        ASSERT_TRUE(fault->text.starts_with("Line " + std::to_string(fault->line) + ": ")) << fault->text;
        ASSERT_TRUE(fault->text.ends_with('.')) << fault->text;
        ASSERT_GE(fault->line, 1U);
        ASSERT_LE(fault->line, file.size() + 1);
        ++refused;
        return;
    }
    PhotometricRecord record = std::get<IesContent>(reading).record;
    ASSERT_EQ(record.VertAngles.size(), record.NumVertAngles);
    ASSERT_EQ(record.Candela.rows(), record.NumHorzAngles);
    ASSERT_EQ(record.TiltMultipliers.size(), record.NumTiltAngles);
    if (record.Keywords.empty())
        record.Keywords.append("IESNA91");
    const std::string text = iesFileText(record);
    ASSERT_EQ(iesFileText(test::iesContentOf(text).record), text);
}

TEST(IesReaderFuzz, damagedFilesAreReadOrRefused)
{
    Damage damage(2019);
    const std::vector<std::string> files = samples();
    int refused = 0;
    constexpr int kFiles = 20'000;
    for (int i = 0; i < kFiles; ++i) {
        const std::string file = damage.of(files[damage.below(files.size())]);
        ASSERT_NO_FATAL_FAILURE(expectSense(file, refused)) << "file " << i << ": " << file;
    }
    EXPECT_GT(refused, kFiles / 4);
    EXPECT_LT(refused, kFiles);
}

TEST(IesReaderFuzz, noiseIsRefused)
{
    Damage damage(63);
    for (int i = 0; i < 2'000; ++i) {
        std::string noise;
        for (std::size_t bytes = damage.below(400); bytes > 0; --bytes)
            noise += static_cast<char>(damage.below(256));
        ASSERT_NE(test::refusalOf(noise), "") << i;
    }
}

}  // namespace
}  // namespace penwright
