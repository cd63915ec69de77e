#pragma once

#include <cstdint>
#include <string>

#include "platform/RunTimeError.h"

namespace penwright {

/// The greatest number of files that a host may hold, and of file numbers in the exchange store.
inline constexpr int kMaxFiles = 25;

/// Twips (1/1440 inch) to one logical pixel of a window.
inline constexpr int kTwipsPerLogicalPixel = 15;

/// What start-up settles for the rest of the run.
struct StartupState {
    std::string SettingsApp = "Lumentor_PE";        ///< application name in the settings store
    std::string ToolName = std::string(kToolName);  ///< this tool's name in every command to the host
    std::string InstanceTag = "SendData";           ///< this instance's tag in the host link
    std::int32_t HostWindow = 0;                    ///< window number of the host, 0 when it named none
    bool EmbedInHost = false;                       ///< whether the wizard is given back when it unloads
    std::string HostInbox;                          ///< settings value through which commands go to the host
    std::int16_t OpenFileCount = 0;                 ///< photometric files that the host already holds
    std::string ExchangeSection;                    ///< settings section of all exchange with the host
    float SleepInterval = 0.3F;                     ///< "SleepIntervalDE"; read and kept, nothing uses it
    std::string HelpFilePath;                       ///< compiled help file beside the executable
    std::uint32_t PreviousParent = 0;               ///< former parent that the last re-parenting call returned
    std::int16_t LoadLimit = 1;                     ///< file numbers that the store loader reads
    std::int32_t DesignWidth = 0;                   ///< the wizard's width as loaded, in twips
    std::int32_t DesignHeight = 0;                  ///< the wizard's height as loaded, in twips
    std::int32_t MoveX = 0;                         ///< x of the last "MOVEWIN", in pixels
    std::int32_t MoveY = 0;                         ///< y of the last "MOVEWIN", in pixels
};

}  // namespace penwright
