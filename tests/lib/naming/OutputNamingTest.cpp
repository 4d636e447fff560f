#include "lib/naming/OutputNaming.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include <functional>

namespace {

using thisapp::NamingSettings;

const QDate Today(2024, 3, 5);

void asIs(NamingSettings&)
{
}
void decorated(NamingSettings& settings)
{
    for (thisapp::NameParts* parts : {&settings.encryption, &settings.decryption}) {
        parts->addPrefix = parts->addSuffix = parts->addDate = true;
        parts->prefix = "x-";
        parts->suffix = "-y";
    }
}
void withoutExt(NamingSettings& settings)
{
    settings.encryption.addExt = settings.decryption.addExt = false;
}
std::function<void(NamingSettings&)> ext(const char* encryption, const char* decryption)
{
    return [=](NamingSettings& settings) {
        settings.encryption.ext = encryption;
        settings.decryption.ext = decryption;
    };
}

TEST(OutputNaming, Table)
{
    const QString stem124(124, 'n');
    const std::tuple<QString, std::function<void(NamingSettings&)>, QString> rows[] = {
        {"report.txt", asIs, "report.txt.enc"},
        {"report.txt.enc", asIs, "report.txt.dec"},
        {"report.txt.dec", asIs, "report.txt.enc"},
        {"FILE.ENC", asIs, "FILE.dec"},
        {"FILE.DEC", asIs, "FILE.enc"},
        {"README", asIs, "README.enc"},
        {"archive.tar.gz", asIs, "archive.tar.gz.enc"},
        {"a.enc.txt", asIs, "a.enc.txt.enc"},
        {".bashrc", asIs, ".bashrc.enc"},
        {".enc", asIs, ".dec"},
        {"report.", asIs, "report.enc"},
        {"#1 50% ü 日本.txt", asIs, "#1 50% ü 日本.txt.enc"},

        {"report.txt", decorated, "x-report_2024_03_05-y.txt.enc"},
        {"report.txt.enc", decorated, "x-report.txt_2024_03_05-y.dec"},
        {"report.txt.dec", decorated, "x-report.txt_2024_03_05-y.enc"},
        {"README", decorated, "x-README_2024_03_05-y.enc"},
        {stem124 + ".txt", decorated, "x-" + stem124 + "_2024_03_05-y.txt.enc"},
        {stem124 + "n.txt", decorated, stem124 + "n.txt.enc"},

        {"report.txt", withoutExt, "report.txt"},
        {"report.txt.enc", withoutExt, "report.txt.dec"},
        {"report.txt.dec", withoutExt, "report.txt.enc"},

        {"README", ext("", ""), "README"},
        {"report.txt.enc", ext("enc", ""), "report.txt"},
        {"report.txt", ext(".q", "dec"), "report.txt.q"},
        {"MyFile.txt", ext("TXT", "dec"), "MyFile.dec"},
        {stem124 + ".enc", ext("enc", "decrypted"), stem124 + ".decrypted"},
    };
    for (const auto& [input, change, output] : rows) {
        NamingSettings settings;
        change(settings);
        EXPECT_EQ(thisapp::outputPath("/in/" + input, settings, Today).toStdString(),
                  "/in/" + output.toStdString());
    }
}

TEST(OutputNaming, DatePartsOfZeroAreLeftOut)
{
    NamingSettings settings;
    settings.encryption.addDate = true;
    EXPECT_EQ(thisapp::outputPath("/in/a.txt", settings, QDate()), "/in/a.txt.enc");
    EXPECT_EQ(thisapp::outputPath("/in/a.txt", settings, QDate(987, 12, 31)), "/in/a_0987_12_31.txt.enc");
}

TEST(OutputNaming, NothingToPropose)
{
    NamingSettings settings;
    EXPECT_EQ(thisapp::outputPath("", settings, Today), "");
    EXPECT_EQ(thisapp::outputPath("/in/", settings, Today), "");
    settings.autogenerate = false;
    EXPECT_EQ(thisapp::outputPath("/in/report.txt", settings, Today), "");
}

TEST(OutputNaming, DefaultFolder)
{
    const QTemporaryDir temporary;
    const QDir root(temporary.path());
    NamingSettings settings;
    const auto outputFor = [&](const char* folder) {
        settings.outputDirPath = root.filePath(folder);
        return thisapp::outputPath("/in/a", settings, Today);
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
    EXPECT_EQ(thisapp::outputPath("a", settings, Today), QDir::current().filePath("a.enc"));
}

} // namespace
