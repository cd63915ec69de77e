#pragma once

#include <string>

#include "a11y/AccessibleObject.h"

namespace penwright::test {

/// What a screen reader finds below an object, one line for each object in the order in which it is read:
///
///     role "name" = "value" (description) [states] labelled by "name"
///
/// What is not shown is left out, and so are nameless objects that hold others or a text, which readers pass over. A
/// table has a line for each cell, with the names of its row and column.
std::string accessibleText(const AccessibleObject &object);

/// The text of the window with a name, from all programs on the bus; "" when there is no such window.
std::string accessibleWindow(const AccessibleObject &desktop, const std::string &name);

}  // namespace penwright::test
