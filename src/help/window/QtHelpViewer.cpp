#include "help/window/QtHelpViewer.h"

#include <utility>

#include "help/window/HelpWindow.h"
#include "platform/Dialogs.h"
#include "platform/qt/Closing.h"
#include "platform/RunTimeError.h"

namespace penwright {
QtHelpViewer::QtHelpViewer(Dialogs &dialogs, Closing &closing, HelpFileOpener open)
    : m_dialogs(dialogs), m_closing(closing), m_open(std::move(open))
{
}

QtHelpViewer::~QtHelpViewer() = default;

void QtHelpViewer::showTopic(const std::string &helpFilePath, int contextId)
{
    showOrTell(helpFilePath, [&](const HelpFile &file) {
        if (auto place = file.topicFor(contextId))
            return *std::move(place);
        throw RunTimeError(kHelpNotFound, "The help file has no page for the number " + std::to_string(contextId) +
                                              ": " + helpFilePath);
    });
}

void QtHelpViewer::showLink(const std::string &helpFilePath, const std::string &link)
{
    showOrTell(helpFilePath, [&](const HelpFile &file) {
        if (auto place = file.find(link))
            return *std::move(place);
        throw RunTimeError(kHelpNotFound, "The help file lacks a page: " + link + " in " + helpFilePath);
    });
}

void QtHelpViewer::showOrTell(const std::string &helpFilePath, const Finder &find)
{
    if (m_closing.isClosing())
        return;
    std::string fault;
    try {
        show(helpFilePath, find);
    } catch (const RunTimeError &error) {
        fault = error.description();
    } catch (const std::exception &error) {  // memory that a hostile file asks for
        fault = "The help file cannot be read: " + helpFilePath + ": " + error.what() + ".";
    }
    if (!fault.empty())
        m_dialogs.show({.text = fault, .flags = kOkOnly + kExclamation});
}

QtHelpViewer::Version QtHelpViewer::versionOf(const std::string &path)
{
    std::error_code error;
    Version version{path, std::filesystem::last_write_time(path, error), 0};
    version.size = std::filesystem::file_size(path, error);
    return error ? Version() : version;
}

void QtHelpViewer::show(const std::string &path, const Finder &find)
{
    const Version version = versionOf(path);
    const bool isOpen = m_window && version == m_shown && !version.path.empty();
    std::unique_ptr<HelpFile> opened = isOpen ? nullptr : m_open(path);
    HelpFile &file = isOpen ? *m_window->file() : *opened;
    const HelpPlace place = find(file);
    file.page(place.topic);  // raises what would keep it from being shown
    if (!m_window) {
        m_window = std::make_unique<HelpWindow>();
        QObject::connect(&m_closing, &Closing::begun, m_window.get(), &QWidget::close);
    }
    if (opened)
        m_window->setFile(std::move(opened));
    m_shown = version;
    m_window->showPlace(place);
}

}  // namespace penwright
