#include "help/chm/ChmHelpFile.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <utility>

#include "core/Ascii.h"
#include "help/chm/ChmContainer.h"
#include "help/chm/ChmSystem.h"
#include "help/chm/ContentsTree.h"
#include "help/chm/HelpLinks.h"
#include "help/chm/Limits.h"
#include "help/chm/PlainText.h"
#include "help/chm/TextDecoding.h"
#include "platform/RunTimeError.h"

namespace penwright {
namespace {

using namespace chm;
namespace fs = std::filesystem;

constexpr int kDeviceError = 57;
constexpr int kFileAccessError = 75;

RunTimeError unreadable(const std::string &path, const std::string &reason)
{
    return RunTimeError(kFileAccessError, "The help file cannot be read: " + path + ": " + reason + ".");
}

/// Reads no more than a help file may have; a pipe or a device, which might never end, not at all.
std::string bytesOf(const std::string &path)
{
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found)
        throw RunTimeError(kHelpNotFound, "The help file is missing: " + path);
    if (error)
        throw unreadable(path, error.message());
    if (!fs::is_regular_file(status))
        throw unreadable(path, "it is no file");
    errno = 0;
    std::ifstream in(path, std::ios::binary);
    if (!in)
        throw unreadable(path, std::strerror(errno));
    std::string bytes;
    bytes.resize(std::min<std::uintmax_t>(fs::file_size(path, error), kLargestFile + 1));
    in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    if (bytes.size() > kLargestFile)
        throw unreadable(path, "it is larger than " + std::to_string(kLargestFile / kMiB) + " MiB");
    return bytes;
}

class ChmHelpFile : public HelpFile {
public:
    ChmHelpFile(std::string path, std::string bytes) : m_path(std::move(path)), m_container(std::move(bytes))
    {
        const std::string strings = objectOrNothing("#STRINGS");
        m_system = readSystem(objectOrNothing("#SYSTEM"));
        completeFromWindows(m_system, objectOrNothing("#WINDOWS"), strings);
        m_topics = readContextIds(objectOrNothing("#IVB"), strings);
        readContentsFile();
        chooseHome();
    }

    std::string title() const override
    {
        const std::string title = decoded(m_system.title);
        return title.empty() ? fs::path(m_path).filename().string() : title;
    }

    HelpPlace home() const override { return m_home; }

    const std::vector<HelpEntry> &contents() const override { return m_contents; }

    std::optional<HelpPlace> topicFor(int contextId) const override
    {
        const auto found = m_topics.find(static_cast<std::uint32_t>(contextId));
        if (found == m_topics.end())
            return std::nullopt;
        const std::string link = decoded(found->second);
        const auto place = findStored(link);
        return place ? place : placeOfLink(link);
    }

    std::optional<HelpPlace> find(const std::string &link) const override { return pageAt(placeOfLink(link)); }

    std::string page(const std::string &topic) override
    {
        try {
            if (const auto bytes = m_container.read(topic))
                return decoded(*bytes);
        } catch (const ContainerError &error) {
            throw RunTimeError(kDeviceError, "A page of the help file cannot be read: " + decoded(topic) + " in " +
                                                 m_path + ": " + error.what() + ".");
        }
        throw RunTimeError(kHelpNotFound, "The help file lacks a page: " + decoded(topic) + " in " + m_path);
    }

    std::optional<std::string> object(const std::string &link) override { return readable(placeOfLink(link).topic); }

    std::string decoded(const std::string &bytes) const override
    {
        return decodedText(bytes, m_system.language.value_or(m_container.language()));
    }

    std::vector<HelpText> texts() override
    {
        const std::uint64_t workBefore = m_container.work();
        std::size_t size = 0;
        std::vector<HelpText> texts;
        for (const std::string &name : m_container.names()) {
            if (!isPageName(name))
                continue;
            if (size > kMostText || m_container.work() - workBefore > kMostSearchWork)
                break;
            const auto bytes = readable(name);
            if (!bytes)
                continue;
            PlainPage page = plainPage(decoded(*bytes));
            size += bytes->size();
            if (page.title.empty())
                page.title = decoded(name);
            texts.push_back({name, std::move(page.title), std::move(page.text)});
        }
        return texts;
    }

private:
    std::optional<HelpPlace> pageAt(HelpPlace place) const
    {
        const auto name = m_container.findName(place.topic);
        if (!name || !isPageName(*name))
            return std::nullopt;
        place.topic = *name;
        return place;
    }

    /// As `find`, for what the compiler wrote down itself: some store the absolute paths of the machine they ran on.
    std::optional<HelpPlace> findStored(const std::string &link) const
    {
        for (HelpPlace &place : placesOfStoredLink(link))
            if (auto found = pageAt(std::move(place)))
                return found;
        return std::nullopt;
    }

    std::optional<std::string> readable(const std::string &name)
    {
        try {
            return m_container.read(name);
        } catch (const ContainerError &) {
            return std::nullopt;
        }
    }
    std::string objectOrNothing(const std::string &name) { return readable(name).value_or(""); }

    std::string contentsName() const
    {
        std::string named = placeOfLink(decoded(m_system.contentsFile)).topic;
        if (m_container.findName(named))
            return named;
        for (const std::string &name : m_container.names())
            if (const std::string lower = lowerCase(name); lower.size() > 4 && lower.substr(lower.size() - 4) == ".hhc")
                return name;
        return {};
    }

    void readContentsFile()
    {
        for (const ContentsLine &line : readContents(decoded(objectOrNothing(contentsName()))))
            m_contents.push_back({line.title, line.depth, line.link.empty() ? std::nullopt : findStored(line.link)});
    }

    void chooseHome()
    {
        if (const auto named = findStored(decoded(m_system.defaultTopic)))
            m_home = *named;
        for (const HelpEntry &entry : m_contents)
            if (m_home.topic.empty() && entry.place)
                m_home = *entry.place;
        for (const std::string &name : m_container.names())
            if (m_home.topic.empty() && isPageName(name))
                m_home.topic = name;
        if (m_home.topic.empty())
            throw ContainerError("it holds no page");
    }

    std::string m_path;
    ChmContainer m_container;
    ChmSystem m_system;
    std::map<std::uint32_t, std::string> m_topics;
    std::vector<HelpEntry> m_contents;
    HelpPlace m_home;
};

}  // namespace

std::unique_ptr<HelpFile> readChm(const std::string &path, std::string bytes)
{
    try {
        return std::make_unique<ChmHelpFile>(path, std::move(bytes));
    } catch (const ContainerError &error) {
        throw unreadable(path, error.what());
    }
}

std::unique_ptr<HelpFile> openChm(const std::string &path)
{
    return readChm(path, bytesOf(path));
}

}  // namespace penwright
