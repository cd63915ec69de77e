#pragma once

namespace penwright {

class Dialogs;
class EventWait;
class HelpViewer;
class HostEmbedding;
class SettingsStore;
class TextFiles;

/// What the platform does for the program, made once at start-up. Each class is handed those of them that it uses.
struct Services {
    SettingsStore &store;
    TextFiles &files;
    Dialogs &dialogs;
    EventWait &wait;
    HostEmbedding &embedding;
    HelpViewer &help;
};

}  // namespace penwright
