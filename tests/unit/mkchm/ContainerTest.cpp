#include "mkchm/ChmContainer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "mkchm/ChmDirectory.h"
#include "mkchm/LittleEndian.h"

namespace penwright::mkchm {
namespace {

constexpr std::size_t kDirectory = 0x78;
constexpr std::size_t kFirstChunk = kDirectory + 0x54;
constexpr std::size_t kChunkSize = 0x1000;

template <typename Number>
Number numberAt(const std::string &bytes, std::size_t place)
{
    Number number = 0;
    std::memcpy(&number, bytes.substr(place, sizeof number).data(), sizeof number);
    return number;
}
std::uint32_t at32(const std::string &bytes, std::size_t place)
{
    return numberAt<std::uint32_t>(bytes, place);
}

std::uint64_t takeEncInt(const std::string &bytes, std::size_t &place)
{
    std::uint64_t number = 0;
    for (;;) {
        const auto byte = static_cast<unsigned char>(bytes.at(place++));
        number = number << 7 | (byte & 0x7F);
        if (byte < 0x80)
            return number;
    }
}

std::string takeName(const std::string &bytes, std::size_t &place)
{
    const std::size_t length = takeEncInt(bytes, place);
    place += length;
    return bytes.substr(place - length, length);
}

struct Listed {
    std::string name;
    std::uint64_t section;
    std::uint64_t offset;
    std::uint64_t length;
};

/// One chunk, taken apart by what stands in it.
struct Chunk {
    std::string sign;
    std::uint32_t free;
    std::uint16_t count;
    std::size_t used = 0;             ///< bytes of the entries
    std::vector<std::size_t> places;  ///< of the entries, from the first on
    std::vector<Listed> entries;
};

Chunk chunkOf(const std::string &file, std::size_t number)
{
    const std::string bytes = file.substr(kFirstChunk + number * kChunkSize, kChunkSize);
    Chunk chunk{bytes.substr(0, 4), at32(bytes, 4), numberAt<std::uint16_t>(bytes, kChunkSize - 2), 0, {}, {}};
    const std::size_t header = chunk.sign == "PMGL" ? 0x14 : 8;
    std::size_t place = header;
    for (int i = 0; i < chunk.count; ++i) {
        chunk.places.push_back(place - header);
        Listed entry{takeName(bytes, place), takeEncInt(bytes, place), 0, 0};
        if (chunk.sign == "PMGL") {
            entry.offset = takeEncInt(bytes, place);
            entry.length = takeEncInt(bytes, place);
        }
        chunk.entries.push_back(entry);
    }
    chunk.used = place - header;
    for (std::size_t i = 5, back = 4; i < chunk.places.size(); i += 5, back += 2)
        EXPECT_EQ(numberAt<std::uint16_t>(bytes, kChunkSize - back), chunk.places[i])
            << "quick reference to entry " << i;
    EXPECT_EQ(chunk.free, kChunkSize - header - chunk.used);
    return chunk;
}

std::vector<ChmObject> manyObjects(int count)
{
    std::vector<ChmObject> objects;
    for (int i = 0; i < count; ++i)
        objects.push_back(
            {"/pages/Topic-" + std::to_string(i) + ".html", std::string(static_cast<std::size_t>(i), 'x')});
    return objects;
}

std::string bytesOfObject(const std::string &file, const Listed &entry)
{
    return file.substr(numberAt<std::uint64_t>(file, 0x58) + entry.offset, entry.length);
}

class EncInt : public testing::TestWithParam<std::pair<std::uint64_t, std::string>> {};

TEST_P(EncInt, hasSevenBitsAByteHighestFirst)
{
    std::string bytes;
    appendEncInt(bytes, GetParam().first);
    EXPECT_EQ(bytes, GetParam().second);
}

using namespace std::string_literals;
INSTANTIATE_TEST_SUITE_P(Numbers, EncInt,
                         testing::Values(std::pair(0, "\0"s), std::pair(1, "\x01"s), std::pair(0x7F, "\x7F"s),
                                         std::pair(0x80, "\x81\0"s), std::pair(0x3FFF, "\xFF\x7F"s),
                                         std::pair(0x4000, "\x81\x80\0"s), std::pair(0x12345, "\x84\xC6\x45"s),
                                         std::pair(0xFFFFFFFF, "\x8F\xFF\xFF\xFF\x7F"s),
                                         std::pair(0x100000000, "\x90\x80\x80\x80\0"s)));

TEST(Container, headerNamesSizesAndPlaces)
{
    const std::string file = makeContainer({{"/b.html", "bb"}, {"/A.html", "aaa"}});
    EXPECT_EQ(file.substr(0, 4), "ITSF");
    const std::vector<std::uint32_t> fields{at32(file, 4),    at32(file, 8),    at32(file, 0xC), at32(file, 0x10),
                                            at32(file, 0x14), at32(file, 0x60), at32(file, 0x64)};
    EXPECT_EQ(fields, (std::vector<std::uint32_t>{3, 0x60, 1, 0, 0x409, 0x1FE, 0}));
    const std::vector<std::uint64_t> places{numberAt<std::uint64_t>(file, 0x38), numberAt<std::uint64_t>(file, 0x40),
                                            numberAt<std::uint64_t>(file, 0x48), numberAt<std::uint64_t>(file, 0x50),
                                            numberAt<std::uint64_t>(file, 0x58), numberAt<std::uint64_t>(file, 0x68)};
    EXPECT_EQ(places, (std::vector<std::uint64_t>{0x60, 0x18, 0x78, 0x1054, 0x10CC, file.size()}));
    EXPECT_EQ(file.substr(0x18, 16), "\x10\xFD\x01\x7C\xAA\x7B\xD0\x11\x9E\x0C\0\xA0\xC9\x22\xE6\xEC"s);
    EXPECT_EQ(file.substr(0x28, 16), "\x11\xFD\x01\x7C\xAA\x7B\xD0\x11\x9E\x0C\0\xA0\xC9\x22\xE6\xEC"s);
    EXPECT_EQ(file.substr(file.size() - 5 - 32), "aaabb\x0E\0\x01\0\x0C\0U\0n\0c\0o\0m\0p\0r\0e\0s\0s\0e\0d\0\0\0"s);
}

TEST(Container, directoryHeaderOfOneChunkHasNoIndex)
{
    const std::string file = makeContainer({});
    const std::string header = file.substr(kDirectory, 0x54);
    EXPECT_EQ(header.substr(0, 4), "ITSP");
    std::vector<std::uint32_t> fields;
    for (std::size_t place = 4; place < 0x34; place += 4)
        fields.push_back(at32(header, place));
    constexpr std::uint32_t kNone = 0xFFFFFFFF;
    EXPECT_EQ(fields, (std::vector<std::uint32_t>{1, 0x54, 0xA, 0x1000, 2, 1, kNone, 0, 0, kNone, 1, 0x409}));
    EXPECT_EQ(header.substr(0x34, 16), "\x6A\x92\x02\x5D\x2E\x21\xD0\x11\x9D\xF9\0\xA0\xC9\x22\xE6\xEC"s);
    EXPECT_EQ(header.substr(0x44), "\x54\0\0\0\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF"s);
}

TEST(Container, namesAreSortedWithoutRegardToCase)
{
    const std::string file = makeContainer({{"/aZ.html", "4"}, {"/ab.html", "3"}, {"/#IVB", "0"}, {"/AA.html", ""}});
    std::string listed;
    for (const Listed &entry : chunkOf(file, 0).entries)
        listed += entry.name + " " + bytesOfObject(file, entry).substr(0, 1) + "\n";
    EXPECT_EQ(listed, "/ \n/#IVB 0\n/AA.html \n/ab.html 3\n/aZ.html 4\n::DataSpace/NameList \x0E\n");
    EXPECT_TRUE(standsBefore("/aA", "/ab"));
    EXPECT_FALSE(standsBefore("/aB", "/aA"));
}

TEST(Container, manyNamesFillSeveralChunksUnderOneIndex)
{
    const std::string file = makeContainer(manyObjects(700));
    const std::uint32_t chunks = at32(file, kDirectory + 0x2C);
    const std::uint32_t root = at32(file, kDirectory + 0x1C);
    ASSERT_GT(chunks, 4u);
    EXPECT_EQ(at32(file, kDirectory + 0x18), 2u) << "depth";
    EXPECT_EQ(root, chunks - 1);
    EXPECT_EQ(at32(file, kDirectory + 0x24), chunks - 2) << "last listing";

    const Chunk index = chunkOf(file, root);
    EXPECT_EQ(index.sign, "PMGI");
    ASSERT_EQ(index.entries.size(), chunks - 1);
    std::vector<std::string> names;
    for (std::uint32_t number = 0; number < root; ++number) {
        const Chunk chunk = chunkOf(file, number);
        EXPECT_EQ(chunk.sign, "PMGL");
        const std::size_t start = kFirstChunk + number * kChunkSize;
        EXPECT_EQ(at32(file, start + 0xC), number - 1);
        EXPECT_EQ(at32(file, start + 0x10), number + 1 == root ? 0xFFFFFFFF : number + 1);
        EXPECT_EQ(index.entries[number].name, chunk.entries.at(0).name);
        EXPECT_EQ(index.entries[number].section, number) << "the number of the chunk";
        for (const Listed &entry : chunk.entries)
            names.push_back(entry.name);
    }
    EXPECT_EQ(names.size(), 702u);
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end())) << "all of these are lower case but for one letter";
}

