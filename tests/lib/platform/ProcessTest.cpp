#include "lib/platform/Process.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace {

// In a child process, which it changes for good.
TEST(ProcessDeathTest, DisablesCoreDumps)
{
    EXPECT_EXIT(
        {
            const bool done = tessaly::platform::disableCoreDumps();
            rlimit limit{};
            limit.rlim_max = 1;
            ::getrlimit(RLIMIT_CORE, &limit);
            std::_Exit(done && limit.rlim_max == 0 && ::prctl(PR_GET_DUMPABLE) == 0 ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

} // namespace
