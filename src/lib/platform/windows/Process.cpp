#include "lib/platform/Process.h"

#include "lib/platform/Path.h"
#include "lib/platform/windows/AccessList.h"
#include "lib/platform/windows/SystemCall.h"
#include "lib/platform/windows/SystemFunction.h"

#include <aclapi.h>
#include <algorithm>
#include <memory>
#include <new>
#include <sddl.h>
#include <shellapi.h>
#include <string>

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

/// The files of a pattern, which the shells here leave to the programs; a word that is none, or that nothing
/// fits, as it is.
std::vector<std::wstring> expanded(const std::wstring& word)
{
    const std::size_t name = word.find_last_of(L"\\/:") + 1; // 0 when there is no folder
    if (word.find_first_of(L"*?", name) == std::wstring::npos)
        return {word};
    std::vector<std::wstring> files;
    WIN32_FIND_DATAW found = {};
    const HANDLE search = ::FindFirstFileW(word.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return {word};
    do {
        if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0)
            files.push_back(word.substr(0, name) + found.cFileName);
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
    std::ranges::sort(files);
    return files.empty() ? std::vector{word} : files;
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
        for (const std::wstring& word : expanded(words.get()[i]))
            arguments.push_back(nativePath(word));
    return arguments;
}

} // namespace tessaly::platform
