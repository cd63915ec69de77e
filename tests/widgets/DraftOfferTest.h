#pragma once

#include "widgets/DraftsTest.h"

namespace penwright::test {

/// Runs that are offered what others left behind.
class DraftOffer : public DraftsTest {
protected:
    std::string lampsOf(const DraftEntry &entry, int page = kLampPage, const char *box = "txtNumLamps")
    {
        SqliteDraftStore other(draftFolder);
        Draft draft;
        EXPECT_EQ(other.takeOver(entry.name, draft), TakeEnd::Taken);
        other.leave();
        return textOf(draft, page, box);
    }

    void leaveLamps(const std::string &about, const std::string &lamps)
    {
        leave(kLampPage, about, {{kLampPage, "txtNumLamps", lamps}});
    }

    static std::string momentOf(const std::string &front)
    {
        const QDateTime time = QDateTime::fromSecsSinceEpoch(1'700'000'000);
        return front + QLocale::c().toString(time, ", d MMMM hh:mm").toStdString();
    }
};

}  // namespace penwright::test
