#pragma once

#include "lib/err/ResultCode.h"

#include <windows.h>

/// Calls that may wait for ever, and their end by an interrupt.
namespace tessaly::platform {

/// While it lives, an interrupt ends what this thread waits for in the system: the call then fails with
/// ERROR_OPERATION_ABORTED. One at a time on a thread.
class Wait
{
public:
    Wait();
    ~Wait();
    Wait(const Wait&) = delete;
    Wait& operator=(const Wait&) = delete;

    static bool isAnyUnderWay();
    /// Ends all that are under way or about to begin: repeated until each of them has ended.
    static void endAll();

private:
    HANDLE m_thread = nullptr;
};

/// What an interrupted wait gives.
ResultCode interruptedWait();

} // namespace tessaly::platform
