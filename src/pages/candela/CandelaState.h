#pragma once

namespace penwright {

/// The state flags of the candela page. Both are cleared whenever the wizard starts.
struct CandelaState {
    bool GridStarted = false;  ///< whether the grid has been built since
    bool GridReady = false;    ///< whether the grid may be asked for cells
};

}  // namespace penwright
