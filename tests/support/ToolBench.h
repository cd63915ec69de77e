#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/ToolState.h"
#include "platform/sqlite/SqliteSettingsStore.h"
#include "support/FakeDialogs.h"
#include "support/FakeEmbedding.h"
#include "support/FakeEventWait.h"
#include "support/ReadBack.h"
#include "support/TempFolder.h"

namespace penwright::test {

/// A store that cannot be used, as one whose disk has filled up.
struct FullStore : SettingsStore {
    [[noreturn]] static void fail() { throw RunTimeError(61, "/the/store: database or disk is full"); }
    std::string read(std::string_view, std::string_view, std::string_view, std::string_view) override { fail(); }
    std::vector<Setting> readAll(std::string_view, std::string_view) override { fail(); }
    std::vector<std::string> sections(std::string_view) override { fail(); }
    void write(std::string_view, std::string_view, std::string_view, std::string_view) override { fail(); }
    void remove(std::string_view, std::string_view, std::string_view) override { fail(); }
    void removeSection(std::string_view, std::string_view) override { fail(); }
    void transact(const std::function<void()> &) override { fail(); }
    std::optional<std::string> peek(std::string_view, std::string_view, std::string_view) override { return {}; }
    std::string pop(std::string_view, std::string_view, std::string_view) override { return {}; }
};

/// What start-up has made once a host has started the tool, over a store of its own: instance 7, section "Sec", inbox
/// "HostBox", three files open, slot 1 new.
struct ToolBench {
    ToolBench()
    {
        state.start.HostWindow = 123;
        state.start.HostInbox = "HostBox";
        state.start.InstanceTag = "7";
        state.start.OpenFileCount = 3;
        state.start.ExchangeSection = "Sec";
        state.PhotFiles.reset(1);
    }

    std::string value(const std::string &name) { return store.read("Lumentor_PE", "Sec", name, "(none)"); }
    void setValue(const std::string &name, std::string_view data) { store.write("Lumentor_PE", "Sec", name, data); }

    TempFolder folder;
    SqliteSettingsStore store{folder.file("Lumentor/settings.sqlite3")};
    FullStore fullStore;
    ToolState state;
    ReadBackFiles files{state.PhotFiles};
    FakeDialogs dialogs;
    FakeEventWait wait;
    FakeEmbedding embedding;
};

}  // namespace penwright::test
