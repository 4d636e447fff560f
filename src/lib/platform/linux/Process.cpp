#include "lib/platform/Process.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace tessaly::platform {

std::uint32_t processId()
{
    return static_cast<std::uint32_t>(::getpid());
}

std::uint32_t threadId()
{
    return static_cast<std::uint32_t>(::gettid());
}

void endProcess(int exitCode)
{
    ::_exit(exitCode);
}

bool disableCoreDumps()
{
    // The limit alone doesn't reach a handler that the kernel pipes dumps to.
    const rlimit none{0, 0};
    const bool limited = ::setrlimit(RLIMIT_CORE, &none) == 0;
    return ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0) == 0 && limited;
}

std::vector<std::string> programArguments(int argc, char** argv)
{
    return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

} // namespace tessaly::platform
