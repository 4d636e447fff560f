#pragma once

#include <cstdio>
#include <cstdlib>

namespace fuzz {

/// Makes the input a finding unless the claim holds: the fuzzer keeps it, with the stack of the abort.
inline void require(bool holds, const char* claim)
{
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", claim);
    std::abort();
}

} // namespace fuzz
