#include "wizard/WizardDrafts.h"

#include <algorithm>
#include <ctime>
#include <QApplication>
#include <QTimer>
#include <utility>

#include "draft/DraftWords.h"
#include "platform/qt/Closing.h"
#include "platform/qt/DeliverTo.h"
#include "platform/qt/QtText.h"
#include "wizard/DraftLine.h"
#include "wizard/HalfTyped.h"
#include "wizard/PageSteps.h"
#include "wizard/WizardWindow.h"

namespace penwright {
namespace {

using namespace std::chrono_literals;

constexpr auto kDelay = 1s;
constexpr auto kBusyPause = 100ms;

std::tm localTime(std::int64_t seconds)
{
    const std::time_t time = seconds;
    std::tm parts{};
    ::localtime_r(&time, &parts);
    return parts;
}

QString wordsOf(const DraftEntry &draft)
{
    return toQString(draftOffer(draft.head, localTime(draft.head.time)));
}

}  // namespace

WizardDrafts::WizardDrafts(WizardWindow &window, const Closing &closing, std::unique_ptr<DraftStore> store)
    : QObject(&window),
      m_window(window),
      m_closing(closing),
      m_line(new DraftLine),
      m_replay(window),
      m_keeper(
          std::move(store), deliverTo(this), [] { return std::int64_t{std::time(nullptr)}; },
          [this](const std::string &reason) { followTrouble(reason); })
{
    m_timer = new QTimer(this);
    m_timer->setObjectName("draftTimer");
    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, &WizardDrafts::keep);
    connect(&closing, &Closing::begun, this, &WizardDrafts::keepIfChanged);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &WizardDrafts::keepIfChanged);
    followWindow();
    m_window.page(kLampPage).addTopLine(*m_line);
    connect(&m_window.page(kLampPage).steps(), &PageSteps::stepped, this, &WizardDrafts::followTakeOver);
    connect(m_line, &DraftLine::takeOverPressed, this, &WizardDrafts::takeOver);
    connect(m_line, &DraftLine::discardPressed, this, &WizardDrafts::discard);
    connect(m_line, &DraftLine::morePressed, this, &WizardDrafts::openList);
    connect(m_line, &DraftLine::chosen, this, [this](int draft) {
        m_offers.choose(static_cast<std::size_t>(draft));
        showOffer();
    });
}

WizardDrafts::~WizardDrafts()
{
    for (const DraftEntry &draft : m_offers.discarded())
        m_keeper.discard(draft);
}

void WizardDrafts::followWindow()
{
    connect(&m_window, &WizardWindow::pageTurned, this, &WizardDrafts::turnTo);
    connect(&m_window, &WizardWindow::pageShown, this, [this] {
        if (m_isTyped)
            keep();
    });
    connect(&m_window, &WizardWindow::startingAnew, this, &WizardDrafts::leave);
    connect(&m_window, &WizardWindow::cancelled, this, &WizardDrafts::drop);
    connect(&m_window, &WizardWindow::fileTaken, this, &WizardDrafts::finish);
    for (int page = 0; page < kPageCount; ++page) {
        connect(&m_window.page(page), &PageFrame::changed, this, [this, page] { noteChange(page); });
        connect(&m_window.page(page), &PageFrame::filled, this, [this, page] { m_replay.giveUp(page); });
    }
}

void WizardDrafts::turnTo(int page)
{
    if (m_visited.none())
        look();
    m_visited.set(static_cast<std::size_t>(page));
    m_replay.fill(page);
}

void WizardDrafts::noteChange(int page)
{
    if (m_visited.none() || m_closing.isClosing())  // what an editor held when it began to close is kept
        return;
    if (page == m_window.shownPage())
        m_replay.giveUp(page);
    if (page == kCandelaPage)
        m_visited.set(kCandelaPage);  // a table can be pasted before it is shown
    // The first change is kept at once: a new file may cost a busy disk as long as the rest of the page costs its user.
    const bool isFirst = !std::exchange(m_isTyped, true);
    if (!m_timer->isActive())
        m_timer->start(isFirst ? 0ms : kDelay);
}

void WizardDrafts::keep()
{
    m_timer->stop();
    if (!m_isReplayDue)  // else its file would lose what no page holds yet
        m_keeper.keep(snapshot());
}

void WizardDrafts::keepIfChanged()
{
    if (m_timer->isActive())
        keep();
}

