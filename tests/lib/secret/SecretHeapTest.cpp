#include "lib/secret/Secret.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <ranges>
#include <sstream>
#include <string>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

namespace {

using tessaly::SecretBytes;

/// What the system tells of the pages that an address lies in; empty when nothing is there.
std::string pagesOf(const void* address)
{
    const auto wanted = reinterpret_cast<std::uintptr_t>(address);
    std::ifstream maps("/proc/self/smaps");
    std::string found;
    for (std::string line; std::getline(maps, line);) {
        std::uintptr_t first = 0;
        std::uintptr_t last = 0;
        char dash = 0;
        if (std::istringstream range(line); range >> std::hex >> first >> dash >> last && dash == '-') {
            if (!found.empty())
                break;
            if (wanted < first || wanted >= last)
                continue;
        } else if (found.empty()) {
            continue;
        }
        found += line + '\n';
    }
    return found;
}

TEST(SecretHeap, KeepsKeysAndPasswordsOutOfSwapAndCoreDumps)
{
    const SecretBytes key(32, 'k');
    const tessaly::SecretText password("a password");
    const auto object = std::make_unique<tessaly::InSecretHeap>();
    for (const void* place :
         {static_cast<const void*>(key.data()), static_cast<const void*>(password.c_str()),
          static_cast<const void*>(object.get())}) {
        const std::string pages = pagesOf(place);
        EXPECT_NE(pages.find(" dd"), std::string::npos) << pages;
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // these drop such calls
        EXPECT_NE(pages.find(" lo"), std::string::npos) << pages;
#endif
    }
}

/// As an ordinary user whose limit is nothing at all.
TEST(SecretHeapDeathTest, DoesWithoutLockedPages)
{
    const auto fillPages = [] {
        const rlimit none{0, 0};
        if (::setrlimit(RLIMIT_MEMLOCK, &none) != 0 || (::getuid() == 0 && ::setuid(65534) != 0))
            std::_Exit(1);
        std::vector<SecretBytes> secrets;
        for (int i = 0; i < 100; ++i)
            secrets.emplace_back(4096, static_cast<std::uint8_t>(i));
        const bool whole = std::ranges::all_of(std::views::iota(0, 100), [&](int i) {
            return std::ranges::all_of(secrets[static_cast<std::size_t>(i)],
                                       [i](std::uint8_t byte) { return byte == i; });
        });
        std::_Exit(whole ? 0 : 2);
    };
    EXPECT_EXIT(fillPages(), testing::ExitedWithCode(0), "");
}

} // namespace
