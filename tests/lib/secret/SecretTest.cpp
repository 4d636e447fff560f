#include "lib/secret/Secret.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

namespace {

using namespace tessaly;

TEST(SecretText, EndsWithAZeroThatIsNotCounted)
{
    const SecretText text(std::string_view("a\0b", 3));
    EXPECT_EQ(text.size(), 3U);
    EXPECT_EQ(text.c_str()[3], '\0');
    EXPECT_STREQ(SecretText().c_str(), "");
}

/// What the system tells of the pages that an address lies in; empty when nothing is there.
std::string flagsOf(const void* address)
{
    const auto wanted = reinterpret_cast<std::uintptr_t>(address);
    std::ifstream maps("/proc/self/smaps");
    bool within = false;
    for (std::string line; std::getline(maps, line);) {
        std::uintptr_t first = 0;
        std::uintptr_t last = 0;
        if (std::sscanf(line.c_str(), "%zx-%zx", &first, &last) == 2)
            within = first <= wanted && wanted < last;
        if (within && line.starts_with("VmFlags"))
            return line;
    }
    return "";
}

TEST(SecretHeap, KeepsKeysAndPasswordsOutOfSwapAndCoreDumps)
{
    const SecretBytes key(32, 'k');
    const SecretText password("a password");
    const auto object = std::make_unique<InSecretHeap>();
    for (const void* place : std::initializer_list<const void*>{key.data(), password.c_str(), object.get()}) {
        const std::string flags = flagsOf(place);
        EXPECT_NE(flags.find(" dd"), std::string::npos) << flags;
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // these drop such calls
        EXPECT_NE(flags.find(" lo"), std::string::npos) << flags;
#endif
    }
}

/// As an ordinary user whose limit is nothing at all.
TEST(SecretHeapDeathTest, DoesWithoutLockedPages)
{
    const auto fillPages = [] {
        const rlimit none{0, 0};
        const bool isLimited =
            ::setrlimit(RLIMIT_MEMLOCK, &none) == 0 && (::getuid() != 0 || ::setuid(65534) == 0);
        const std::vector secrets(100, SecretBytes(4096, 7));
        std::_Exit(isLimited && std::ranges::count(secrets.back(), 7) == 4096 ? 0 : 1);
    };
    EXPECT_EXIT(fillPages(), testing::ExitedWithCode(0), "");
}

} // namespace
