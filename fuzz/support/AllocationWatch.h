#pragma once

#include <cstddef>

namespace fuzz {

/// Counts what is allocated while it lives, on all threads. One at a time.
class AllocationWatch
{
public:
    AllocationWatch();
    AllocationWatch(const AllocationWatch&) = delete;
    AllocationWatch& operator=(const AllocationWatch&) = delete;

    /// The most bytes that were there at once, beyond what was there before.
    std::size_t peak() const;
};

} // namespace fuzz
