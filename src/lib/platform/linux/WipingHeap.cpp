// The heap of the two programs. Toolkit and libraries free copies of what was typed as they are; here every
// block is overwritten before it goes back, whoever had it. Linked into the programs alone: these definitions
// take the place of the C library's for all that they load.

#include "lib/platform/Memory.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <malloc.h>

namespace {

using Free = void (*)(void*);

/// The allocator that memory comes from: the C library's, or one that was loaded in its place.
Free systemFree()
{
    static constinit std::atomic<Free> known = nullptr;
    Free found = known.load(std::memory_order_relaxed);
    if (found == nullptr) {
        found = reinterpret_cast<Free>(::dlsym(RTLD_NEXT, "free"));
        known.store(found, std::memory_order_relaxed);
    }
    return found;
}

} // namespace

extern "C" void free(void* block) noexcept
{
    if (block == nullptr)
        return;
    tessaly::platform::wipe(block, ::malloc_usable_size(block));
    systemFree()(block);
}

/// Moves wherever the system's own would leave a rest behind, or free the old block itself.
extern "C" void* realloc(void* block, std::size_t size) noexcept
{
    if (block == nullptr)
        return std::malloc(size);
    if (size == 0) {
        free(block);
        return nullptr;
    }
    const std::size_t room = ::malloc_usable_size(block);
    if (size <= room && size >= room / 2)
        return block;
    void* moved = std::malloc(size);
    if (moved != nullptr) {
        std::memcpy(moved, block, std::min(room, size));
        free(block);
    }
    return moved;
}
