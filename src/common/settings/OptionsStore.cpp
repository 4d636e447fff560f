#include "common/settings/OptionsStore.h"

#include "common/settings/SettingsKeys.h"
#include "common/settings/TextRules.h"
#include "lib/i18n/locale/LocaleCatalogue.h"
#include "lib/logger/Level.h"

#include <QSettings>

#include <algorithm>
#include <array>

namespace thisapp {
namespace {

constexpr std::array<std::uint32_t, 6> LibraryIds{1, 10, 20, 100, 200, 300};

bool isKnownLibrary(std::uint32_t id)
{
    return std::find(LibraryIds.begin(), LibraryIds.end(), id) != LibraryIds.end();
}

QVariant storedForm(std::uint32_t value)
{
    return static_cast<int>(value);
}

template <typename T>
QVariant storedForm(const T& value)
{
    return value;
}

void store(QSettings& settings, const SettingsKey<std::uint32_t>& key, std::uint32_t value)
{
    settings.setValue(QLatin1String(key.name), storedForm(value));
}

void keepUsableTexts(SAppOptions& options)
{
    const SAppOptions defaults;
    for (QString SAppOptions::*part :
         {&SAppOptions::encFileNameExt, &SAppOptions::encFileNameSuffix, &SAppOptions::encFileNamePrefix,
          &SAppOptions::decFileNameExt, &SAppOptions::decFileNameSuffix, &SAppOptions::decFileNamePrefix})
        if (!isNamePart(options.*part))
            options.*part = defaults.*part;
    options.outputDirPath = folderPath(options.outputDirPath).value_or(defaults.outputDirPath);
}

} // namespace

SAppOptions readStoredOptions(const QSettings& settings)
{
    SAppOptions options;
#define SETTING(Type, Key, member, fallback) options.member = readSetting(settings, keys::Key);
#include "common/settings/SettingsKeys.def"
    keepUsableTexts(options);
    return options;
}

std::vector<UnusedValue> unusedValues(const QSettings& settings, const SAppOptions& used)
{
    std::vector<UnusedValue> unused;
    const auto compare = [&](const auto& key, const auto& value) {
        const QLatin1String name(key.name);
        const auto stored = storedSetting(settings, key);
        if (settings.contains(name) && (!stored || *stored != value))
            unused.push_back({name, settings.value(name).toString(), storedForm(value).toString()});
    };
#define SETTING(Type, Key, member, fallback) compare(keys::Key, used.member);
#define SEPARATE_SETTING(Type, Key, member, fallback)
#include "common/settings/SettingsKeys.def"
    compare(keys::LocaleId, used.localeId);
    if (used.useDefaultAlgorithmAtStarting) {
        compare(keys::DefaultCryptoLibrary, used.defaultCryptoLibrary);
        compare(keys::DefaultCryptoAlgorithm, used.defaultCryptoAlgorithm);
    }
    return unused;
}

SAppOptions readOptions(const QSettings& settings, const KnownAlgorithm& isKnownAlgorithm)
{
    SAppOptions options = readStoredOptions(settings);
    options.localeId = readLocaleId(settings);
    options.setDefaultAlgorithm(
        readDefaultAlgorithm(settings, isKnownAlgorithm).value_or(DefaultAlgSelection));
    if (tessaly::logger::findLevel(options.logLevel) == nullptr)
        options.logLevel = keys::LogLevel.fallback;
    return options;
}

std::uint32_t readLocaleId(const QSettings& settings)
{
    const std::uint32_t id = readSetting(settings, keys::LocaleId);
    return tessaly::i18n::findLocale(id) != nullptr ? id : keys::LocaleId.fallback;
}

std::optional<AlgSelection> readDefaultAlgorithm(const QSettings& settings,
                                                 const KnownAlgorithm& isKnownAlgorithm)
{
    if (!storedSetting(settings, keys::UseDefaultAlgorithmAtStarting).value_or(false))
        return std::nullopt;
    const AlgSelection selection{readSetting(settings, keys::DefaultCryptoLibrary),
                                 readSetting(settings, keys::DefaultCryptoAlgorithm)};
    if (!isKnownLibrary(selection.library) || !isKnownAlgorithm(selection.algorithm))
        return std::nullopt;
    return selection;
}

std::vector<std::pair<QLatin1String, QVariant>> writtenValues(const SAppOptions& options)
{
    std::vector<std::pair<QLatin1String, QVariant>> values;
#define SETTING(Type, Key, member, fallback) values.emplace_back(keys::Key.name, storedForm(options.member));
#define SEPARATE_SETTING(Type, Key, member, fallback)
#include "common/settings/SettingsKeys.def"
    return values;
}

bool writeOptions(QSettings& settings, const SAppOptions& options)
{
    const bool integrationChanged =
        readSetting(settings, keys::IntegrateToShellContextMenu) != options.integrateToShellContextMenu ||
        readSetting(settings, keys::AddToSendMenu) != options.addToSendMenu;
    for (const auto& [name, value] : writtenValues(options))
        settings.setValue(name, value);
    return integrationChanged;
}

void writeDefaultAlgorithm(QSettings& settings, const AlgSelection& selection)
{
    store(settings, keys::DefaultCryptoLibrary, selection.library);
    store(settings, keys::DefaultCryptoAlgorithm, selection.algorithm);
}

void writeLocaleId(QSettings& settings, std::uint32_t localeId)
{
    store(settings, keys::LocaleId, localeId);
}

} // namespace thisapp
