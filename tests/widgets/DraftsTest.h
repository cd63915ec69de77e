#pragma once

#include <map>
#include <string>
#include <utility>

#include "platform/sqlite/SqliteDraftStore.h"
#include "support/SpinUntil.h"
#include "widgets/PageTexts.h"
#include "widgets/WizardTest.h"

namespace penwright::test {

/// The wizard over a store of drafts, one run after the other.
class DraftsTest : public WizardTest {
protected:
    /// Begins a run, as a host does that starts the tool anew.
    void startRun()
    {
        state.PhotFiles.reset(1);
        state.CandelaWorkRecord.clear();
        drafts = std::make_unique<SqliteDraftStore>(draftFolder);
        startWizard();
    }

    /// Waits until all that was typed is on the disk.
    void waitUntilKept()
    {
        auto *timer = find<QTimer>("draftTimer");
        timer->setInterval(0);
        ASSERT_TRUE(spinUntil([&] { return !timer->isActive(); }));
    }

    /// Ends the run as a kill would, with what is kept so far.
    void kill() { window.reset(); }

    /// What a run that is gone has left.
    DraftsFound left() { return SqliteDraftStore(draftFolder).look(); }

    /// The only draft that is left, its texts by page and name.
    using Texts = std::map<std::pair<int, std::string>, std::string>;
    Draft leftDraft()
    {
        SqliteDraftStore other(draftFolder);
        const DraftsFound found = other.look();
        Draft draft;
        if (found.free.size() != 1 || other.takeOver(found.free[0].name, draft) != TakeEnd::Taken)
            throw std::runtime_error("there is not one draft but " + std::to_string(found.free.size()));
        return draft;
    }
    static std::string textOf(const Draft &draft, int page, const std::string &name)
    {
        for (const DraftText &text : draft.texts)
            if (text.page == page && text.name == name)
                return text.text;
        return "(none)";
    }

    /// Leaves a draft as a run would have that was killed on a page.
    void leave(int page, const std::string &about, const std::vector<DraftText> &texts)
    {
        SqliteDraftStore other(draftFolder);
        other.look();
        other.write({1'700'000'000, page, about}, [texts, next = std::size_t{0}]() mutable {
            return next < texts.size() ? std::optional(texts[next++]) : std::nullopt;
        });
    }

    void waitForOffer()
    {
        ASSERT_TRUE(spinUntil([this] { return find("draftLine")->isVisible(); }));
    }
    std::string offer() { return find<QLabel>("draftOffer")->text().toStdString(); }
    std::string note(int page)
    {
        auto *note = find<QLabel>("note" + std::to_string(page));
        return note->isHidden() ? "" : note->text().toStdString();
    }

    void takeOver()
    {
        waitForOffer();
        click("draftTakeOver");
        ASSERT_TRUE(spinUntil([this] { return find("draftLine")->isHidden(); }));
    }

    /// What stands on all pages, page by page.
    std::vector<PageText> allTexts()
    {
        std::vector<PageText> texts;
        for (int page = 0; page < kPageCount; ++page)
            texts.push_back(textsOf(window->page(page)));
        return texts;
    }

    /// Fills the pages up to one and leaves them by Next.
    void fillPagesBefore(int page)
    {
        const std::function<void()> fill[]{[this] {
                                               fillPageOne();
                                               find<QAbstractButton>("chkIncludeTilt")->setChecked(true);
                                           },
                                           [this] { fillPageTwo(); }, [this] { fillPageThree(); },
                                           [this] { fillPageFour(); }, [this] { fillPageFive(); }};
        for (int index = 0; index < page; ++index) {
            fill[index]();
            click("cmdNext" + std::to_string(kPages[static_cast<std::size_t>(index)].number));
            ASSERT_EQ(shownPage(), index + 1);
        }
    }

    /// Gives page 3 a catalog number and else what its checks ask for.
    void fillPageThree()
    {
        auto *grid = find<GridView>("keyGrid");
        for (int row = 2; row <= grid->source().rowCount(); ++row) {
            grid->goTo(row, 1);
            typeText(grid->source().read(row, 0) == "[LUMCAT]" ? "EL-2054" : "any");
            press(Qt::Key_Return);
        }
    }

    const std::string draftFolder = folder.file("state/Lumentor/drafts");
};

}  // namespace penwright::test
