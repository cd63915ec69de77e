#pragma once

#include <cstddef>

namespace penwright::test {

/// While it lives, there is no memory for a single object of more than `largest` bytes: the test program's own
/// `operator new` throws std::bad_alloc for it.
class AllocationLimit {
public:
    explicit AllocationLimit(std::size_t largest);
    AllocationLimit(const AllocationLimit &) = delete;
    AllocationLimit &operator=(const AllocationLimit &) = delete;
    ~AllocationLimit();
};

}  // namespace penwright::test
