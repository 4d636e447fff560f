#pragma once

#include "common/settings/AlgSelection.h"
#include "common/settings/SAppOptions.h"
#include "lib/i18n/locale/Language.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace tessaly::i18n {
class TranslationManager;
}
namespace tessaly::logger {
class FileLogging;
}

namespace thisapp {

class ICryptoAlgProvider;
class MyTranslator;

/// What the options reach beyond the window.
struct OptionsTargets
{
    const ICryptoAlgProvider& algorithms;
    tessaly::i18n::TranslationManager& translations;
    MyTranslator& translator;
    tessaly::logger::FileLogging& logging;
    /// Brings the desktop's entries in line with the two settings.
    std::function<void(bool contextMenu, bool sendTo)> updateShell;
};

/// Reads the options for their dialog and makes changed ones take effect. GUI thread.
class OptionsHandler
{
public:
    explicit OptionsHandler(OptionsTargets targets);

    SAppOptions read() const;
    std::vector<tessaly::i18n::Language> languages() const;
    QString logFilePath() const;
    std::optional<AlgSelection> defaultAlgorithm() const;
    void storeDefaultAlgorithm(const AlgSelection& selection) const;

    /// Stores the options and makes them take effect at once; a change of the language reaches every
    /// window as a LanguageChange event. `select` gets the default algorithm when it is usable.
    void apply(const SAppOptions& options, const std::function<void(const AlgSelection&)>& select);

    /// What start-up does with the stored options.
    void applyAtStart();

private:
    void applyLogging(const SAppOptions& options);
    void applyLanguage();

    OptionsTargets m_targets;
};

} // namespace thisapp
