#pragma once

#include <cstdlib>
#include <memory>

namespace penwright {

struct FreeCall {
    void operator()(void *memory) const { std::free(memory); }
};

/// What a C library has allocated for its caller, freed at the end; null where there is none.
template <typename T>
using Freed = std::unique_ptr<T, FreeCall>;

/// Takes over what a call has allocated.
template <typename T>
Freed<T> freed(T *memory)
{
    return Freed<T>(memory);
}

}  // namespace penwright
