#include "common/naming/OutputNaming.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

namespace {

using thisapp::NamingSettings;

void expectNames(const NamingSettings& settings, std::initializer_list<std::pair<QString, QString>> names,
                 const QDate& today = QDate(2024, 3, 5))
{
    for (const auto& [input, output] : names)
        EXPECT_EQ(thisapp::outputPath("/in/" + input, settings, today).toStdString(),
                  "/in/" + output.toStdString());
}

TEST(OutputNaming, Extensions)
{
    NamingSettings settings;
    expectNames(settings, {{"report.txt", "report.txt.enc"},
                           {"report.txt.enc", "report.txt.dec"},
                           {"report.txt.dec", "report.txt.enc"},
                           {"FILE.ENC", "FILE.dec"},
                           {"FILE.DEC", "FILE.enc"},
                           {"README", "README.enc"},
                           {"archive.tar.gz", "archive.tar.gz.enc"},
                           {"a.enc.txt", "a.enc.txt.enc"},
                           {".bashrc", ".bashrc.enc"},
                           {".enc", ".dec"},
                           {"report.", "report.enc"},
                           {":report", ":report.enc"},
                           {"#1 50% ü 日本.txt", "#1 50% ü 日本.txt.enc"}});
    settings.encryption.addExt = settings.decryption.addExt = false;
    expectNames(settings, {{"report.txt", "report.txt"},
                           {"report.txt.enc", "report.txt.dec"},
                           {"report.txt.dec", "report.txt.enc"}});
    settings = {};
    settings.decryption.ext = "";
    expectNames(settings, {{"report.txt.enc", "report.txt"}});
    settings.encryption.ext = "";
    expectNames(settings, {{"README", "README"}});
    settings.encryption.ext = ".q";
    expectNames(settings, {{"report.txt", "report.txt.q"}, {"report.", "report.q"}});
}

TEST(OutputNaming, PrefixSuffixAndDate)
{
    NamingSettings settings;
    for (thisapp::NameParts* parts : {&settings.encryption, &settings.decryption}) {
        parts->addPrefix = parts->addSuffix = parts->addDate = true;
        parts->prefix = "x-";
        parts->suffix = "-y";
    }
    settings.decryption.addPrefix = settings.encryption.addPrefix = false;
    settings.encryption.addSuffix = false;
    expectNames(settings, {{"a", "a_2024_03_05.enc"}, {"a.enc", "a_2024_03_05-y.dec"}});
    settings.decryption.addPrefix = settings.encryption.addPrefix = true;
    settings.encryption.addSuffix = true;
    const QString longest(124, 'n');
    expectNames(settings, {{"report.txt", "x-report_2024_03_05-y.txt.enc"},
                           {"report.txt.enc", "x-report.txt_2024_03_05-y.dec"},
                           {"report.txt.dec", "x-report.txt_2024_03_05-y.enc"},
                           {"README", "x-README_2024_03_05-y.enc"},
                           {longest + ".txt", "x-" + longest + "_2024_03_05-y.txt.enc"},
                           {longest + "n.txt", longest + "n.txt.enc"}});
    expectNames(settings, {{"a", "x-a-y.enc"}}, QDate());
    expectNames(settings, {{"a", "x-a_0987_12_31-y.enc"}}, QDate(987, 12, 31));
    for (thisapp::NameParts* parts : {&settings.encryption, &settings.decryption})
        parts->addPrefix = parts->addSuffix = parts->addDate = false;
    expectNames(settings, {{"a", "a.enc"}, {"a.enc", "a.dec"}});
    EXPECT_EQ(thisapp::outputFileName("a.enc", thisapp::NamingDirection::Encryption, settings, QDate()),
              "a.enc");
    settings.decryption.ext = "longer";
    expectNames(settings, {{longest + ".enc", longest + ".longer"}});
}

TEST(OutputNaming, NothingToPropose)
{
    NamingSettings settings;
    for (const char* input : {"", "/in/"})
        EXPECT_EQ(thisapp::outputPath(input, settings, {}), "");
    settings.autogenerate = false;
    EXPECT_EQ(thisapp::outputPath("/in/report.txt", settings, {}), "");
}

TEST(OutputNaming, DefaultFolder)
{
    const QTemporaryDir temporary;
    const QDir root(temporary.path());
    NamingSettings settings;
    const auto outputFor = [&](const char* folder) {
        settings.outputDirPath = root.filePath(folder);
        return thisapp::outputPath("/in/a", settings, {});
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
    EXPECT_EQ(thisapp::outputPath("a", settings, {}), QDir::current().filePath("a.enc"));
}

} // namespace
