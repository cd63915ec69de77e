#include "mkchm/ChmDirectory.h"

#include <algorithm>
#include <stdexcept>

#include "mkchm/ChmFormat.h"
#include "mkchm/LittleEndian.h"

namespace penwright::mkchm {
namespace {

constexpr std::size_t kChunkSize = 0x1000;
constexpr std::size_t kListingHeader = 0x14;
constexpr std::size_t kIndexHeader = 8;
constexpr std::size_t kDensity = 2;
constexpr std::size_t kQuickStep = 1 + (1U << kDensity);  ///< every so many entries one has a quick reference
constexpr std::uint32_t kNone = 0xFFFFFFFF;

char lower(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

/// The entries of one chunk, and the quick references that grow towards them from the chunk's end.
class Chunk {
public:
    explicit Chunk(std::size_t headerSize) : m_headerSize(headerSize) {}

    bool isEmpty() const { return m_count == 0; }

    /// Adds an entry; false when the chunk has no room for it.
    bool add(const std::string &entry)
    {
        const bool isReferenced = m_count > 0 && m_count % kQuickStep == 0;
        const std::size_t tail = 2 * (m_references.size() + isReferenced) + 2;
        if (m_headerSize + m_entries.size() + entry.size() + tail > kChunkSize)
            return false;
        if (isReferenced)
            m_references.push_back(m_entries.size());
        m_entries += entry;
        ++m_count;
        return true;
    }

    /// What is left for entries, quick references included.
    std::size_t free() const { return kChunkSize - m_headerSize - m_entries.size(); }

    /// Entries and quick references, to be put behind the header.
    std::string body() const
    {
        std::string bytes = m_entries;
        bytes.resize(kChunkSize - m_headerSize - 2 * m_references.size() - 2);
        for (auto offset = m_references.rbegin(); offset != m_references.rend(); ++offset)
            append16(bytes, *offset);
        append16(bytes, m_count);
        return bytes;
    }

private:
    std::size_t m_headerSize;
    std::string m_entries;
    std::vector<std::size_t> m_references;
    std::size_t m_count = 0;
};

std::string nameOf(const DirectoryEntry &entry)
{
    std::string bytes;
    appendEncInt(bytes, entry.name.size());
    return bytes + entry.name;
}

std::string listingEntry(const DirectoryEntry &entry)
{
    std::string bytes = nameOf(entry);
    appendEncInt(bytes, 0);  // the section of what is not compressed
    appendEncInt(bytes, entry.offset);
    appendEncInt(bytes, entry.length);
    return bytes;
}

struct Listing {
    std::vector<Chunk> chunks;
    std::vector<std::string> firstNames;
};

Listing makeListing(const std::vector<DirectoryEntry> &entries)
{
    Listing listing;
    for (const DirectoryEntry &entry : entries) {
        const std::string bytes = listingEntry(entry);
        if (!listing.chunks.empty() && listing.chunks.back().add(bytes))
            continue;
        listing.chunks.emplace_back(kListingHeader);
        listing.firstNames.push_back(nameOf(entry));
        if (!listing.chunks.back().add(bytes))
            throw std::length_error("the name is too long: " + entry.name);
    }
    return listing;
}

std::string listingChunk(const Listing &listing, std::size_t number)
{
    const bool isFirst = number == 0;
    const bool isLast = number + 1 == listing.chunks.size();
    std::string bytes = "PMGL";
    append32(bytes, listing.chunks[number].free());
    append32(bytes, 0);
    append32(bytes, isFirst ? kNone : number - 1);
    append32(bytes, isLast ? kNone : number + 1);
    return bytes + listing.chunks[number].body();
}

std::string indexChunk(const std::vector<std::string> &firstNames)
{
    Chunk index(kIndexHeader);
    for (std::size_t number = 0; number < firstNames.size(); ++number) {
        std::string entry = firstNames[number];
        appendEncInt(entry, number);
        if (!index.add(entry))
            throw std::length_error("there are too many files");
    }
    std::string bytes = "PMGI";
    append32(bytes, index.free());
    return bytes + index.body();
}

std::string directoryHeader(std::size_t listings, bool hasIndex)
{
    std::string bytes = "ITSP";
    append32(bytes, 1);  // version
    append32(bytes, kDirectoryHeaderSize);
    append32(bytes, 0x0A);
    append32(bytes, kChunkSize);
    append32(bytes, kDensity);
    append32(bytes, hasIndex ? 2 : 1);             // depth
    append32(bytes, hasIndex ? listings : kNone);  // root of the index
    append32(bytes, 0);                            // first listing
    append32(bytes, listings - 1);                 // last listing
    append32(bytes, kNone);
    append32(bytes, listings + (hasIndex ? 1 : 0));
    append32(bytes, kLanguage);
    bytes += kDirectoryGuid;
    append32(bytes, kDirectoryHeaderSize);
    for (int i = 0; i < 3; ++i)
        append32(bytes, kNone);
    return bytes;
}

}  // namespace

bool standsBefore(const std::string &left, const std::string &right)
{
    return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) {
        return static_cast<unsigned char>(lower(a)) < static_cast<unsigned char>(lower(b));
    });
}

std::string makeDirectory(const std::vector<DirectoryEntry> &entries)
{
    const Listing listing = makeListing(entries);
    const std::size_t count = listing.chunks.size();
    std::string bytes = directoryHeader(count, count > 1);
    for (std::size_t number = 0; number < count; ++number)
        bytes += listingChunk(listing, number);
    if (count > 1)
        bytes += indexChunk(listing.firstNames);
    return bytes;
}

}  // namespace penwright::mkchm
