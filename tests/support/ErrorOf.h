#pragma once

#include "platform/RunTimeError.h"

namespace penwright::test {

/// The number of the run-time error that `body` ends with, 0 when it ends well.
template <typename Body>
int errorOf(const Body &body)
{
    try {
        body();
    } catch (const RunTimeError &error) {
        return error.number();
    }
    return 0;
}

}  // namespace penwright::test
