#include "common/naming/OutputNaming.h"
#include "support/DataRows.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

namespace {

using thisapp::NamingSettings;
using thisapp::outputPath;

TEST(OutputNaming, MakesTheNamesThatTheSettingsAskFor)
{
    const QTemporaryDir folder;
    QSettings stored(folder.filePath("settings"), QSettings::IniFormat);
    for (const test::Row& row : test::dataRows("names.txt")) {
        const auto path = [](const std::string& name) { return "/in/" + QString::fromStdString(name); };
        if (row.at(0).find('=') == std::string::npos)
            EXPECT_EQ(outputPath(path(row[0]), thisapp::readNamingSettings(stored), QDate(2024, 3, 5)),
                      row.at(1) == "none" ? "" : path(row[1]));
        else
            for (const std::string& setting : row) {
                const QStringList parts = QString::fromStdString(setting).split('=');
                stored.setValue(parts[0], parts[1]);
            }
    }
    NamingSettings settings;
    EXPECT_EQ(outputFileName("a.enc", thisapp::NamingDirection::Encryption, settings, QDate()), "a.enc");
    settings.encryption.addDate = true;
    EXPECT_EQ(outputPath("/in/a", settings, QDate()), "/in/a.enc");
    EXPECT_EQ(outputPath("/in/a", settings, QDate(987, 12, 31)), "/in/a_0987_12_31.enc");
    EXPECT_EQ(outputPath("", settings, {}), "");
}

TEST(OutputNaming, DefaultFolder)
{
    const QTemporaryDir temporary;
    const QDir root(temporary.path());
    NamingSettings settings;
    const auto outputFor = [&](const char* folder) {
        settings.outputDirPath = root.filePath(folder);
        return outputPath("/in/a", settings, {});
    };
    EXPECT_EQ(outputFor("deep/er"), "/in/a.enc");
    EXPECT_FALSE(root.exists("deep")) << "switched off, the folder is left alone";

    settings.useDefaultOutputDir = true;
    EXPECT_EQ(outputFor("deep/er"), root.filePath("deep/er/a.enc"));
    EXPECT_TRUE(root.exists("deep/er"));
    EXPECT_EQ(outputFor("deep/er"), root.filePath("deep/er/a.enc")) << "it exists by now";

    ASSERT_TRUE(QFile(root.filePath("file")).open(QIODevice::WriteOnly));
    EXPECT_EQ(outputFor("file/below"), "/in/a.enc");
    EXPECT_EQ(outputFor("file"), "/in/a.enc");

    settings.outputDirPath = "";
    EXPECT_EQ(outputPath("a", settings, {}), QDir::current().filePath("a.enc"));
}

} // namespace
