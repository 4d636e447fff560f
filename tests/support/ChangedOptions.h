#pragma once

#include "common/settings/SAppOptions.h"

#include <type_traits>
#include <vector>

namespace test {

/// Options with no value at its default or equal to another text, but for the default algorithm's use at
/// the start.
inline thisapp::SAppOptions changedOptions()
{
    thisapp::SAppOptions options;
    const auto change = [](auto& value, const char* name) {
        using T = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<T, bool>)
            value = !value;
        else if constexpr (std::is_same_v<T, QString>)
            value += QString("ü, \"x\"; %1") + name;
        else
            value = 5;
    };
#define SETTING(Type, Key, member, fallback) change(options.member, #Key);
#include "common/settings/SettingsKeys.def"
    options.outputDirPath = "/ü, \"x\"; %1";
    options.localeId = 1031;
    options.setDefaultAlgorithm({1, 3});
    options.useDefaultAlgorithmAtStarting = true;
    return options;
}

/// The defaults, once for each setting, with that one changed; then all changed.
inline std::vector<thisapp::SAppOptions> eachChanged()
{
    const thisapp::SAppOptions changed = changedOptions();
    std::vector<thisapp::SAppOptions> each;
#define SETTING(Type, Key, member, fallback) each.emplace_back().member = changed.member;
#define SEPARATE_SETTING(Type, Key, member, fallback)
#include "common/settings/SettingsKeys.def"
    each.push_back(changed);
    return each;
}

} // namespace test
