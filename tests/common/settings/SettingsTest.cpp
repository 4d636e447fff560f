#include "common/naming/NamingSettings.h"
#include "common/settings/CAppSettings.h"
#include "common/settings/OptionsStore.h"
#include "common/settings/Product.h"
#include "common/settings/SettingsKeys.h"
#include "support/ChangedOptions.h"
#include "support/DataRows.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
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
    static void set(const QString& key, const QVariant& value) { CAppSettings().setValue(key, value); }
    static bool write(const SAppOptions& options)
    {
        CAppSettings settings;
        thisapp::writeDefaultAlgorithm(settings, options.defaultAlgorithm());
        thisapp::writeLocaleId(settings, options.localeId);
        return thisapp::writeOptions(settings, options);
    }

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
    int ofNaming = 0;
    for (const SAppOptions& options : test::eachChanged()) {
        const bool integration = read().integrateToShellContextMenu != options.integrateToShellContextMenu ||
                                 read().addToSendMenu != options.addToSendMenu;
        EXPECT_EQ(write(options), integration);
        EXPECT_EQ(read(), options);

        const thisapp::NamingSettings naming = thisapp::readNamingSettings(CAppSettings());
        EXPECT_EQ(naming.encryption.suffix, options.encFileNameSuffix);
        SAppOptions other = options;
        thisapp::NamingSettings().store(other);
        naming.store(other);
        EXPECT_EQ(other, options);
        SAppOptions named;
        naming.store(named);
        ofNaming += named == options && named != SAppOptions();
    }
    EXPECT_EQ(ofNaming, 17);
    CAppSettings settings;
    EXPECT_EQ(settings.value("LocaleId"), 1031);
    EXPECT_EQ(settings.value("DefaultCryptoLibrary"), 1);
    EXPECT_EQ(settings.value("DefaultCryptoAlgorithm"), 3);
}

TEST_F(Settings, DefaultsAreWrittenInOrderButForLocaleAndAlgorithm)
{
    std::vector<test::Row> values;
    for (const auto& [name, value] : thisapp::writtenValues(read())) {
        values.push_back({name.data(), value.toString().toStdString()});
        EXPECT_NE(value.type(), QVariant::UInt) << "the registry tells them apart";
    }
    EXPECT_EQ(values, test::dataRows("settings.txt"));
    EXPECT_FALSE(QFile::exists(file())) << "reading writes nothing";
    CAppSettings settings;
    EXPECT_FALSE(thisapp::writeOptions(settings, read())) << "no change of the desktop integration";
    EXPECT_EQ(settings.allKeys().size(), std::ssize(values));
}

/// Stores each value under every key of one type.
template <typename T>
void expectDefaultsFor(const QVariantList& values)
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

TEST_F(Settings, WhatCannotBeUsedReadsAsTheDefaultAndIsTold)
{
    for (const test::Row& row : test::dataRows("settings_values.txt")) {
        const QString key = QString::fromStdString(row.at(0));
        const QString stored = QString::fromStdString(row.at(1)).replace("^J", "\n").replace("^_", "\x1F");
        const QString used =
            QString::fromStdString(row.at(2)).replace(QRegularExpression("^~"), QDir::homePath());
        CAppSettings().clear();
        set(key, stored);
        EXPECT_EQ(unused(read()), row.at(3) == "meant" ? "" : key + ' ' + stored + '>' + used + ' ');
        write(read());
        EXPECT_EQ(CAppSettings().value(key).toString(), used) << testing::PrintToString(row);
    }
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
    set("DefaultCryptoLibrary", 1);
    for (const QVariant& off : {QVariant(false), QVariant("banana")}) {
        set("UseDefaultAlgorithmAtStarting", off);
        EXPECT_FALSE(stored());
    }
}

} // namespace
