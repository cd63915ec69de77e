#include "disorder/Checks.h"

#include "core/NumberText.h"
#include "disorder/Scene.h"
#include "grid/GridView.h"
#include "platform/sqlite/SqliteDraftStore.h"

namespace penwright::test {
namespace {

std::string faultOfRecord(const PhotometricRecord &record)
{
    if (record.VertAngles.size() != record.NumVertAngles || record.HorAngles.size() != record.NumHorzAngles)
        return "a record has other angles than it counts";
    if (record.TiltIncl &&
        (record.TiltAngles.size() != record.NumTiltAngles || record.TiltMultipliers.size() != record.NumTiltAngles))
        return "a record has other tilt angles than it counts";
    return {};
}

std::string faultOfState(const ToolState &state)
{
    if (state.PhotFiles.size() < 1)
        return "slot 1 is gone";
    for (const auto *records : {&state.PhotFiles, &state.CandelaWorkRecord})
        for (const PhotometricRecord &record : *records)
            if (const std::string fault = faultOfRecord(record); !fault.empty())
                return fault;
    return {};
}

/// One of the pages is shown, under its caption; none before "START".
std::string faultOfPages(Scene &scene)
{
    const int shown = scene.window->shownPage();
    for (int page = 0; page < kPageCount; ++page)
        if (scene.window->page(page).isHidden() != (page != shown))
            return "page " + std::to_string(page + 1) + " is there beside another one, or is not";
    if (shown < kPageCount && scene.window->windowTitle() != scene.page().caption())
        return "the caption is that of another page";
    if (shown == kPageCount && scene.window->isVisible())
        return "the window shows no page";
    return {};
}

std::string faultOfTable(Scene &scene)
{
    const auto &model = *scene.window->findChild<GridView *>("cdaGridCd")->model();
    const PhotometricRecord &record = scene.state.PhotFiles(1);
    if (model.rowCount() != record.NumVertAngles || model.columnCount() != record.NumHorzAngles + 1)
        return "the candela table has another size than the record";
    for (int row = 0; row < model.rowCount(); ++row)
        if (const std::string label = model.index(row, 0).data().toString().toStdString();
            !label.ends_with(generalText(record.VertAngles(row + 1))))
            return "a row has another angle than the record: " + label;
    const auto &work = scene.state.CandelaWorkRecord;
    if (work.empty() || work(1).HorAngles != record.HorAngles || work(1).VertAngles != record.VertAngles)
        return "the working record has other angles than slot 1";
    return {};
}

std::string faultOfTilt(Scene &scene)
{
    const auto &model = *scene.window->findChild<GridView *>("lmpGridTiltMultiplier")->model();
    return model.columnCount() == 2 ? "" : "the tilt table has lost a column";
}

/// What page 6 shows is a whole file.
std::string faultOfFile(const PhotometricRecord &record)
{
    if (record.Candela.rows() != record.NumHorzAngles || record.Candela.columns() != record.NumVertAngles)
        return "the finished record has other values than it counts";
    return {};
}

std::string faultOfShown(Scene &scene)
{
    switch (scene.window->shownPage()) {
        case kTiltPage:
            return faultOfTilt(scene);
        case kCandelaPage:
            return faultOfTable(scene);
        case kFinishPage:
            return faultOfFile(scene.state.PhotFiles(1));
        default:
            return {};
    }
}

std::string faultOfDialogs()
{
    const bool isFlat = QThread::currentThread()->loopLevel() <= 1;
    return isFlat && QApplication::activeModalWidget() ? "a dialog outlives its routine" : "";
}

/// The texts that a draft holds of a page.
PageText keptOf(const Draft &draft, int page)
{
    PageText kept;
    for (const DraftText &text : draft.texts)
        if (text.page == page && !text.name.ends_with(".editor"))
            kept.emplace(text.name, text.text);
    return kept;
}

/// What a page's controls held and its draft does not hold; a page that was never shown has none.
std::string lackOf(const PageText &held, const PageText &kept)
{
    if (kept.empty())
        return {};
    for (const auto &text : held)
        if (const auto found = kept.find(text.first); found == kept.end() || found->second != text.second)
            return text.first + " held \"" + text.second + "\", the draft holds " +
                   (found == kept.end() ? "nothing" : '"' + found->second + '"');
    return {};
}

}  // namespace

std::string faultBetweenActs(Scene &scene)
{
    for (const auto &fault : {faultOfDialogs(), faultOfState(scene.state), faultOfPages(scene), faultOfShown(scene),
                              scene.host.faultOfStore()})
        if (!fault.empty())
            return fault;
    return {};
}

std::string faultAtEnd(Scene &scene, int status)
{
    if (status != 0)
        return "the exit status is " + std::to_string(status);
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget())
        return "a dialog is left";
    if (!scene.closing.isClosing())
        return scene.state.start.EmbedInHost ? "the run ends without unloading" : "";
    if (scene.state.start.EmbedInHost && scene.window->isVisible())
        return "the window is not given back";
    if (!scene.closing.isHostGone() && scene.host.lastPost() != "CloseRemove,PenwrightPE,7")
        return "the last word is " + scene.host.lastPost();
    return {};
}

std::string faultOfDrafts(const Scene &scene)
{
    SqliteDraftStore store(scene.ground.drafts);
    const DraftsFound found = store.look();
    if (found.putAside > 0)
        return "a draft is not understood";
    if (!scene.lastWords || !scene.lastWords->isTyped)
        return {};
    Draft draft;
    if (found.free.empty() || store.takeOver(found.free[0].name, draft) != TakeEnd::Taken)
        return "what was typed is not in a draft, or its lock is left";
    for (int page = 0; page < kFinishPage && !scene.hasTakenOver; ++page)
        if (const std::string lack =
                lackOf(scene.lastWords->pages[static_cast<std::size_t>(page)], keptOf(draft, page));
            !lack.empty())
            return lack;
    return {};
}

}  // namespace penwright::test