/// Leaves the draft behind where a start takes away what stands on a page, and offers it: what is kept from then on is
/// another one. Where nothing has been typed since a finished file, offers what any start does.
void WizardDrafts::leave()
{
    if (m_isReplayDue)
        return;
    if (!m_isTyped)
        return look();
    if (!m_window.page(kCandelaPage).losesByStart())
        return;
    keep();
    m_isTyped = false;
    forgetTaken();
    m_keeper.leave();
    look();
}

void WizardDrafts::look()
{
    m_keeper.look([this](const DraftsFound &found) { offer(found); });
}

void WizardDrafts::drop()
{
    m_timer->stop();
    m_isTyped = false;
    m_keeper.drop();
}

void WizardDrafts::finish()
{
    keep();
    m_isTyped = false;
    forgetTaken();
    m_keeper.finish();
}

DraftSnapshot WizardDrafts::snapshot() const
{
    DraftSnapshot snapshot{m_window.shownPage(), about(), {}};
    for (int page = 0; page < kFinishPage; ++page) {
        if (const PageText *waiting = m_replay.waitingFor(page))
            snapshot.pages.push_back({page, asValue(*waiting)});
        else if (m_visited.test(static_cast<std::size_t>(page)))
            snapshot.pages.push_back({page, valueOf(page)});
    }
    if (snapshot.page < kFinishPage)
        snapshot.pages.push_back({snapshot.page, halfTyped(m_window.page(snapshot.page).fields())});
    return snapshot;
}

/// What a page holds; of one before the page shown what coming back would show, which its Next is to lead on from.
PageValue WizardDrafts::valueOf(int page) const
{
    const PageFrame &frame = m_window.page(page);
    return page < m_window.shownPage() ? frame.valueOnReturn() : frame.value();
}

std::string WizardDrafts::about() const
{
    return m_replay.waitingFor(kKeywordPage) ? m_replay.about() : m_window.page(kKeywordPage).subject();
}

void WizardDrafts::offer(const DraftsFound &found)
{
    m_offers.begin(found);
    if (m_hasTaken)
        m_offers.remove(m_taken.name);
    if (found.putAside > 0)
        tell(toQString(putAsideText(found.putAside)));
    showOffer();
}

void WizardDrafts::showOffer()
{
    if (const DraftEntry *draft = m_offers.offered())
        m_line->offer(wordsOf(*draft), true, m_offers.drafts().size() > 1);
    else if (const auto &last = m_offers.last())
        m_line->offer(toQString(lastFileOffer(*last, localTime(last->time))), false, false);
}

void WizardDrafts::openList()
{
    QStringList offers;
    for (const DraftEntry &draft : m_offers.drafts())
        offers.append(wordsOf(draft));
    m_line->openList(offers);
}

void WizardDrafts::takeOver()
{
    if (m_window.isBusy())
        return;
    m_window.page(kLampPage).focusFirstField();  // for what is typed meanwhile
    m_line->setEnabled(false);                   // until there is an answer
    leaveWhatIsTyped();
    if (const DraftEntry *offered = m_offers.offered())
        takeOverDraft(offered->name);
    else
        m_keeper.readLast([this](const std::optional<Draft> &draft) {
            closeLine();
            if (!draft)
                return tell(toQString(takeEndText(TakeEnd::Gone)));
            // A start and no end: page 1 shows, and the others are filled when one comes to them.
            replay({{draft->head.time, kLampPage, draft->head.about}, draft->texts});
        });
}

/// Leaves the run's own draft behind where it is one that was taken over, or more than what page 1 holds: until undo
/// has brought that back, there would be no other place that has it.
void WizardDrafts::leaveWhatIsTyped()
{
    if (!m_hasTaken && !(m_isTyped && m_visited.count() > 1))
        return;
    keep();
    m_keeper.leave();
    forgetTaken();
}

void WizardDrafts::takeOverDraft(const std::string &name)
{
    m_isReplayDue = true;
    m_keeper.takeOver(name, [this, name](const TakenDraft &taken) {
        m_offers.remove(name);
        if (taken.end != TakeEnd::Taken) {
            m_isReplayDue = false;
            if (m_isTyped)
                keep();
            offerAgain();
            return tell(toQString(takeEndText(taken.end)));
        }
        closeLine();
        m_hasTaken = true;
        noteTakenOver(name, taken.draft);
        replay(taken.draft);
    });
}

