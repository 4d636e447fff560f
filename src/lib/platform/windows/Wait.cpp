#include "lib/platform/windows/Wait.h"

#include "lib/platform/windows/SystemCall.h"

#include <algorithm>
#include <mutex>
#include <vector>

namespace tessaly::platform {

namespace {

struct Waiting
{
    std::mutex mutex;
    std::vector<HANDLE> threads;
};

/// Never destroyed: a thread may still wait at the end of the process.
Waiting& waiting()
{
    static auto* all = new Waiting;
    return *all;
}

} // namespace

Wait::Wait()
{
    ::DuplicateHandle(::GetCurrentProcess(), ::GetCurrentThread(), ::GetCurrentProcess(), &m_thread, 0, FALSE,
                      DUPLICATE_SAME_ACCESS);
    const std::lock_guard guard(waiting().mutex);
    waiting().threads.push_back(m_thread);
}

Wait::~Wait()
{
    {
        const std::lock_guard guard(waiting().mutex);
        std::erase(waiting().threads, m_thread);
    }
    ::CloseHandle(m_thread);
}

bool Wait::isAnyUnderWay()
{
    const std::lock_guard guard(waiting().mutex);
    return !waiting().threads.empty();
}

void Wait::endAll()
{
    // A thread that has said that it will wait need not have begun to.
    constexpr DWORD StepMs = 20;
    for (;;) {
        {
            const std::lock_guard guard(waiting().mutex);
            if (waiting().threads.empty())
                return;
            for (const HANDLE thread : waiting().threads)
                ::CancelSynchronousIo(thread);
        }
        ::Sleep(StepMs);
    }
}

ResultCode interruptedWait()
{
    return systemError(ERROR_OPERATION_ABORTED);
}

} // namespace tessaly::platform
