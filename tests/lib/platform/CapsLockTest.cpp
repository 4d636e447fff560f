#include "lib/platform/linux/CapsLight.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace {

using tessaly::platform::capsLightOn;

TEST(CapsLock, IsOnWhenOneKeyboardShowsIt)
{
    const test::TempFolder folder;
    const auto light = [&](const char* name, const char* brightness) {
        std::filesystem::create_directory(folder / name);
        folder.write(std::string(name) + "/brightness", brightness);
    };
    EXPECT_EQ(capsLightOn(folder / "nowhere"), std::nullopt);
    light("input1::numlock", "1");
    EXPECT_EQ(capsLightOn(folder.path()), std::nullopt);
    light("input1::capslock", "0");
    EXPECT_EQ(capsLightOn(folder.path()), false);
    light("input1::capslock", "255");
    for (const char* other : {"input0::capslock", "input2::capslock", "input3::capslock"})
        light(other, "0");
    EXPECT_EQ(capsLightOn(folder.path()), true);
    light("input1::capslock", "");
    EXPECT_EQ(capsLightOn(folder.path()), false) << "a light that tells nothing";
}

} // namespace
