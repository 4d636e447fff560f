#include "app/window/OptionsHandler.h"

#include "app/i18n/MyTranslator.h"
#include "common/path/PathText.h"
#include "common/settings/CAppSettings.h"
#include "common/settings/OptionsStore.h"
#include "crypto/catalogue/Catalogue.h"
#include "lib/i18n/TranslationManager.h"
#include "lib/logger/FileLogging.h"
#include "ui/algorithms/ICryptoAlgProvider.h"

#include <QCoreApplication>

#include <utility>

namespace thisapp {

using namespace tessaly;

namespace {

bool isKnownAlgorithm(std::uint32_t id)
{
    return crypto::findAlgorithm(id) != nullptr;
}

} // namespace

OptionsHandler::OptionsHandler(OptionsTargets targets) : m_targets(std::move(targets))
{
}

SAppOptions OptionsHandler::read() const
{
    return readOptions(CAppSettings(), isKnownAlgorithm);
}

std::vector<i18n::Language> OptionsHandler::languages() const
{
    return m_targets.translations.languages();
}

QString OptionsHandler::logFilePath() const
{
    return pathText(m_targets.logging.path());
}

std::optional<AlgSelection> OptionsHandler::defaultAlgorithm() const
{
    return readDefaultAlgorithm(CAppSettings(), isKnownAlgorithm);
}

void OptionsHandler::storeDefaultAlgorithm(const AlgSelection& selection) const
{
    CAppSettings settings;
    writeDefaultAlgorithm(settings, selection);
}

void OptionsHandler::apply(const SAppOptions& options, const std::function<void(const AlgSelection&)>& select)
{
    CAppSettings settings;
    const bool shellChanged = writeOptions(settings, options);
    const AlgSelection algorithm = options.defaultAlgorithm();
    if (algorithm.isComplete() && m_targets.algorithms.isValid(algorithm)) {
        writeDefaultAlgorithm(settings, algorithm);
        select(algorithm);
    }
    applyLogging(options);
    if (readLocaleId(settings) != options.localeId) {
        if (m_targets.translations.use(options.localeId).ok()) {
            writeLocaleId(settings, options.localeId);
            applyLanguage();
        }
    }
    if (shellChanged)
        m_targets.updateShell(options.integrateToShellContextMenu, options.addToSendMenu);
}

void OptionsHandler::applyAtStart()
{
    const SAppOptions options = read();
    applyLogging(options);
    (void)m_targets.translations.load();
    (void)m_targets.translations.use(options.localeId);
    applyLanguage();
}

void OptionsHandler::applyLogging(const SAppOptions& options)
{
    m_targets.logging.setLevel(options.logLevel);
    m_targets.logging.setLogFileUsed(options.useLogFile);
}

/// Installing the translator again sends every window a LanguageChange event.
void OptionsHandler::applyLanguage()
{
    QCoreApplication::removeTranslator(&m_targets.translator);
    QCoreApplication::installTranslator(&m_targets.translator);
}

} // namespace thisapp
