#pragma once

#include "core/OneBased.h"

namespace penwright {

/// How many angles of each kind a table has at most.
inline constexpr int kMostTableAngles = 32767;

/// A table of intensities that was read, turned so that its vertical and horizontal angles are known, and both rise.
struct TableContent {
    OneBased<double> vertical{};     ///< degrees; empty when the text has none
    OneBased<double> horizontal{};   ///< degrees; empty when the text has none
    OneBasedTable<double> values{};  ///< by (horizontal index, vertical index), in the text's unit
    bool verticalFalls = false;      ///< in the text
    bool horizontalFalls = false;    ///< in the text
};

}  // namespace penwright
