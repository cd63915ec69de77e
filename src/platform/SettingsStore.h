#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace penwright {

/// One value of a section of the settings store.
struct Setting {
    std::string name;
    std::string data;
    bool operator==(const Setting &) const = default;
};

/// The per-user settings store that tool and host share. Values are addressed by application, section and name, which
/// compare exactly, case included. Every routine but `peek` and `pop` raises RunTimeError with a description that
/// names the store's file and the reason when the store cannot be used.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    /// The value's data, or `fallback` when there is no such value.
    virtual std::string read(std::string_view application, std::string_view section, std::string_view name,
                             std::string_view fallback = {}) = 0;

    /// All values of a section in the order in which they were first written.
    virtual std::vector<Setting> readAll(std::string_view application, std::string_view section) = 0;

    /// The names of an application's sections, in the order in which they were first written.
    virtual std::vector<std::string> sections(std::string_view application) = 0;

    /// Writes one value; a value that exists keeps its place in the order of writing.
    virtual void write(std::string_view application, std::string_view section, std::string_view name,
                       std::string_view data) = 0;

    /// Removes one value; a missing one is no error.
    virtual void remove(std::string_view application, std::string_view section, std::string_view name) = 0;

    /// Removes a section with all its values; a missing one is no error.
    virtual void removeSection(std::string_view application, std::string_view section) = 0;

    /// Runs `writes` as one transaction: other processes see all of its changes or none. An exception undoes them.
    virtual void transact(const std::function<void()> &writes) = 0;

    /// The value's data without ever waiting: nothing when the store is locked or cannot be read at this moment,
    /// "" when there is no such value. Costs next to nothing while no other process has written.
    virtual std::optional<std::string> peek(std::string_view application, std::string_view section,
                                            std::string_view name) = 0;

    /// Reads a value and empties it in one transaction, without ever waiting. "" when the value is empty or missing,
    /// and when the store is locked at this moment: the next call tries again.
    virtual std::string pop(std::string_view application, std::string_view section, std::string_view name) = 0;

    /// What to do, instead of sleeping, between two tries while another process has locked the store: run window
    /// events. No transaction is open meanwhile. False gives up at once. A store that never waits never asks.
    virtual void setBusyWait(const std::function<bool()> &) {}
};

}  // namespace penwright
