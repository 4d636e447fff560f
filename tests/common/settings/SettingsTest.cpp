#include "common/naming/NamingSettings.h"
#include "common/settings/CAppSettings.h"
#include "common/settings/OptionsStore.h"
#include "common/settings/Product.h"
#include "common/settings/SettingsKeys.h"
#include "support/ChangedOptions.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

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

    /// The key, the stored value and the one in use of each that is told.
    static QString unused(const SAppOptions& used)
    {
        QString told;
        for (const thisapp::UnusedValue& value : thisapp::unusedValues(CAppSettings(), used))
            told += value.name + ' ' + value.stored + '>' + value.used + ' ';
        return told;
    }

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
    for (const SAppOptions& options : test::eachChanged()) {
        {
            CAppSettings settings;
            const bool integration =
                read().integrateToShellContextMenu != options.integrateToShellContextMenu ||
                read().addToSendMenu != options.addToSendMenu;
            EXPECT_EQ(thisapp::writeOptions(settings, options), integration);
            thisapp::writeDefaultAlgorithm(settings, options.defaultAlgorithm());
            thisapp::writeLocaleId(settings, options.localeId);
        }
        EXPECT_EQ(read(), options);

        const thisapp::NamingSettings naming = thisapp::readNamingSettings(CAppSettings());
        EXPECT_EQ(naming.encryption.suffix, options.encFileNameSuffix);
        SAppOptions other = options;
        thisapp::NamingSettings().store(other);
        naming.store(other);
        EXPECT_EQ(other, options);
    }
    CAppSettings settings;
    EXPECT_EQ(settings.value("LocaleId"), 1031);
    EXPECT_EQ(settings.value("DefaultCryptoLibrary"), 1);
    EXPECT_EQ(settings.value("DefaultCryptoAlgorithm"), 3);
}

TEST_F(Settings, DefaultsInTheOrderOfWriting)
{
    std::string values;
    for (const auto& [name, value] : thisapp::writtenValues(read())) {
        values += std::string(name.data()) + '=' + value.toString().toStdString() + ' ';
        EXPECT_NE(value.type(), QVariant::UInt) << "the registry tells them apart";
    }
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

TEST_F(Settings, TruthValuesAreWordsOrNumbers)
{
    for (const auto& [stored, meaning] :
         {std::pair(QVariant("TRUE"), true), {"False", false}, {1, true}, {0, false}}) {
        set("UseSalt", stored);
        set("ShowConfirmDialog", stored);
        EXPECT_EQ(read().useSalt, meaning) << stored.toString().toStdString();
        EXPECT_EQ(read().showConfirmDialog, meaning) << stored.toString().toStdString();
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
        {"UseSalt=@\\qVariant" + list.mid(7), 1},
        {"UseSalt=@\\xVariant" + list.mid(7), 1},
        {"UseSalt=@\\\n\r" + list, 1},
        {"EncFileNameSuffix=@DateTime(\\0\\0\\0\\x10)\nUseSalt=@" + list, 2},
        {"EncFileNameSuffix=@@x)", 0},
        {"EncFileNameSuffix=@@Variant(x)", 0},
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
        expected.encFileNameSuffix = count > 0 ? "" : lines.endsWith("@@x)") ? "@x)" : "@Variant(x)";
        EXPECT_EQ(read(), expected) << lines.toStdString();
    }

    set("UseSalt", QVariant(QVariantList{1}));
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit none{0, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN); // writing fails
    ::setrlimit(RLIMIT_FSIZE, &none);
    EXPECT_EQ(CAppSettings().removedLines(), -1);
    EXPECT_EQ(CAppSettings().allKeys(), QStringList()) << "nothing of it is read";
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
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
        {"EncFileNamePrefix", "a/b", ""},
        {"EncFileNameExt", "\\", "enc"},
        {"EncFileNameSuffix", "/", ""},
        {"DecFileNameExt", "a\x1F", "dec"},
        {"DecFileNameSuffix", "a\nb", ""},
        {"DecFileNamePrefix", "a\\", ""},
        {"DecFileNamePrefix", "\u00E9 ~", "\u00E9 ~"},
        {"OutputDirPath", "FILE:///a", "/a"},
        {"OutputDirPath", "relative", ""},
        {"OutputDirPath", "~", home},
        {"OutputDirPath", "~/x y", home + "/x y"},
        {"OutputDirPath", "~other/x", ""},
        {"OutputDirPath", "file:///a%20b", "/a b"},
        {"OutputDirPath", "file://localhost/a", "/a"},
        {"OutputDirPath", "file://else/a", ""},
        {"OutputDirPath", "sftp://h/a", ""},
        {"OutputDirPath", ":/icons", ""},
        {"OutputDirPath", "/a", "/a"},
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
        EXPECT_EQ(unused(read()),
                  row.used == row.stored ? "" : row.key + (" " + row.stored) + '>' + row.used + ' ');
    }
}

TEST_F(Settings, TellsOfStoredValuesThatAreNotInUse)
{
    SAppOptions used = read();
    used.localeId = 1031;
    EXPECT_EQ(unused(used), "") << "nothing is stored";
    const std::tuple<const char*, const char*, const char*> rows[] = {
        {"LocaleId", "1034", "LocaleId 1034>1033 "},
        {"LogLevel", "9", "LogLevel 9>0 "},
        {"UseSalt", "maybe", "UseSalt maybe>false "},
        {"DefaultCryptoLibrary", "2", "DefaultCryptoLibrary 2>1 "},
        {"DefaultCryptoAlgorithm", "8", "DefaultCryptoAlgorithm 8>252 "},
        {"UseSalt", "true", ""},
    };
    for (const auto& [key, stored, told] : rows) {
        CAppSettings().clear();
        set(key, stored);
        EXPECT_EQ(unused(read()), told);
    }
    set("DefaultCryptoLibrary", 2);
    set("UseDefaultAlgorithmAtStarting", false);
    EXPECT_EQ(unused(read()), "") << "nobody asks for it";
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
