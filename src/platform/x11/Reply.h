#pragma once

#include <cstdlib>
#include <memory>

namespace penwright::x11 {

struct ReplyFree {
    void operator()(void *reply) const { std::free(reply); }
};

/// What the X server has answered, freed at the end; null where there is no answer.
template <typename T>
using Reply = std::unique_ptr<T, ReplyFree>;

/// The answer, held.
template <typename T>
Reply<T> held(T *reply)
{
    return Reply<T>(reply);
}

}  // namespace penwright::x11
