#pragma once

#include <mspack.h>

#include <string>

namespace penwright::chm {

/// The world as the decompressor sees it: one file to read, which is the given content, one to write, which grows here,
/// and memory up to a limit that all such systems of a thread share. It never reaches the disk.
class MemorySystem : public mspack_system {
public:
    explicit MemorySystem(std::string content);
    MemorySystem(const MemorySystem &) = delete;
    MemorySystem &operator=(const MemorySystem &) = delete;

    const std::string &input() const { return m_input; }

    /// Empties what is written to, and limits it.
    void startOutput(std::size_t limit);

    /// What has been written since startOutput.
    std::string popOutput();

    /// The names by which the decompressor asks for its two files.
    static constexpr const char *kInputName = "in";
    static constexpr const char *kOutputName = "out";

private:
    struct File;

    static MemorySystem &of(mspack_system *self) { return *static_cast<MemorySystem *>(self); }
    static mspack_file *openFile(mspack_system *self, const char *name, int mode);
    static void closeFile(mspack_file *file);
    static int readFile(mspack_file *file, void *buffer, int bytes);
    static int writeFile(mspack_file *file, void *buffer, int bytes);
    static int seekFile(mspack_file *file, off_t offset, int mode);
    static off_t tellFile(mspack_file *file);
    static void *allocate(mspack_system *self, std::size_t bytes);
    static void release(void *memory);

    std::string m_input;
    std::string m_output;
    std::size_t m_outputLimit = 0;
};

}  // namespace penwright::chm
