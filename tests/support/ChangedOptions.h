#pragma once

#include "common/settings/SAppOptions.h"

#include <type_traits>

namespace test {

/// Makes a setting's value another that can be stored.
template <class T>
void change(T& value)
{
    if constexpr (std::is_same_v<T, bool>)
        value = !value;
    else if constexpr (std::is_same_v<T, QString>)
        value += "ü, \"x\"; %1";
    else
        value = 5;
}

/// Options with no value at its default, but for the default algorithm's use at the start.
inline thisapp::SAppOptions changedOptions()
{
    thisapp::SAppOptions options;
#define SETTING(Type, Key, member, fallback) change(options.member);
#include "common/settings/SettingsKeys.def"
    options.outputDirPath = "/ü, \"x\"; \\ %1";
    options.localeId = 1031;
    options.setDefaultAlgorithm({1, 3});
    options.useDefaultAlgorithmAtStarting = true;
    return options;
}

} // namespace test
