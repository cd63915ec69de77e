#pragma once

#include "platform/sqlite/SqliteDraftStore.h"
#include "platform/sqlite/SqliteSettingsStore.h"
#include "platform/x11/Display.h"
#include "platform/x11/X11Embedding.h"

namespace penwright {

/// What the tool runs on. Another window system or another store is a folder beside these and takes its place here.
using ChosenDisplay = Display;
using ChosenEmbedding = X11Embedding;
using ChosenStore = SqliteSettingsStore;
using ChosenDrafts = SqliteDraftStore;

}  // namespace penwright
