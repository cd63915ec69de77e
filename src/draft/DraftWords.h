#pragma once

#include <ctime>
#include <string>

#include "platform/DraftStore.h"

namespace penwright {

/// What is offered for a draft, with the time of the head in the user's own time zone: "Draft of EL-2054, page 5, 14
/// May 10:32", or "Draft, page 5, ..." when it does not say what it is about.
std::string draftOffer(const DraftHead &head, const std::tm &time);

/// What is offered for the last finished file: "Start from EL-2054, 14 May 10:32", or "Start from the last file, ...".
std::string lastFileOffer(const DraftHead &head, const std::tm &time);

/// What is said of files that were not understood; "" for none.
std::string putAsideText(int count);

/// What is said of a draft that was wanted and could not be had; "" when it was taken.
std::string takeEndText(TakeEnd end);

/// What is said while drafts cannot be written, for the reason given.
std::string notKeptText(const std::string &reason);

}  // namespace penwright
