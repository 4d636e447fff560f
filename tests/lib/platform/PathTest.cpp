#include "lib/platform/Path.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace tessaly::platform;

TEST(Path, EveryNameSurvives)
{
    EXPECT_EQ(widePath("a\xC3\xA9\xF0\x9F\x94\x91"), L"a\u00E9\U0001F511");
    EXPECT_EQ(widePath("caf\xE9"), std::wstring(L"caf") + wchar_t{0xDCE9});
    for (const char* name : {"\xC3", "\xE2\x82", "\xC0\xAF", "\xE0\x80\xAF", "\xED\xB3\xA9",
                             "\xF4\x90\x80\x80", "\xFF\xFE", "\xF0\x9F\x94", "\xED\xA0\x80x"})
        EXPECT_EQ(nativePath(widePath(name)), name);
    for (int first = 1; first < 256; ++first)
        for (int second = 1; second < 256; ++second) {
            const std::string name = {static_cast<char>(first), static_cast<char>(second), '\x9F'};
            ASSERT_EQ(nativePath(widePath(name)), name);
        }
}

} // namespace
