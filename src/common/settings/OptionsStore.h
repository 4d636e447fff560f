#pragma once

#include "common/settings/AlgSelection.h"
#include "common/settings/SAppOptions.h"

#include <QLatin1String>
#include <QVariant>

#include <cstdint>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

class QSettings;

/// Reading and writing of the settings as a whole. Nothing is cached: each call goes to the store.
namespace thisapp {

/// Tells whether an algorithm id is in the catalogue.
using KnownAlgorithm = std::function<bool(std::uint32_t)>;

/// Everything as stored. Values of another type, and texts that cannot be used (see TextRules.h), read as
/// their defaults, and the folder is spelt out; the ids are not looked at.
SAppOptions readStoredOptions(const QSettings& settings);

/// Everything for the options dialog: an unknown locale reads as the default one, a log level out of
/// range as 0, and without a usable default algorithm the built-in one is given.
SAppOptions readOptions(const QSettings& settings, const KnownAlgorithm& isKnownAlgorithm);

/// The default locale id unless the stored one is in the locale catalogue.
std::uint32_t readLocaleId(const QSettings& settings);

/// Nothing when the default algorithm is switched off or the stored pair is no algorithm; callers
/// then use DefaultAlgSelection.
std::optional<AlgSelection> readDefaultAlgorithm(const QSettings& settings,
                                                 const KnownAlgorithm& isKnownAlgorithm);

/// A stored value in whose place another one is in use.
struct UnusedValue
{
    QLatin1String name;
    QString stored;
    QString used;
};

std::vector<UnusedValue> unusedValues(const QSettings& settings, const SAppOptions& used);

/// What writeOptions stores, in its order.
std::vector<std::pair<QLatin1String, QVariant>> writtenValues(const SAppOptions& options);

/// Stores everything but the locale and the default algorithm, changed or not; these two follow by the
/// functions below once they have proved usable. True when the desktop integration has to be
/// updated, because one of its two flags differs from what was stored.
[[nodiscard]] bool writeOptions(QSettings& settings, const SAppOptions& options);

void writeDefaultAlgorithm(QSettings& settings, const AlgSelection& selection);
void writeLocaleId(QSettings& settings, std::uint32_t localeId);

} // namespace thisapp
