#include "lib/platform/Process.h"

#include "lib/platform/Path.h"
#include "lib/platform/windows/AccessList.h"
#include "lib/platform/windows/SystemCall.h"
#include "lib/platform/windows/SystemFunction.h"

#include <aclapi.h>
#include <memory>
#include <new>
#include <sddl.h>
#include <shellapi.h>

namespace tessaly::platform {

namespace {

/// What other processes of the user may do with this one: see it, wait for it and end it, but not read its
/// memory. Whoever it belongs to could else allow himself more.
bool closeToOthers()
{
    const std::wstring user = userSid();
    const std::wstring text = L"D:P(A;;GA;;;SY)(A;;RC;;;OW)(A;;0x101401;;;" + user + L")";
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (user.empty() || !::ConvertStringSecurityDescriptorToSecurityDescriptorW(text.c_str(), SDDL_REVISION_1,
                                                                                &descriptor, nullptr))
        return false;
    const BOOL done = ::SetKernelObjectSecurity(::GetCurrentProcess(), DACL_SECURITY_INFORMATION, descriptor);
    ::LocalFree(descriptor);
    return done != FALSE;
}

/// Of crashes, which may go to the maker of the system.
bool keepHeapOutOfReports()
{
    using SetFlags = HRESULT WINAPI(DWORD);
    constexpr DWORD NoHeap = 1;
    auto* const setFlags = systemFunction<SetFlags>(L"kernel32.dll", "WerSetFlags");
    return setFlags != nullptr && SUCCEEDED(setFlags(NoHeap));
}

} // namespace

std::uint32_t processId()
{
    return ::GetCurrentProcessId();
}

std::uint32_t threadId()
{
    return ::GetCurrentThreadId();
}

void endProcess(int exitCode)
{
    ::TerminateProcess(::GetCurrentProcess(), static_cast<UINT>(exitCode));
    for (;;) // the call does not return
        ::Sleep(INFINITE);
}

bool disableCoreDumps()
{
    const bool isReportLean = keepHeapOutOfReports();
    return closeToOthers() && isReportLean;
}

std::vector<std::string> programArguments(int, char**)
{
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&::LocalFree)> words(
        ::CommandLineToArgvW(::GetCommandLineW(), &count), &::LocalFree);
    if (!words)
        throw std::bad_alloc();
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(nativePath(words.get()[i]));
    return arguments;
}

} // namespace tessaly::platform
