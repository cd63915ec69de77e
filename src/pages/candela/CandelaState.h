#pragma once

namespace penwright {

/// The state of the candela page that is cleared whenever the wizard starts.
struct CandelaState {
    bool GridStarted = false;  ///< whether the grid has been built since
    bool GridReady = false;    ///< whether the grid may be asked for cells
    float plotValue = 0;       ///< above zero whenever the plot is drawn
};

}  // namespace penwright