void WizardDrafts::noteTakenOver(const std::string &name, const Draft &draft)
{
    m_taken = {.name = name, .head = draft.head, .wasTyped = m_isTyped};
    for (const DraftText &text : draft.texts)
        if (text.page == kLampPage)
            m_taken.firstPage.emplace(text.name, text.text);
}

void WizardDrafts::followTakeOver()
{
    if (m_taken.isMade && *m_taken.isMade != m_hasTaken)
        m_hasTaken ? giveBack() : takeBack();
}

/// Leaves the draft behind as it was taken over, with what has been done on the other pages since, and offers it again.
void WizardDrafts::giveBack()
{
    DraftSnapshot taken = snapshot();
    taken.page = m_taken.head.page;
    if (taken.about.empty())
        taken.about = m_taken.head.about;
    for (HeldPage &page : taken.pages)
        if (page.page == kLampPage && !page.value.empty())
            page.value = asValue(m_taken.firstPage);
    m_keeper.keep(std::move(taken));
    m_keeper.leave();
    m_replay.setAside();
    m_hasTaken = false;
    m_isTyped = m_taken.wasTyped;
    if (!m_isTyped)
        m_timer->stop();
    look();
}

/// Goes on with the draft that was given back, unless another run has it by now.
void WizardDrafts::takeBack()
{
    if (m_isTyped && m_visited.count() > 1)
        m_keeper.leave();  // what was typed on other pages meanwhile stays a draft
    m_keeper.takeOver(m_taken.name, [](const TakenDraft &) {});
    m_replay.setAside();
    m_hasTaken = true;
    m_isTyped = true;
    m_offers.remove(m_taken.name);
    m_line->hide();
    keep();
}

void WizardDrafts::forgetTaken()
{
    m_hasTaken = false;
    m_taken = {};
}

/// Takes the draft out of the line. It is there until the program ends, so that this can be undone.
void WizardDrafts::discard()
{
    if (m_window.isBusy() || !m_offers.offered())
        return;
    const DraftEntry draft = *m_offers.offered();
    const auto change = [this, draft, place = m_offers.place()](bool isUndo) {
        isUndo ? bringBack(draft, place) : putAway(draft);
    };
    m_window.page(kLampPage).steps().addAct("Discard", change);
    putAway(draft);
    m_line->setEnabled(false);  // to the second press of a double click, which would discard another one
    QTimer::singleShot(QApplication::doubleClickInterval(), m_line, [this] { m_line->setEnabled(true); });
}

void WizardDrafts::putAway(const DraftEntry &draft)
{
    m_offers.discard(draft);
    offerAgain();
}

void WizardDrafts::bringBack(const DraftEntry &draft, std::size_t place)
{
    m_offers.bringBack(draft, place);
    showOffer();
}

void WizardDrafts::offerAgain()
{
    closeLine();
    showOffer();
}

void WizardDrafts::replay(const Draft &draft)
{
    if (m_window.isUnloading())
        return;
    if (m_window.isBusy()) {
        QTimer::singleShot(kBusyPause, this, [this, draft] { replay(draft); });
        return;
    }
    if (m_window.shownPage() != kLampPage)
        m_window.ShowPage(kLampPage);
    const PageSteps &steps = m_window.page(kLampPage).steps();
    const int count = steps.count();
    m_replay.run(draft);
    if (m_hasTaken && steps.count() > count)
        m_taken.isMade = steps.latestStands();
    m_isReplayDue = false;
    if (draft.head.page == kLampPage)
        m_window.page(kLampPage).focusFirstField();  // again: its text is another one, to be typed over
    m_isTyped = true;
    keep();
}

void WizardDrafts::closeLine()
{
    const QWidget *focus = m_window.focusWidget();
    const bool isInUse = focus && !m_line->isAncestorOf(focus);  // somebody is typing there
    m_line->hide();
    m_line->setEnabled(true);
    if (!isInUse && m_window.shownPage() == kLampPage)
        m_window.page(kLampPage).focusFirstField();
}

/// Says once that drafts cannot be kept, and takes that back once they are kept again.
void WizardDrafts::followTrouble(const std::string &reason)
{
    const QString told = std::exchange(m_trouble, reason.empty() ? QString() : toQString(notKeptText(reason)));
    const int page = m_window.shownPage();
    if (!m_trouble.isEmpty() || (page < kPageCount && m_window.page(page).note() == told))
        tell(m_trouble);
}

void WizardDrafts::tell(const QString &line)
{
    if (m_window.shownPage() < kPageCount)
        m_window.page(m_window.shownPage()).showNote(line);
}

}  // namespace penwright
