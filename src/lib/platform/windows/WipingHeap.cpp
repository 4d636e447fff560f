// The heap of the two programs. Toolkit and libraries free copies of what was typed as they are; here every
// block is overwritten before it goes back, whoever had it. Linked into the programs alone: as they are
// static, these definitions take the place of the runtime's for all that is in them, but not for the system's
// own.

#include "lib/platform/Memory.h"
#include "lib/platform/windows/SystemFunction.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <malloc.h>

namespace {

using Free = void(void*);

/// The runtime's.
Free* systemFree()
{
    static constinit std::atomic<Free*> known = nullptr;
    Free* found = known.load(std::memory_order_relaxed);
    if (found == nullptr) {
        found = tessaly::platform::systemFunction<Free>(L"msvcrt.dll", "free");
        known.store(found, std::memory_order_relaxed);
    }
    return found;
}

} // namespace

extern "C" void free(void* block)
{
    if (block == nullptr)
        return;
    tessaly::platform::wipe(block, ::_msize(block));
    systemFree()(block);
}

/// Moves wherever the system's own would leave a rest behind, or free the old block itself.
extern "C" void* realloc(void* block, std::size_t size)
{
    if (block == nullptr)
        return std::malloc(size);
    if (size == 0) {
        free(block);
        return nullptr;
    }
    const std::size_t room = ::_msize(block);
    if (size <= room && size >= room / 2)
        return block;
    void* moved = std::malloc(size);
    if (moved != nullptr) {
        std::memcpy(moved, block, std::min(room, size));
        free(block);
    }
    return moved;
}
