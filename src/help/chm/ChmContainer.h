#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace penwright::chm {

/// Why a container or one of its objects cannot be read; the path is for the caller to add.
class ContainerError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The container of a compiled help file, held in memory: objects by their names, without the "/" before them.
class ChmContainer {
public:
    /// Throws ContainerError for what is no such container, and for one beyond the limits.
    explicit ChmContainer(std::string bytes);
    ~ChmContainer();

    /// LCID in the header.
    std::uint32_t language() const;

    /// All names, as they are written and in the order in which the objects lie.
    const std::vector<std::string> &names() const { return m_names; }

    /// The name of an object as it is written; found without regard to ASCII case.
    std::optional<std::string> findName(const std::string &name) const;

    /// An object's bytes; nothing when there is no such object. Throws ContainerError for one that is damaged or beyond
    /// the limits.
    std::optional<std::string> read(const std::string &name);

    /// Bytes that all reading so far has cost, those included that were decompressed on the way to an object.
    std::uint64_t work() const { return m_work; }

private:
    struct Library;
    struct Object;
    void collectObjects();
    void countWork(const Object &object, bool wasRead);

    std::unique_ptr<Library> m_library;
    std::map<std::string, Object> m_objects;  ///< by name in lower case
    std::vector<std::string> m_names;
    std::uint64_t m_work = 0;
    std::uint64_t m_reached = 0;  ///< how far into the compressed contents the decompressor stands
};

}  // namespace penwright::chm
