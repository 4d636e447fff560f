#include "lib/platform/Memory.h"
#include "lib/platform/SystemMessage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <windows.h>

namespace {

using namespace tessaly;

/// More than the system lets a process lock at first.
TEST(SecretPages, AreHadBeyondTheFirstLimit)
{
    constexpr std::size_t Size = 64 << 10;
    for (int i = 0; i < 16; ++i) {
        auto* const pages = static_cast<std::uint8_t*>(platform::mapSecretPages(Size));
        ASSERT_NE(pages, nullptr);
        std::fill_n(pages, Size, std::uint8_t{7});
        EXPECT_TRUE(::VirtualUnlock(pages, Size)) << "it was not locked";
        EXPECT_TRUE(::VirtualFree(pages, 0, MEM_RELEASE));
    }
}

TEST(SystemMessage, StandsOnOneLine)
{
    for (std::uint32_t number = 0; number < 2000; ++number)
        if (const auto message = platform::systemMessage(number)) {
            EXPECT_FALSE(message->empty()) << number;
            EXPECT_EQ(message->find_first_of("\r\n"), std::string::npos) << number;
            EXPECT_FALSE(message->ends_with(' ') || message->ends_with('.')) << number;
        }
    EXPECT_TRUE(platform::systemMessage(ERROR_FILE_NOT_FOUND));
    EXPECT_FALSE(platform::systemMessage(0x7FFFFFFF));
}

} // namespace
