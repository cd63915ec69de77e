#pragma once

namespace penwright {

class SettingsStore;

/// Whether the user's own settings ask for feet: "InputUnits" is "0" or missing. Any other text asks for meters.
bool inputUnitsAreFeet(SettingsStore &store);

}  // namespace penwright
