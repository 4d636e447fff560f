#include "lib/platform/StandardStreams.h"

#include "lib/platform/Interrupts.h"
#include "lib/platform/Path.h"
#include "lib/platform/windows/Console.h"
#include "lib/platform/windows/FileStatus.h"
#include "lib/platform/windows/SystemCall.h"
#include "lib/platform/windows/SystemPath.h"
#include "lib/platform/windows/Wait.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>

namespace tessaly::platform {

namespace {

/// The most that one call is asked for; its count has 32 bits.
constexpr std::size_t MostAtOnce = 1U << 30U;

/// The end of a pipe is an error. That nothing was read from it means that its writer wrote nothing, once.
bool isPipe(HANDLE stream)
{
    return ::GetNamedPipeInfo(stream, nullptr, nullptr, nullptr, nullptr) != FALSE;
}

UINT formerOutputCodePage = 0;

/// A console shows bytes in the code page that it is set to, and stays set for the programs after this one.
void showUtf8()
{
    formerOutputCodePage = ::GetConsoleOutputCP();
    if (formerOutputCodePage == 0 || formerOutputCodePage == CP_UTF8)
        return;
    if (::SetConsoleOutputCP(CP_UTF8))
        std::atexit([] { ::SetConsoleOutputCP(formerOutputCodePage); });
}

} // namespace

ResultCode readStandardInput(void* buffer, std::size_t count, std::size_t& countRead)
{
    const Wait wait;
    countRead = 0;
    const HANDLE input = ::GetStdHandle(STD_INPUT_HANDLE);
    DWORD got = 0;
    DWORD error = ERROR_SUCCESS;
    do {
        if (Interrupts::happened())
            return interruptedWait();
        ::SetLastError(ERROR_SUCCESS);
        const BOOL done =
            ::ReadFile(input, buffer, static_cast<DWORD>(std::min(count, MostAtOnce)), &got, nullptr);
        error = ::GetLastError();
        // Ctrl-C ends a line of the console with nothing read, and without a failure.
        if (done && (got > 0 || error != ERROR_OPERATION_ABORTED))
            error = ERROR_SUCCESS;
    } while (got == 0 && error == ERROR_SUCCESS && count > 0 && isPipe(input));
    countRead = got;
    const bool isEnd = error == ERROR_BROKEN_PIPE || error == ERROR_HANDLE_EOF;
    return error == ERROR_SUCCESS || isEnd ? ResultCode{} : systemError(error);
}

ResultCode writeStandardOutput(const void* buffer, std::size_t count, std::size_t& countWritten)
{
    const Wait wait;
    countWritten = 0;
    if (Interrupts::happened())
        return interruptedWait();
    DWORD put = 0;
    const BOOL done = ::WriteFile(::GetStdHandle(STD_OUTPUT_HANDLE), buffer,
                                  static_cast<DWORD>(std::min(count, MostAtOnce)), &put, nullptr);
    const DWORD error = done ? ERROR_SUCCESS : ::GetLastError();
    countWritten = put;
    if (done && put == 0 && count > 0)
        return systemError(ERROR_WRITE_FAULT);
    return done ? ResultCode{} : systemError(error);
}

ResultCode closeStandardOutput()
{
    return outcome(::CloseHandle(::GetStdHandle(STD_OUTPUT_HANDLE)));
}

std::FILE* openBytes(const std::string& path)
{
    return ::_wfopen(systemPath(pathFromNative(path)).c_str(), L"rb");
}

FileStatus standardInputStatus()
{
    FileStatus status;
    return handleStatus(::GetStdHandle(STD_INPUT_HANDLE), status).ok() ? status : FileStatus{};
}

bool isOutputTerminal()
{
    return isConsole(STD_OUTPUT_HANDLE);
}

bool isClosedPipe(ResultCode result)
{
    return result == systemError(ERROR_BROKEN_PIPE) || result == systemError(ERROR_NO_DATA);
}

void prepareStandardStreams()
{
    // Handles are not numbered from the first free one on, so no file can take a missing stream's place.
    for (const int stream : {0, 1, 2})
        ::_setmode(stream, _O_BINARY);
    showUtf8();
}

} // namespace tessaly::platform
