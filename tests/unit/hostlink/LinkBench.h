#pragma once

#include <gtest/gtest.h>

#include <string>

#include "hostlink/CommandLink.h"
#include "support/ToolBench.h"

namespace penwright::test {

/// A wizard window that keeps a transcript of what commands did to it.
struct FakeLinkedWindow : LinkedWindow {
    void stopDeathTimer() override { transcript += "death timer stopped\n"; }
    void StartWizard() override
    {
        transcript += "started\n";
        if (startFails)
            throw overflow();
    }
    void beginUnload() override
    {
        transcript += "unload\n";
        unloading = true;
    }
    bool isUnloading() const override { return unloading; }
    void followRecord() override { transcript += "record followed\n"; }
    void showLog() override { ++shownLogs; }

    std::string transcript;
    bool startFails = false;
    bool unloading = false;
    int shownLogs = 0;
};

class LinkTest : public testing::Test {
protected:
    static PhotometricRecord named(const std::string &name)
    {
        PhotometricRecord record;
        record.Filename = name;
        return record;
    }

    std::string logged() const { return link.log().txtCmds(); }

    ToolBench bench;
    FakeLinkedWindow window;
    CommandLink link{bench.state, bench.store, bench.dialogs, bench.embedding, window};
};

}  // namespace penwright::test
