#pragma once

#include <exception>
#include <string>
#include <string_view>

#include "platform/Dialogs.h"

namespace penwright {

/// Runs the body of an event handler, which no exception may leave: an error is told in one message with `title`.
/// Whether the body ran to its end.
template <typename Body>
bool guardHandler(Dialogs &dialogs, std::string_view title, const Body &body)
{
    try {
        body();
        return true;
    } catch (const std::exception &error) {
        dialogs.show({.text = error.what(), .title = std::string(title)});
        return false;
    }
}

}  // namespace penwright
