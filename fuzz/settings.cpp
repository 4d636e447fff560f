// The settings file with any content: every value in use is one that can be used, none takes memory out of
// proportion, and what is written comes back.

#include "common/settings/AppSettings.h"
#include "common/settings/OptionsStore.h"
#include "common/settings/Product.h"
#include "common/settings/SAppOptions.h"
#include "common/settings/SettingsFile.h"
#include "common/settings/TextRules.h"
#include "crypto/catalogue/Catalogue.h"
#include "fuzz/support/AllocationWatch.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/Text.h"
#include "lib/i18n/locale/LocaleCatalogue.h"
#include "lib/logger/Level.h"
#include "tests/support/TempFolder.h"

#include <cstdint>
#include <string>

using namespace fuzz;
using namespace thisapp;
using tessaly::AppSettings;
using tessaly::QuilletProductId;

namespace {

bool isKnown(std::uint32_t id)
{
    return tessaly::crypto::findAlgorithm(id) != nullptr;
}

/// A profile of its own for each input: Qt keeps files that it has read, by their paths and times.
std::string freshProfile(const test::TempFolder& folder)
{
    static std::uint64_t count = 0;
    const std::string name = std::to_string(count++);
    qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString((folder.path() / name).string()));
    return name;
}

void checkTypes(const AppSettings& settings)
{
    for (const QString& key : settings.allKeys()) {
        const int type = settings.value(key).userType();
        require(type == QMetaType::QString || type == QMetaType::QStringList ||
                    type == QMetaType::QVariantList || type == QMetaType::QByteArray ||
                    type == QMetaType::QRect || type == QMetaType::QSize || type == QMetaType::QPoint ||
                    type == QMetaType::UnknownType,
                "no object is made of a value");
    }
}

void checkOptions(const SAppOptions& options)
{
    for (const QString& part : {options.encFileNameExt, options.encFileNameSuffix, options.encFileNamePrefix,
                                options.decFileNameExt, options.decFileNameSuffix, options.decFileNamePrefix})
        require(isNamePart(part), "a part of a name is one");
    require(folderPath(options.outputDirPath) == options.outputDirPath, "a folder is absolute or none");
    require(tessaly::i18n::findLocale(options.localeId) != nullptr, "the language exists");
    require(tessaly::logger::findLevel(options.logLevel) != nullptr, "the log level exists");
    require(isKnown(options.defaultCryptoAlgorithm), "the algorithm exists");
}

void checkWriting(const SAppOptions& options)
{
    {
        AppSettings settings(QuilletProductId);
        settings.clear();
        (void)writeOptions(settings, options);
        writeDefaultAlgorithm(settings, options.defaultAlgorithm());
        writeLocaleId(settings, options.localeId);
        require(settings.save(), "the settings can be written");
    }
    AppSettings settings(QuilletProductId);
    require(settings.removedLines() == 0, "nothing that was written is taken out");
    SAppOptions expected = options;
    if (!options.useDefaultAlgorithmAtStarting)
        expected.setDefaultAlgorithm(DefaultAlgSelection);
    require(readOptions(settings, isKnown) == expected, "what was written comes back");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const test::TempFolder folder;
    const std::string profile = freshProfile(folder);
    folder.write(profile + "/Tessaly/Quillet.conf", text(data, size));
    SAppOptions options;
    {
        const AllocationWatch memory;
        const AppSettings settings(QuilletProductId);
        checkTypes(settings);
        options = readOptions(settings, isKnown);
        for (const UnusedValue& unused : unusedValues(settings, options))
            require(unused.stored != unused.used || unused.stored.isEmpty(),
                    "an unused value is another one");
        require(memory.peak() <= 256 * size + (1 << 20), "memory in proportion to the file");
    }
    checkOptions(options);
    // A name part that the user typed may look like anything else.
    if (const QString typed =
            QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size)).right(40);
        isNamePart(typed) && QString::fromUtf8(typed.toUtf8()) == typed &&
        !typed.contains(QRegularExpression(R"([=,\s]@(Variant|DateTime)\()")))
        options.encFileNamePrefix = typed;
    checkWriting(options);
    std::filesystem::remove_all(folder.path() / profile);
    return 0;
}