TEST(Container, everyObjectLiesWhereItIsListed)
{
    const std::vector<ChmObject> objects = manyObjects(300);
    const std::string file = makeContainer(objects);
    std::size_t found = 0;
    for (std::uint32_t number = 0; number < at32(file, kDirectory + 0x1C); ++number)
        for (const Listed &entry : chunkOf(file, number).entries)
            for (const ChmObject &object : objects)
                if (object.name == entry.name) {
                    EXPECT_EQ(bytesOfObject(file, entry), object.bytes) << entry.name;
                    ++found;
                }
    EXPECT_EQ(found, objects.size());
}

TEST(Container, refusesANameThatNoChunkHolds)
{
    EXPECT_THROW(makeContainer({{"/" + std::string(5000, 'n'), ""}}), std::length_error);
    EXPECT_NO_THROW(makeContainer({{"/" + std::string(4000, 'n'), ""}}));
}

TEST(Container, refusesMoreNamesThanOneIndexLeadsTo)
{
    std::vector<ChmObject> objects;
    for (int i = 0; i < 30; ++i)
        objects.push_back({"/" + std::to_string(i) + std::string(2500, 'n'), ""});
    EXPECT_THROW(makeContainer(objects), std::length_error);
}

}  // namespace
}  // namespace penwright::mkchm
