#include "fuzz/support/AllocationWatch.h"

#include <sanitizer/allocator_interface.h>

#include <algorithm>
#include <atomic>
#include <cstdint>

namespace fuzz {

namespace {

std::atomic<std::int64_t> present = 0;
std::atomic<std::int64_t> most = 0;

void onAllocation(const volatile void*, std::size_t count)
{
    const std::int64_t now = present += static_cast<std::int64_t>(count);
    for (std::int64_t before = most; before < now && !most.compare_exchange_weak(before, now);) {
    }
}

void onRelease(const volatile void* data)
{
    if (data != nullptr)
        present -= static_cast<std::int64_t>(__sanitizer_get_allocated_size(const_cast<const void*>(data)));
}

} // namespace

AllocationWatch::AllocationWatch()
{
    [[maybe_unused]] static const int isInstalled =
        __sanitizer_install_malloc_and_free_hooks(onAllocation, onRelease);
    present = 0;
    most = 0;
}

std::size_t AllocationWatch::peak() const
{
    return static_cast<std::size_t>(std::max<std::int64_t>(most, 0));
}

} // namespace fuzz
