#include "lib/secret/Hex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

namespace {

using namespace tessaly;

TEST(Hex, DecodesPairsBetweenAnyWhiteSpace)
{
    EXPECT_EQ(decodeHex("00ff Aa\t\r\n\v\f1 2"), (SecretBytes{0x00, 0xFF, 0xAA, 0x12}));
    EXPECT_EQ(decodeHex(" \n"), SecretBytes());
    for (const char* text : {"0", "123", "0g", "0x00", "00,11", "\xC2\xA0", "-1"})
        EXPECT_EQ(decodeHex(text), std::nullopt) << text;
    for (const char* text : {"", "0F", "01234567", "01234567 89", "01234567 89ABCDEF 00"}) {
        const SecretBytes bytes = decodeHex(text).value();
        EXPECT_EQ(encodeHex({bytes.data(), bytes.size()}).view(), text) << "groups of four bytes";
    }
}

TEST(SecretText, EndsWithAZeroThatIsNotCounted)
{
    const SecretText text(std::string_view("a\0b", 3));
    EXPECT_EQ(text.size(), 3U);
    EXPECT_EQ(text.c_str()[3], '\0');
    EXPECT_STREQ(SecretText().c_str(), "");
}

/// What the system tells of the pages that an address lies in; empty when nothing is there.
std::string pagesOf(const void* address)
{
    const auto wanted = reinterpret_cast<std::uintptr_t>(address);
    std::ifstream maps("/proc/self/smaps");
    std::string found;
    bool within = false;
    for (std::string line; std::getline(maps, line);) {
        std::uintptr_t first = 0;
        std::uintptr_t last = 0;
        char dash = 0;
        if (std::istringstream range(line); range >> std::hex >> first >> dash >> last && dash == '-')
            within = first <= wanted && wanted < last;
        if (within)
            found += line + '\n';
    }
    return found;
}

TEST(SecretHeap, KeepsKeysAndPasswordsOutOfSwapAndCoreDumps)
{
    const SecretBytes key(32, 'k');
    const SecretText password("a password");
    const auto object = std::make_unique<InSecretHeap>();
    for (const void* place : std::initializer_list<const void*>{key.data(), password.c_str(), object.get()}) {
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
        for (std::uint8_t i = 0; i < 100; ++i)
            secrets.emplace_back(4096, i);
        for (std::uint8_t i = 0; i < 100; ++i)
            if (std::ranges::count(secrets[i], i) != 4096)
                std::_Exit(2);
        std::_Exit(0);
    };
    EXPECT_EXIT(fillPages(), testing::ExitedWithCode(0), "");
}

} // namespace
