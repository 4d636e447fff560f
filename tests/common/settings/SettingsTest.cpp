#include "common/naming/NamingSettings.h"
#include "common/settings/CAppSettings.h"
#include "common/settings/OptionsStore.h"
#include "common/settings/Product.h"
#include "common/settings/SettingsKeys.h"
#include "support/ChangedOptions.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

namespace {

using thisapp::AlgSelection;
using thisapp::SAppOptions;
namespace keys = thisapp::keys;

const auto KnownAlgorithm = [](std::uint32_t id) { return id == 252 || id == 3; };

/// A fresh user profile for each test.
class Settings : public testing::Test
{
protected:
    void SetUp() override { qputenv("XDG_CONFIG_HOME", profile.path().toLocal8Bit()); }
    void TearDown() override { qunsetenv("XDG_CONFIG_HOME"); }

    QString file() const { return profile.filePath("Tessaly/Quillet.conf"); }
    SAppOptions read() const { return thisapp::readOptions(CAppSettings(), KnownAlgorithm); }
    static void set(const char* key, const QVariant& value) { CAppSettings().setValue(key, value); }

    QTemporaryDir profile;
};

TEST_F(Settings, StoredAtTheUsersPlace)
{
    CAppSettings settings;
    EXPECT_EQ(settings.fileName(), file());
    EXPECT_EQ(settings.productId(), tessaly::QuilletProductId);
    EXPECT_NE(tessaly::AppSettings(77).fileName(), file());
    CAppSettings::setApplicationProductId(77);
    EXPECT_EQ(CAppSettings().fileName(), tessaly::AppSettings(77).fileName());
    CAppSettings::setApplicationProductId(tessaly::QuilletProductId);

    qputenv("XDG_CONFIG_HOME", "relative");
    EXPECT_EQ(CAppSettings().fileName(), QDir::home().filePath(".config/Tessaly/Quillet.conf"));
}

TEST_F(Settings, EveryValueSurvivesWritingAndReading)
{
    const SAppOptions options = test::changedOptions();
    {
        CAppSettings settings;
        EXPECT_TRUE(thisapp::writeOptions(settings, options));
        thisapp::writeDefaultAlgorithm(settings, options.defaultAlgorithm());
        thisapp::writeLocaleId(settings, options.localeId);
    }
    EXPECT_EQ(read(), options);
    EXPECT_EQ(thisapp::readNamingSettings(CAppSettings()).encryption.suffix, options.encFileNameSuffix);
}

/// One after the other, so that none can stand for another of its type.
TEST_F(Settings, EachOptionIsStoredForItself)
{
    const auto isOfNames = [](const QString& key) {
        return key.contains("FileName") || key.contains("OutputDir") || key.contains("Autogenerator");
    };
    const auto expectStored = [&](const char* key, const SAppOptions& changed, bool isSeparate) {
        SAppOptions byNames;
        thisapp::NamingSettings(changed).store(byNames);
        EXPECT_EQ(byNames == changed, isOfNames(key)) << key;
        CAppSettings settings;
        settings.clear();
        const std::string_view name = key;
        EXPECT_EQ(thisapp::writeOptions(settings, changed),
                  name == "IntegrateToShellContextMenu" || name == "AddToSendMenu");
        EXPECT_EQ(thisapp::readStoredOptions(settings) == changed, !isSeparate) << key;
    };
    const auto usable = [](SAppOptions options) {
        if (!options.outputDirPath.isEmpty())
            options.outputDirPath = "/" + options.outputDirPath;
        return options;
    };
    SAppOptions one;
#define SETTING(Type, Key, member, fallback)                                                                 \
    test::change((one = {}).member);                                                                         \
    expectStored(#Key, usable(one), false);
#define SEPARATE_SETTING(Type, Key, member, fallback)                                                        \
    test::change((one = {}).member);                                                                         \
    expectStored(#Key, one, true);
#include "common/settings/SettingsKeys.def"
}

TEST_F(Settings, DefaultsInTheOrderOfWriting)
{
    std::string values;
    for (const auto& [name, value] : thisapp::writtenValues(read()))
        values += std::string(name.data()) + '=' + value.toString().toStdString() + ' ';
    EXPECT_EQ(values,
              "IntegrateToShellContextMenu=true AddToSendMenu=true UseDefaultAlgorithmAtStarting=true "
              "LogLevel=0 UseLogFile=false UseSalt=false RewriteOutputFile=false "
              "ShowAdvancedPasswordOptions=true ShowPassword=false ShowConfirmDialog=true "
              "UseConfirmPassword=true UseOutputFileAutogenerator=true OutputDirPath= "
              "UseDefaultOutputDir=false DeleteSourceFileAfterEncryption=false "
              "ConfirmDeleteSourceFileAfterEncryption=true EncFileNameAddExt=true "
              "EncFileNameAddSuffix=false EncFileNameAddPrefix=false EncFileNameAddDate=false "
              "EncFileNameExt=enc EncFileNameSuffix= EncFileNamePrefix= DecFileNameAddExt=true "
              "DecFileNameAddSuffix=false DecFileNameAddPrefix=false DecFileNameAddDate=false "
              "DecFileNameExt=dec DecFileNameSuffix= DecFileNamePrefix= SealFiles=false ");
    EXPECT_FALSE(QFile::exists(file())) << "reading writes nothing";
}

TEST_F(Settings, WritingWithoutChangesStoresAllButLocaleAndAlgorithm)
{
    CAppSettings settings;
    EXPECT_FALSE(thisapp::writeOptions(settings, read())) << "no change of the desktop integration";
    EXPECT_EQ(settings.allKeys().size(), 31);
    for (const char* key : {"LocaleId", "DefaultCryptoLibrary", "DefaultCryptoAlgorithm"})
        EXPECT_FALSE(settings.contains(key)) << key;

    SAppOptions options;
    options.addToSendMenu = false;
    EXPECT_TRUE(thisapp::writeOptions(settings, options));
    EXPECT_FALSE(thisapp::writeOptions(settings, options));
    options.integrateToShellContextMenu = false;
    EXPECT_TRUE(thisapp::writeOptions(settings, options));
}

/// Stores each value under every key of one type.
template <typename T>
void expectDefaultsFor(const std::vector<QVariant>& values)
{
    for (const QVariant& value : values) {
        CAppSettings settings;
#define SETTING(Type, Key, member, fallback)                                                                 \
    if (std::is_same_v<Type, T>)                                                                             \
        settings.setValue(keys::Key.name, value);
#include "common/settings/SettingsKeys.def"
        EXPECT_EQ(thisapp::readStoredOptions(settings), SAppOptions()) << value.toString().toStdString();
    }
}

TEST_F(Settings, WrongTypesReadAsTheDefaults)
{
    const QStringList list{"a", "b"};
    expectDefaultsFor<bool>({"banana", "", 2, "-1", QVariant(), list, QByteArray("\x80\x81")});
    expectDefaultsFor<std::uint32_t>({"true", "1.5", "-1", "99999999999", "", true, QVariant(), list});
    expectDefaultsFor<QString>({list, QVariant(), QVariantMap{{"a", 1}}});
}

TEST_F(Settings, YesAndNoHaveSeveralForms)
{
    for (const QVariant& yes : {QVariant("TRUE"), QVariant("1"), QVariant(1), QVariant(true)}) {
        set("UseSalt", yes);
        EXPECT_TRUE(read().useSalt) << yes.typeName();
    }
    for (const QVariant& no : {QVariant("False"), QVariant("0"), QVariant(0), QVariant(false)}) {
        set("ShowConfirmDialog", no);
        EXPECT_FALSE(read().showConfirmDialog) << no.typeName();
    }
}

/// Such a value, read, asks for more memory than there is.
TEST_F(Settings, SerialisedValuesAreTakenOutOfTheFile)
{
    const QByteArray list = R"(Variant(\0\0\0\xb\x7f\xff\xff\xff))";
    const std::pair<QByteArray, int> rows[] = {
        {"UseSalt=@" + list, 1},
        {"UseSalt=x, \"@" + list + "\"", 1},
        {"UseSalt=\\x10040" + list, 1},
        {"UseSalt=\\100Var\\\r\n" + list.mid(3), 1},
        {"EncFileNameSuffix=@DateTime(\\0\\0\\0\\x10)\nUseSalt=@" + list, 2},
        {"EncFileNameSuffix=@@x)", 0},
    };
    for (const auto& [lines, count] : rows) {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(file()).path()));
        QFile stored(file());
        ASSERT_TRUE(stored.open(QIODevice::WriteOnly));
        stored.write("[General]\nLogLevel=5\n" + lines + "\nRewriteOutputFile=true\n");
        stored.close();
        EXPECT_EQ(CAppSettings().removedLines(), count);
        SAppOptions expected;
        expected.logLevel = 5;
        expected.rewriteOutputFile = true;
        expected.encFileNameSuffix = count == 0 ? "@x)" : "";
        EXPECT_EQ(read(), expected) << lines.toStdString();
    }
}

TEST_F(Settings, TextsThatCannotBeUsedReadAsTheDefaults)
{
    const QString home = QDir::homePath();
    const struct
    {
        const char* key;
        QString stored;
        QString used;
    } rows[] = {
        {"EncFileNamePrefix", "a/b", ""},           {"EncFileNameExt", "\\", "enc"},
        {"DecFileNameSuffix", "a\nb", ""},          {"DecFileNamePrefix", "\u00E9 ~", "\u00E9 ~"},
        {"OutputDirPath", "relative", ""},          {"OutputDirPath", "~", home},
        {"OutputDirPath", "~/x y", home + "/x y"},  {"OutputDirPath", "~other/x", ""},
        {"OutputDirPath", "file:///a%20b", "/a b"}, {"OutputDirPath", "file://localhost/a", "/a"},
        {"OutputDirPath", "file://else/a", ""},     {"OutputDirPath", "sftp://h/a", ""},
        {"OutputDirPath", ":/icons", ""},           {"OutputDirPath", "/a", "/a"},
    };
    for (const auto& row : rows) {
        CAppSettings settings;
        settings.clear();
        settings.setValue(row.key, row.stored);
        QString used;
        for (const auto& [name, value] : thisapp::writtenValues(read()))
            if (name == QLatin1String(row.key))
                used = value.toString();
        EXPECT_EQ(used, row.used) << row.stored.toStdString();
        EXPECT_EQ(thisapp::unusedValues(settings, read()).size(), row.used == row.stored ? 0U : 1U);
    }
}

TEST_F(Settings, SaveTellsOfFailure)
{
    CAppSettings settings;
    settings.setValue("UseSalt", true);
    EXPECT_TRUE(settings.save());
    qputenv("XDG_CONFIG_HOME", (file() + "/below a file").toLocal8Bit());
    CAppSettings nowhere;
    nowhere.setValue("UseSalt", true);
    EXPECT_FALSE(nowhere.save());
}

TEST_F(Settings, IdsOutOfRange)
{
    for (const QVariant& id : {QVariant(0), QVariant(1034), QVariant(-1), QVariant("x")}) {
        set("LocaleId", id);
        EXPECT_EQ(thisapp::readLocaleId(CAppSettings()), 1033U);
    }
    for (const int level : {-1, 7, 100}) {
        set("LogLevel", level);
        EXPECT_EQ(read().logLevel, 0U);
    }
    set("LogLevel", 6);
    EXPECT_EQ(read().logLevel, 6U);
}

TEST_F(Settings, DefaultAlgorithm)
{
    const auto stored = [] { return thisapp::readDefaultAlgorithm(CAppSettings(), KnownAlgorithm); };
    EXPECT_EQ(stored(), (AlgSelection{1, 252}));
    set("DefaultCryptoAlgorithm", 3);
    for (const std::uint32_t library : {1U, 10U, 20U, 100U, 200U, 300U}) {
        set("DefaultCryptoLibrary", library);
        EXPECT_EQ(stored(), (AlgSelection{library, 3}));
    }
    set("DefaultCryptoLibrary", 2);
    EXPECT_FALSE(stored());
    EXPECT_EQ(read().defaultAlgorithm(), thisapp::DefaultAlgSelection);

    set("DefaultCryptoLibrary", 1);
    set("DefaultCryptoAlgorithm", 8);
    EXPECT_FALSE(stored());

    set("DefaultCryptoAlgorithm", 3);
    for (const QVariant& off : {QVariant(false), QVariant("banana")}) {
        set("UseDefaultAlgorithmAtStarting", off);
        EXPECT_FALSE(stored());
    }
}

} // namespace
