#include "common/naming/NamingSettings.h"
#include "common/settings/CAppSettings.h"
#include "common/settings/OptionsStore.h"
#include "common/settings/Product.h"
#include "support/ChangedOptions.h"
#include "support/Walk.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

namespace {

using thisapp::SAppOptions;

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

TEST_F(Settings, WrongTypesReadAsTheDefaults)
{
    for (const QVariant& value : {QVariant(QStringList{"a", "b"}), QVariant(QByteArray("\x80\x81")),
                                  QVariant(), QVariant(QVariantMap{{"a", 1}})})
        for (const char* key : {"UseSalt", "LogLevel", "EncFileNameExt"}) {
            CAppSettings().clear();
            set(key, value);
            EXPECT_EQ(read(), SAppOptions()) << key << ' ' << value.typeName();
        }
    set("LogLevel", "-1");
    EXPECT_EQ(thisapp::readStoredOptions(CAppSettings()).logLevel, 0U);
}

/// Such a value, read, asks for more memory than there is.
TEST_F(Settings, SerialisedValuesAreTakenOutOfTheFile)
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(file()).path()));
    const auto removedLines = [&](const std::string& lines) {
        QFile stored(file());
        EXPECT_TRUE(stored.open(QIODevice::WriteOnly));
        stored.write("[General]\nLogLevel=5\n" + QByteArray::fromStdString(lines) +
                     "\nRewriteOutputFile=true\n");
        stored.close();
        const int removed = CAppSettings().removedLines();
        SAppOptions expected;
        expected.logLevel = 5;
        expected.rewriteOutputFile = true;
        expected.encFileNameSuffix = read().encFileNameSuffix;
        EXPECT_EQ(read(), expected) << lines;
        return std::to_string(removed) + expected.encFileNameSuffix.toStdString();
    };
    test::walk("settings_lines.txt", {{"remove", removedLines}});

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

TEST_F(Settings, TheDefaultAlgorithmCanBeSwitchedOff)
{
    const auto stored = [] { return thisapp::readDefaultAlgorithm(CAppSettings(), KnownAlgorithm); };
    set("DefaultCryptoAlgorithm", 3);
    EXPECT_EQ(stored(), (thisapp::AlgSelection{1, 3}));
    for (const QVariant& off : {QVariant("banana"), QVariant(false)}) {
        set("UseDefaultAlgorithmAtStarting", off);
        EXPECT_FALSE(stored());
    }
    EXPECT_EQ(unused(read()), "") << "nobody asks for it";
}

} // namespace
