#include "help/chm/ChmContainer.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "core/Ascii.h"
#include "help/chm/Limits.h"
#include "help/chm/MemorySystem.h"

namespace penwright::chm {
namespace {

constexpr std::size_t kFirstGuid = 0x18;
constexpr std::size_t kSecondGuid = 0x28;
constexpr std::size_t kGuidSize = 16;
constexpr char kSecondGuidBegin = 0x11;

/// Some makers write the first GUID twice, which the decompressor refuses.
std::string withBothGuids(std::string bytes)
{
    if (bytes.size() >= kSecondGuid + kGuidSize &&
        bytes.compare(kSecondGuid, kGuidSize, bytes, kFirstGuid, kGuidSize) == 0)
        bytes[kSecondGuid] = kSecondGuidBegin;
    return bytes;
}

std::string reasonOf(int error)
{
    switch (error) {
        case MSPACK_ERR_SIGNATURE:
            return "it is no compiled help file";
        case MSPACK_ERR_READ:
        case MSPACK_ERR_SEEK:
            return "it ends too early";
        case MSPACK_ERR_NOMEMORY:
            return "it asks for too much memory";
        default:
            return "it is damaged";
    }
}

}  // namespace

struct ChmContainer::Library {
    explicit Library(std::string bytes) : system(withBothGuids(std::move(bytes))) {}
    ~Library()
    {
        if (header)
            decompressor->close(decompressor, header);
        if (decompressor)
            mspack_destroy_chm_decompressor(decompressor);
    }
    Library(const Library &) = delete;
    Library &operator=(const Library &) = delete;

    MemorySystem system;
    mschm_decompressor *decompressor = nullptr;
    mschmd_header *header = nullptr;
};

struct ChmContainer::Object {
    std::string name;
    mschmd_file *file;

    bool isCompressed() const { return file->section->id != 0; }
    std::uint64_t end() const
    {
        return static_cast<std::uint64_t>(file->offset) + static_cast<std::uint64_t>(file->length);
    }
};

ChmContainer::ChmContainer(std::string bytes) : m_library(std::make_unique<Library>(std::move(bytes)))
{
    Library &library = *m_library;
    library.decompressor = mspack_create_chm_decompressor(&library.system);
    if (!library.decompressor)
        throw ContainerError(reasonOf(MSPACK_ERR_NOMEMORY));
    library.header = library.decompressor->open(library.decompressor, MemorySystem::kInputName);
    if (!library.header)
        throw ContainerError(reasonOf(library.decompressor->last_error(library.decompressor)));
    collectObjects();
}

ChmContainer::~ChmContainer() = default;

void ChmContainer::collectObjects()
{
    std::size_t count = 0;
    std::vector<const Object *> inOrder;
    for (mschmd_file *file = m_library->header->files; file; file = file->next) {
        if (++count > kMostNames)
            throw ContainerError("it holds more than " + std::to_string(kMostNames) + " names");
        const std::string full = file->filename;
        const std::string name =
            full.substr(full.find_first_not_of('/') == full.npos ? full.size() : full.find_first_not_of('/'));
        if (name.empty() || name.back() == '/' || file->offset < 0 || file->length < 0)
            continue;
        const auto [place, isNew] = m_objects.insert({lowerCase(name), Object{name, file}});
        if (isNew)
            inOrder.push_back(&place->second);
    }
    std::stable_sort(inOrder.begin(), inOrder.end(), [](const Object *left, const Object *right) {
        return std::tuple(left->isCompressed(), left->file->offset) <
               std::tuple(right->isCompressed(), right->file->offset);
    });
    for (const Object *object : inOrder)
        m_names.push_back(object->name);
}

std::uint32_t ChmContainer::language() const
{
    return m_library->header->language;
}

std::optional<std::string> ChmContainer::findName(const std::string &name) const
{
    const auto found = m_objects.find(lowerCase(name));
    return found == m_objects.end() ? std::nullopt : std::optional(found->second.name);
}

std::optional<std::string> ChmContainer::read(const std::string &name)
{
    const auto found = m_objects.find(lowerCase(name));
    if (found == m_objects.end())
        return std::nullopt;
    const Object &object = found->second;
    const auto length = static_cast<std::size_t>(object.file->length);
    if (length > kLargestObject || (object.isCompressed() && object.end() > kLongestWay))
        throw ContainerError("it is too large");
    Library &library = *m_library;
    library.system.startOutput(length);
    const int error = library.decompressor->extract(library.decompressor, object.file, MemorySystem::kOutputName);
    std::string bytes = library.system.popOutput();
    countWork(object, error == MSPACK_ERR_OK);
    if (error != MSPACK_ERR_OK || bytes.size() != length)
        throw ContainerError(reasonOf(error));
    return bytes;
}

void ChmContainer::countWork(const Object &object, bool wasRead)
{
    if (!object.isCompressed()) {
        m_work += static_cast<std::uint64_t>(object.file->length);
        return;
    }
    // The decompressor goes on from where it stands, but begins anew for what lies before and after a failure.
    const bool goesOn = m_reached <= static_cast<std::uint64_t>(object.file->offset);
    m_work += object.end() - (goesOn ? m_reached : 0);
    m_reached = wasRead ? object.end() : 0;
}

}  // namespace penwright::chm
