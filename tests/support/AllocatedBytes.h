#pragma once

#include <cstddef>

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define PENWRIGHT_ASAN
#endif
#endif
#ifdef __SANITIZE_ADDRESS__
#define PENWRIGHT_ASAN
#endif

#ifdef PENWRIGHT_ASAN
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();  // g++ ships no header for it
#else
#include <malloc.h>
#endif

namespace penwright::test {

/// The bytes of the heap that are in use at this moment, the libraries' included. What the system counts for the
/// process would not do: the address sanitizer keeps freed memory back for a while.
inline std::size_t allocatedBytes()
{
#ifdef PENWRIGHT_ASAN
    return __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
#endif
}

}  // namespace penwright::test
