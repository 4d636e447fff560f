#pragma once

#include "common/settings/AlgSelection.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <type_traits>

class QSettings;

namespace thisapp {

/// One setting: its name in the store and what an absent or unusable value reads as.
template <typename T>
struct SettingsKey
{
    std::conditional_t<std::is_same_v<T, QString>, const char*, T> fallback;
    const char* name;

    T defaultValue() const { return T(fallback); }
};

/// The settings as typed keys: keys::UseSalt and so on.
namespace keys {
#define SETTING(Type, Key, member, fallback) inline constexpr SettingsKey<Type> Key{fallback, #Key};
#include "common/settings/SettingsKeys.def"
} // namespace keys

/// The stored value; the default when the key is absent, nothing when the value is of another type.
template <typename T>
std::optional<T> storedSetting(const QSettings& settings, const SettingsKey<T>& key);

/// The stored value, or the default when the key is absent or its value is of another type.
template <typename T>
T readSetting(const QSettings& settings, const SettingsKey<T>& key)
{
    return storedSetting(settings, key).value_or(key.defaultValue());
}

} // namespace thisapp
