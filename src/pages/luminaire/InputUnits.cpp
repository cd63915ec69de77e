#include "pages/luminaire/InputUnits.h"

#include "platform/SettingsStore.h"

namespace penwright {

bool inputUnitsAreFeet(SettingsStore &store)
{
    return store.read("Lumentor32", "Lumentor32", "InputUnits", "0") == "0";
}

}  // namespace penwright
