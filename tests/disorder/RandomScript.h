#pragma once

#include "disorder/Script.h"

namespace penwright::test {

/// So many acts of host and user in an order that the seed decides; the same for the same seed everywhere.
Script randomScript(unsigned seed, int acts);

}  // namespace penwright::test
