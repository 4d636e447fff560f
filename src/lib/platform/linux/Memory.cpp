#include "lib/platform/Memory.h"

#include "lib/err/ErrorCodes.h"

#include <cerrno>
#include <cstring>
#include <sys/mman.h>

namespace tessaly::platform {

void wipe(void* data, std::size_t size) noexcept
{
    if (data != nullptr)
        explicit_bzero(data, size);
}

ResultCode outOfMemory()
{
    return err::system(ENOMEM);
}

void* mapSecretPages(std::size_t size) noexcept
{
    void* pages = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (pages == MAP_FAILED)
        return nullptr;
    // Whoever may have no such pages has the same protection as without this.
    (void)::mlock(pages, size);
    (void)::madvise(pages, size, MADV_DONTDUMP);
    return pages;
}

} // namespace tessaly::platform
