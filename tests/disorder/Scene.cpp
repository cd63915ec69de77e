#include "disorder/Scene.h"

#include <filesystem>
#include <fstream>
#include <variant>

#include "core/IesReader.h"
#include "core/IesText.h"
#include "platform/sqlite/SqliteDraftStore.h"
#include "support/SampleRecords.h"
#include "widgets/PageTexts.h"

namespace penwright::test {

Ground::Ground()
{
    std::filesystem::create_directories(files + "/folder");
    for (const char *name : {"/old.ies", "/other.txt"})
        std::ofstream(files + name) << iesFileText(smallRecord());
}

std::string Ground::faultOfFiles() const
{
    for (const auto &entry : std::filesystem::directory_iterator(files)) {
        if (entry.is_directory())
            continue;
        const std::string name = entry.path().filename();
        if (!name.ends_with(".ies") && !name.ends_with(".txt"))
            return "a file of another name is left: " + name;
        if (!std::holds_alternative<IesContent>(readIesFile(contentOf(entry.path()))))
            return "a file cannot be read: " + name;
    }
    return {};
}

Scene::Scene(const Ground &onGround, PlayedHost &byHost, bool isEmbedded) : ground(onGround), host(byHost)
{
    state.start.HostWindow = 123;
    state.start.EmbedInHost = isEmbedded;
    state.start.HostInbox = PlayedHost::kInbox;
    state.start.InstanceTag = "7";
    state.start.ExchangeSection = PlayedHost::kSection;
    state.PhotFiles.reset(1);
    embedding.onGiveBack = [this] { window->hide(); };
    const Services services{store, files, dialogs, wait, embedding, help};
    window = assembleWizard(state, services, closing, owner, std::make_unique<SqliteDraftStore>(ground.drafts));
    openWizard(*window, state.start, embedding);
    window->findChild<QTimer *>("tmrDataExchange")->setInterval(1);
    follow();
}

// The window goes before what it stands on.
Scene::~Scene()
{
    window.reset();
}

void Scene::follow()
{
    for (int page = 0; page < kFinishPage; ++page)
        QObject::connect(&window->page(page), &PageFrame::changed, window.get(),
                         [this] { m_isTyped = m_isTyped || window->shownPage() < kPageCount; });
    QObject::connect(window.get(), &WizardWindow::fileTaken, window.get(), [this] { m_isTyped = false; });
    QObject::connect(window.get(), &WizardWindow::cancelled, window.get(), [this] { m_isTyped = false; });
    // A start that empties a table leaves the draft to a later run.
    QObject::connect(window.get(), &WizardWindow::startingAnew, window.get(),
                     [this] { m_isTyped = m_isTyped && !window->page(kCandelaPage).losesByStart(); });
    QObject::connect(window->findChild<QAbstractButton *>("draftTakeOver"), &QAbstractButton::clicked, window.get(),
                     [this] { hasTakenOver = true; });
    QObject::connect(&closing, &Closing::begun, window.get(), [this] {
        lastWords = LastWords{{}, m_isTyped};
        for (int page = 0; page < kFinishPage; ++page) {
            const PageFrame &frame = window->page(page);
            const PageValue value = page < window->shownPage() ? frame.valueOnReturn() : frame.value();
            lastWords->pages[static_cast<std::size_t>(page)] = textsOf(value);
        }
    });
}

QWidget &Scene::top()
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return *popup;
    QWidget *modal = QApplication::activeModalWidget();
    return modal ? *modal : *window;
}

QWidget &Scene::focus()
{
    QWidget &over = top();
    QWidget *focus = over.focusWidget();
    return focus && focus->isVisible() ? *focus : over;
}

}  // namespace penwright::test
