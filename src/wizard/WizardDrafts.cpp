#include "wizard/WizardDrafts.h"

#include <algorithm>
#include <ctime>
#include <QApplication>
#include <QMenu>
#include <QPointer>
#include <QTimer>
#include <utility>

#include "draft/DraftWords.h"
#include "platform/qt/Closing.h"
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

std::int64_t secondsNow()
{
    return std::time(nullptr);
}

std::tm localTime(std::int64_t seconds)
{
    const std::time_t time = seconds;
    std::tm parts{};
    ::localtime_r(&time, &parts);
    return parts;
}

/// Calls come from the keeper's thread; they are made by the event loop, unless the object is gone by then.
DraftKeeper::Deliver deliverTo(QObject *object)
{
    return [alive = QPointer(object)](std::function<void()> call) {
        const auto make = [alive, call = std::move(call)] {
            if (alive)
                call();
        };
        if (auto *application = QCoreApplication::instance())
            QMetaObject::invokeMethod(application, make, Qt::QueuedConnection);
    };
}

PageValue asValue(const PageText &texts)
{
    PageValue value;
    for (const auto &[name, text] : texts)
        value.push_back({name, [text = text] { return text; }});
    return value;
}

}  // namespace

WizardDrafts::WizardDrafts(WizardWindow &window, const Closing &closing, std::unique_ptr<DraftStore> store)
    : QObject(&window),
      m_window(window),
      m_closing(closing),
      m_line(new DraftLine),
      m_replay(window),
      m_keeper(std::move(store), deliverTo(this), secondsNow,
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
}

WizardDrafts::~WizardDrafts()
{
    for (const auto &[name, head] : m_discarded)
        m_keeper.discard({name, head});
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
    m_found = found;
    m_offered = 0;
    forgetDiscarded();
    if (m_hasTaken)
        std::erase_if(m_found.free, [this](const DraftEntry &draft) { return draft.name == m_taken.name; });
    if (found.putAside > 0)
        tell(toQString(putAsideText(found.putAside)));
    showOffer();
}

void WizardDrafts::showOffer()
{
    if (m_offered < m_found.free.size()) {
        const DraftHead &head = m_found.free[m_offered].head;
        m_line->offer(toQString(draftOffer(head, localTime(head.time))), true, m_found.free.size() > 1);
    } else if (m_found.last) {
        m_line->offer(toQString(lastFileOffer(*m_found.last, localTime(m_found.last->time))), false, false);
    }
}

void WizardDrafts::openList()
{
    auto *list = new QMenu(m_line);
    list->setObjectName("draftList");
    list->setAttribute(Qt::WA_DeleteOnClose);
    for (std::size_t draft = 0; draft < m_found.free.size(); ++draft) {
        const DraftHead &head = m_found.free[draft].head;
        const QString text = toQString(draftOffer(head, localTime(head.time)));
        QString shown = list->fontMetrics().elidedText(text, Qt::ElideMiddle, m_line->width() / 2);
        shown.replace('&', "&&");  // what was typed is no mark for a key
        connect(list->addAction(shown), &QAction::triggered, this, [this, draft] {
            m_offered = draft;
            showOffer();
        });
    }
    const QWidget &button = m_line->moreButton();  // whose right edge is the page's
    list->popup(button.mapToGlobal(QPoint(button.width() - list->sizeHint().width(), button.height())));
}

void WizardDrafts::takeOver()
{
    if (m_window.isBusy())
        return;
    m_window.page(kLampPage).focusFirstField();  // for what is typed meanwhile
    m_line->setEnabled(false);                   // until there is an answer
    leaveWhatIsTyped();
    if (m_offered < m_found.free.size())
        takeOverDraft(m_found.free[m_offered].name);
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
        std::erase_if(m_found.free, [&](const DraftEntry &draft) { return draft.name == name; });
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
    std::erase_if(m_found.free, [this](const DraftEntry &draft) { return draft.name == m_taken.name; });
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
    if (m_window.isBusy() || m_offered >= m_found.free.size())
        return;
    const DraftEntry draft = m_found.free[m_offered];
    const auto change = [this, draft, place = m_offered](bool isUndo) {
        isUndo ? bringBack(draft, place) : putAway(draft);
    };
    m_window.page(kLampPage).steps().addAct("Discard", change);
    putAway(draft);
    m_line->setEnabled(false);  // to the second press of a double click, which would discard another one
    QTimer::singleShot(QApplication::doubleClickInterval(), m_line, [this] { m_line->setEnabled(true); });
}

void WizardDrafts::putAway(const DraftEntry &draft)
{
    m_discarded.insert_or_assign(draft.name, draft.head);
    forgetDiscarded();
    offerAgain();
}

void WizardDrafts::bringBack(const DraftEntry &draft, std::size_t place)
{
    m_discarded.erase(draft.name);
    m_offered = std::min(place, m_found.free.size());
    m_found.free.insert(m_found.free.begin() + static_cast<std::ptrdiff_t>(m_offered), draft);
    showOffer();
}

void WizardDrafts::forgetDiscarded()
{
    std::erase_if(m_found.free, [this](const DraftEntry &draft) {
        const auto it = m_discarded.find(draft.name);
        return it != m_discarded.end() && it->second == draft.head;  // else another run has gone on with it
    });
}

void WizardDrafts::offerAgain()
{
    m_offered = 0;
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
