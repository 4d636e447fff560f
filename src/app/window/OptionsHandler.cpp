#include "app/window/OptionsHandler.h"

#include "app/i18n/SystemLanguage.h"
#include "app/i18n/Translators.h"
#include "common/errors/ErrorText.h"
#include "common/path/PathText.h"
#include "common/settings/CAppSettings.h"
#include "common/settings/OptionsStore.h"
#include "common/settings/SettingsKeys.h"
#include "crypto/catalogue/Catalogue.h"
#include "lib/err/ErrorCodes.h"
#include "lib/i18n/TranslationManager.h"
#include "lib/logger/FileLogging.h"
#include "lib/logger/Log.h"
#include "ui/algorithms/ICryptoAlgProvider.h"

#include <QDir>

#include <utility>

namespace thisapp {

using namespace tessaly;

namespace {

bool isKnownAlgorithm(std::uint32_t id)
{
    return crypto::findAlgorithm(id) != nullptr;
}

constexpr const char* Source = "mainwindow";

/// "/folder/quillet_de.ts:12: (error: 5/47)".
QString fault(const i18n::LoadResult& result)
{
    const QString line = result.line > 0 ? QStringLiteral(":%1").arg(result.line) : QString();
    return pathText(result.file) + line + QStringLiteral(": ") + errorText(result.code);
}

} // namespace

OptionsHandler::OptionsHandler(OptionsTargets targets) : m_targets(std::move(targets))
{
}

SAppOptions OptionsHandler::read() const
{
    SAppOptions options = readOptions(CAppSettings(), isKnownAlgorithm);
    if (!m_targets.algorithms.isValid(options.defaultAlgorithm()))
        options.setDefaultAlgorithm(DefaultAlgSelection);
    options.localeId = m_targets.translations.locale().lcid;
    return options;
}

std::vector<i18n::Language> OptionsHandler::languages() const
{
    return m_targets.translations.languages();
}

QString OptionsHandler::logFilePath() const
{
    return QDir::toNativeSeparators(pathText(m_targets.logging.path()));
}

QString OptionsHandler::problem() const
{
    if (!m_unsavedIn.isEmpty())
        return tr("The options can't be saved in %1.").arg(m_unsavedIn);
    if (m_language.code == err::library(err::NoTranslation))
        return tr("There is no translation for the chosen language.");
    if (!m_language.ok())
        return tr("The translation can't be loaded: %1").arg(fault(m_language));
    if (const std::string& problem = m_targets.logging.problem(); !problem.empty())
        return tr("Nothing is written to the log file: %1").arg(QString::fromStdString(problem));
    return {};
}

std::optional<AlgSelection> OptionsHandler::defaultAlgorithm() const
{
    const auto stored = readDefaultAlgorithm(CAppSettings(), isKnownAlgorithm);
    return stored && m_targets.algorithms.isValid(*stored) ? stored : std::nullopt;
}

bool OptionsHandler::storeDefaultAlgorithm(const AlgSelection& selection)
{
    CAppSettings settings;
    writeDefaultAlgorithm(settings, selection);
    return save(settings);
}

bool OptionsHandler::save(CAppSettings& settings)
{
    m_unsavedIn = settings.save() ? QString() : settings.fileName();
    return m_unsavedIn.isEmpty();
}

SAppliedOptions OptionsHandler::apply(const SAppOptions& options,
                                      const std::function<void(const AlgSelection&)>& select)
{
    CAppSettings settings;
    const bool shellChanged = writeOptions(settings, options);
    const AlgSelection algorithm = options.defaultAlgorithm();
    if (algorithm.isComplete() && m_targets.algorithms.isValid(algorithm)) {
        writeDefaultAlgorithm(settings, algorithm);
        select(algorithm);
    }
    applyLogging(options);
    const bool languageChanged =
        wantedLanguage(settings) != options.localeId && useLanguage(options.localeId);
    if (languageChanged) {
        writeLocaleId(settings, options.localeId);
        m_targets.translators.install();
    }
    save(settings);
    if (shellChanged || languageChanged) // the entries have names in that language
        m_targets.updateShell(options.integrateToShellContextMenu, options.addToSendMenu);
    return {problem(), m_targets.translations.locale().lcid};
}

void OptionsHandler::applyAtStart()
{
    const CAppSettings settings;
    applyLogging(readOptions(settings, isKnownAlgorithm));
    m_list = m_targets.translations.load();
    useLanguage(wantedLanguage(settings));
    m_targets.translators.install();
    logUnused(settings.removedLines());
}

void OptionsHandler::applyLogging(const SAppOptions& options)
{
    m_targets.logging.setLevel(options.logLevel);
    m_targets.logging.setLogFileUsed(options.useLogFile);
}

/// Until one is chosen, the first of the user's languages that we have.
std::uint32_t OptionsHandler::wantedLanguage(const CAppSettings& settings) const
{
    if (settings.contains(QLatin1String(keys::LocaleId.name)))
        return readLocaleId(settings);
    return firstOffered(m_targets.userLanguages, languages());
}

/// Without a list, that is what is told.
bool OptionsHandler::useLanguage(std::uint32_t localeId)
{
    m_language = m_targets.translations.use(localeId);
    if (m_language.ok())
        return true;
    if (!m_list.ok())
        m_language = m_list;
    logger::log(logger::Warning, Source) << "The translation for locale " << localeId
                                         << " can't be loaded: " << fault(m_language).toStdString();
    return false;
}

void OptionsHandler::logUnused(int removedLines) const
{
    const auto warn = [] { return logger::log(logger::Warning, Source); };
    if (removedLines > 0)
        warn() << "Lines taken out of the settings file that could not be read: " << removedLines;
    if (removedLines < 0)
        warn() << "The settings file cannot be read; all settings have their defaults.";
    for (const auto& [name, stored, used] : unusedValues(CAppSettings(), read()))
        warn() << "Setting " << name.data() << " is stored as \"" << stored.toStdString()
               << "\"; in use is \"" << used.toStdString() << "\".";
}

} // namespace thisapp
