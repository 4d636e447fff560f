#include "lib/platform/Interrupts.h"

#include "lib/platform/windows/SystemCall.h"
#include "lib/platform/windows/Wait.h"

#include <atomic>
#include <system_error>
#include <thread>
#include <utility>

namespace tessaly::platform {

namespace {

std::atomic<bool> interrupted = false;

/// Never closed: a handler may still be at work when its Interrupts has ended.
HANDLE wakeUp()
{
    static const HANDLE event = ::CreateEventW(nullptr, FALSE, FALSE, nullptr);
    return event;
}

/// On a thread that the system makes for it.
BOOL WINAPI onControl(DWORD event)
{
    interrupted = true;
    ::SetEvent(wakeUp());
    // The system ends the process when this returns from the close of a console, a log-out or a shutdown;
    // until then it gives it a few seconds, in which main ends it.
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
        ::Sleep(INFINITE);
    return TRUE;
}

} // namespace

void ignoreWriteSignals()
{
    // A drive without a disk in it becomes an error of the call instead of a message box.
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

struct Interrupts::Watcher
{
    std::function<void()> onInterrupt;
    std::atomic<bool> ending = false;
    std::thread thread;

    void run()
    {
        while (!ending) {
            ::WaitForSingleObject(wakeUp(), INFINITE);
            if (ending || !interrupted)
                continue;
            onInterrupt();
            Wait::endAll();
        }
    }
};

Interrupts::Interrupts(std::function<void()> onInterrupt) : m_watcher(std::make_unique<Watcher>())
{
    if (wakeUp() == nullptr)
        throw std::system_error(static_cast<int>(::GetLastError()), std::system_category());
    m_watcher->onInterrupt = std::move(onInterrupt);
    ::ResetEvent(wakeUp()); // what is left from before
    m_watcher->thread = std::thread([this] { m_watcher->run(); });
    ::SetConsoleCtrlHandler(onControl, TRUE);
}

Interrupts::~Interrupts()
{
    ::SetConsoleCtrlHandler(onControl, FALSE);
    m_watcher->ending = true;
    ::SetEvent(wakeUp());
    m_watcher->thread.join();
}

bool Interrupts::happened()
{
    return interrupted;
}

} // namespace tessaly::platform
