#pragma once

#include <QObject>

#include <bitset>
#include <memory>
#include <optional>
#include <string>

#include "draft/DraftKeeper.h"
#include "draft/DraftOffers.h"
#include "wizard/DraftReplay.h"

class QTimer;

namespace penwright {

class Closing;
class DraftLine;

/// Keeps what is typed into the wizard as a draft, and offers on page 1 what another run left behind. What is typed is
/// handed on at most a second after it was typed, at each page turn and when the program unloads. The draft becomes
/// the last finished file when the host has taken the file, and goes when the user cancels.
class WizardDrafts : public QObject {
    Q_OBJECT

public:
    /// For a window with its pages, whose child it becomes.
    WizardDrafts(WizardWindow &window, const Closing &closing, std::unique_ptr<DraftStore> store);
    ~WizardDrafts() override;

private:
    void followWindow();
    void turnTo(int page);
    void noteChange(int page);
    void keep();
    void keepIfChanged();
    void leave();
    void look();
    void drop();
    void finish();
    DraftSnapshot snapshot() const;
    PageValue valueOf(int page) const;
    std::string about() const;

    void offer(const DraftsFound &found);
    void showOffer();
    void openList();
    void takeOver();
    void leaveWhatIsTyped();
    void takeOverDraft(const std::string &name);
    void noteTakenOver(const std::string &name, const Draft &draft);
    void followTakeOver();
    void giveBack();
    void takeBack();
    void forgetTaken();
    void discard();
    void putAway(const DraftEntry &draft);
    void bringBack(const DraftEntry &draft, std::size_t place);
    void offerAgain();
    void replay(const Draft &draft);
    void closeLine();
    void followTrouble(const std::string &reason);
    void tell(const QString &line);

    /// The draft of another run that this one has taken over.
    struct Taken {
        std::string name{};
        DraftHead head{};
        PageText firstPage{};                  ///< as it was taken
        bool wasTyped = false;                 ///< something had been typed before
        std::shared_ptr<const bool> isMade{};  ///< false while that is undone on page 1; none where it has put nothing
    };

    WizardWindow &m_window;
    const Closing &m_closing;
    DraftLine *m_line;
    DraftReplay m_replay;
    DraftKeeper m_keeper;
    QTimer *m_timer;                    ///< runs from the first change that is not kept
    std::bitset<kPageCount> m_visited;  ///< pages that have been shown or changed, and so may hold something
    bool m_isReplayDue = false;         ///< a draft is being taken over that no page holds yet
    bool m_hasTaken = false;            ///< the run's own draft was one of another run
    Taken m_taken;
    bool m_isTyped = false;  ///< something has been typed since the last finished file
    DraftOffers m_offers;    ///< those discarded are deleted when the program ends
    QString m_trouble;       ///< what was said when drafts could not be kept, "" when they can
};

}  // namespace penwright
