#include "lib/platform/Memory.h"

#include "lib/platform/windows/SystemCall.h"
#include "lib/platform/windows/SystemFunction.h"

namespace tessaly::platform {

namespace {

/// A process may lock somewhat less than its smallest working set ("VirtualLock").
bool allowMoreLockedPages(std::size_t size) noexcept
{
    SIZE_T least = 0;
    SIZE_T most = 0;
    return ::GetProcessWorkingSetSize(::GetCurrentProcess(), &least, &most) &&
           ::SetProcessWorkingSetSize(::GetCurrentProcess(), least + size, most + size);
}

} // namespace

void wipe(void* data, std::size_t size) noexcept
{
    if (data != nullptr)
        ::SecureZeroMemory(data, size);
}

ResultCode outOfMemory()
{
    return systemError(ERROR_NOT_ENOUGH_MEMORY);
}

void* mapSecretPages(std::size_t size) noexcept
{
    void* const pages = ::VirtualAlloc(nullptr, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
    if (pages == nullptr)
        return nullptr;
    // Whoever may have no such pages has the same protection as without this.
    if (!::VirtualLock(pages, size) && allowMoreLockedPages(size))
        (void)::VirtualLock(pages, size);
    using Exclude = HRESULT WINAPI(const void*, DWORD);
    if (auto* exclude = systemFunction<Exclude>(L"kernel32.dll", "WerRegisterExcludedMemoryBlock"))
        (void)exclude(pages, static_cast<DWORD>(size));
    return pages;
}

} // namespace tessaly::platform
