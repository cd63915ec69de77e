#include "support/AllocationLimit.h"

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

namespace penwright::test {
namespace {

constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();

std::atomic<std::size_t> limit = kNoLimit;

}  // namespace

AllocationLimit::AllocationLimit(std::size_t largest)
{
    limit = largest;
}

AllocationLimit::~AllocationLimit()
{
    limit = kNoLimit;
}

namespace {

void *allocated(std::size_t size) noexcept
{
    return size > limit ? nullptr : std::malloc(size > 0 ? size : 1);
}

}  // namespace
}  // namespace penwright::test

// All of a kind: what one of them allocates another one frees.

void *operator new(std::size_t size)
{
    if (void *memory = penwright::test::allocated(size))
        return memory;
    throw std::bad_alloc();
}

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return penwright::test::allocated(size);
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, const std::nothrow_t &) noexcept
{
    std::free(memory);
}
