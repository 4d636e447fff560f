#pragma once

#include "common/settings/AlgSelection.h"
#include "common/settings/IAppOptionsChanged.h"
#include "common/settings/SAppOptions.h"
#include "lib/i18n/locale/Language.h"
#include "lib/i18n/resource/TranslationFile.h"

#include <QCoreApplication>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

class CAppSettings;

namespace tessaly::i18n {
class TranslationManager;
}
namespace tessaly::logger {
class FileLogging;
}

namespace thisapp {

class ICryptoAlgProvider;
class Translators;

/// What the options reach beyond the window.
struct OptionsTargets
{
    const ICryptoAlgProvider& algorithms;
    tessaly::i18n::TranslationManager& translations;
    Translators& translators;
    tessaly::logger::FileLogging& logging;
    /// Brings the desktop's entries in line with the two settings.
    std::function<void(bool contextMenu, bool sendTo)> updateShell;
    /// What the user reads, the best first; the language of the interface until one is chosen.
    QStringList userLanguages = QLocale::system().uiLanguages();
};

/// Reads the options for their dialog and makes changed ones take effect. GUI thread.
class OptionsHandler
{
    Q_DECLARE_TR_FUNCTIONS(OptionsHandler)

public:
    explicit OptionsHandler(OptionsTargets targets);

    /// As stored; where that cannot be used, what is in use in its place: the language, too.
    SAppOptions read() const;
    std::vector<tessaly::i18n::Language> languages() const;
    QString logFilePath() const;
    /// A sentence on what of the options is not in effect; empty when all is.
    QString problem() const;
    std::optional<AlgSelection> defaultAlgorithm() const;
    /// False when it could not be saved; problem() tells of it then.
    [[nodiscard]] bool storeDefaultAlgorithm(const AlgSelection& selection);

    /// Stores the options and makes them take effect at once; a change of the language reaches every
    /// window as a LanguageChange event. `select` gets the default algorithm when it is usable.
    SAppliedOptions apply(const SAppOptions& options, const std::function<void(const AlgSelection&)>& select);

    /// What start-up does with the stored options.
    void applyAtStart();

private:
    bool save(CAppSettings& settings);
    void applyLogging(const SAppOptions& options);
    std::uint32_t wantedLanguage(const CAppSettings& settings) const;
    bool useLanguage(std::uint32_t localeId);
    void logUnused(int removedLines) const;

    OptionsTargets m_targets;
    QString m_unsavedIn; ///< the settings file that could not be written; else empty
    tessaly::i18n::LoadResult m_list;
    tessaly::i18n::LoadResult m_language;
};

} // namespace thisapp
