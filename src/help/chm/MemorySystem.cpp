#include "help/chm/MemorySystem.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>
#include <utility>

#include "help/chm/Limits.h"

namespace penwright::chm {
namespace {

/// Stands before each piece of memory that is given out.
struct alignas(std::max_align_t) Block {
    std::size_t size;
};

/// What is given out at this moment to all decompressors of this thread together.
thread_local std::size_t allocated = 0;

void ignoreMessage(mspack_file *, const char *, ...) {}

}  // namespace

/// One of the two files, open.
struct MemorySystem::File {
    MemorySystem &system;
    bool isOutput;
    off_t position = 0;

    static File &of(mspack_file *file) { return *reinterpret_cast<File *>(file); }
};

MemorySystem::MemorySystem(std::string content) : mspack_system{}, m_input(std::move(content))
{
    open = openFile;
    close = closeFile;
    read = readFile;
    write = writeFile;
    seek = seekFile;
    tell = tellFile;
    message = ignoreMessage;
    alloc = allocate;
    free = release;
    copy = [](void *from, void *to, std::size_t bytes) { std::memcpy(to, from, bytes); };
}

void MemorySystem::startOutput(std::size_t limit)
{
    m_output.clear();
    m_outputLimit = limit;
}

std::string MemorySystem::popOutput()
{
    return std::exchange(m_output, {});
}

mspack_file *MemorySystem::openFile(mspack_system *self, const char *name, int mode)
{
    const bool isOutput = mode == MSPACK_SYS_OPEN_WRITE;
    if ((!isOutput && mode != MSPACK_SYS_OPEN_READ) || std::strcmp(name, isOutput ? kOutputName : kInputName) != 0)
        return nullptr;
    return reinterpret_cast<mspack_file *>(new (std::nothrow) File{of(self), isOutput});
}

void MemorySystem::closeFile(mspack_file *file)
{
    delete &File::of(file);
}

int MemorySystem::readFile(mspack_file *file, void *buffer, int bytes)
{
    File &from = File::of(file);
    if (from.isOutput || bytes < 0)
        return -1;
    const std::string &input = from.system.m_input;
    const auto left = static_cast<off_t>(input.size()) - from.position;
    const auto count = std::min<off_t>(bytes, left);
    std::memcpy(buffer, input.data() + from.position, static_cast<std::size_t>(count));
    from.position += count;
    return static_cast<int>(count);
}

int MemorySystem::writeFile(mspack_file *file, void *buffer, int bytes)
{
    File &to = File::of(file);
    MemorySystem &system = to.system;
    const auto count = static_cast<std::size_t>(bytes);
    if (!to.isOutput || bytes < 0 || count > system.m_outputLimit - system.m_output.size())
        return -1;
    system.m_output.append(static_cast<const char *>(buffer), count);
    return bytes;
}

int MemorySystem::seekFile(mspack_file *file, off_t offset, int mode)
{
    File &seeker = File::of(file);
    const auto size = static_cast<off_t>(seeker.system.m_input.size());
    const off_t base = mode == MSPACK_SYS_SEEK_CUR ? seeker.position : mode == MSPACK_SYS_SEEK_END ? size : 0;
    // Offsets come from the file and may be anything; so compared, nothing overflows.
    if (seeker.isOutput || offset < -base || offset > size - base)
        return -1;
    seeker.position = base + offset;
    return 0;
}

off_t MemorySystem::tellFile(mspack_file *file)
{
    return File::of(file).position;
}

// The decompressor passes copies of the system it was given, so that nothing behind `self` can be relied on here.
void *MemorySystem::allocate(mspack_system *, std::size_t bytes)
{
    if (bytes > kMostMemory - allocated)
        return nullptr;
    auto *block = static_cast<Block *>(std::calloc(1, sizeof(Block) + bytes));
    if (!block)
        return nullptr;
    block->size = bytes;
    allocated += bytes;
    return block + 1;
}

void MemorySystem::release(void *memory)
{
    if (!memory)
        return;
    Block *block = static_cast<Block *>(memory) - 1;
    allocated -= block->size;
    std::free(block);
}

}  // namespace penwright::chm
