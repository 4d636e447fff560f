#pragma once

#include "common/settings/AlgSelection.h"

#include <QString>

#include <cstdint>

namespace thisapp {

/// Every setting that the options dialog edits, one member per row of SettingsKeys.def;
/// a default-constructed record holds the defaults.
struct SAppOptions
{
#define SETTING(Type, Key, member, fallback) Type member = fallback;
#include "common/settings/SettingsKeys.def"

    /// Both ids 0 when no algorithm is selected.
    AlgSelection defaultAlgorithm() const
    {
        return {defaultCryptoLibrary, defaultCryptoAlgorithm};
    }
    void setDefaultAlgorithm(const AlgSelection& selection)
    {
        defaultCryptoLibrary = selection.library;
        defaultCryptoAlgorithm = selection.algorithm;
    }

    friend bool operator==(const SAppOptions&, const SAppOptions&) = default;
};

} // namespace thisapp
