#pragma once

#include <cstddef>

namespace tessaly::secretheap {

/// Blocks beyond this are plain data rather than keys and passwords, and come from the ordinary heap.
inline constexpr std::size_t LargestBlock = 8192;

/// Memory for keys and passwords, on pages of their own: out of core dumps, and out of the swap space as far
/// as the system lets the program have such pages; where it does not, they are pages like others. Any thread.
/// Throws std::bad_alloc.
[[nodiscard]] void* allocate(std::size_t size);
/// Wipes the block first. `size` is the one that was asked for.
void deallocate(void* block, std::size_t size) noexcept;

} // namespace tessaly::secretheap

namespace tessaly {

/// What derives from it lives there: objects that hold a key within themselves.
struct InSecretHeap
{
    static void* operator new(std::size_t size) { return secretheap::allocate(size); }
    static void operator delete(void* object, std::size_t size) noexcept
    {
        secretheap::deallocate(object, size);
    }
};

} // namespace tessaly
