#pragma once

#include "common/settings/AlgSelection.h"

#include <optional>

class QWidget;

namespace thisapp {

class ICryptoAlgProvider;

/// What the user decided about the algorithm.
struct SDefaultAlgOutcome
{
    AlgSelection current;        ///< the algorithm to work with from now on
    bool storeAsDefault = false; ///< also keep it in the settings
};

/// Runs the default-algorithm dialog, opened on the stored default if the provider accepts it, else
/// on the built-in one. Nothing when the user cancelled or chose nothing that the provider accepts.
std::optional<SDefaultAlgOutcome> askDefaultAlgorithm(QWidget* parent, const ICryptoAlgProvider& provider,
                                                      const std::optional<AlgSelection>& stored);

} // namespace thisapp
