#include "lib/naming/OutputNaming.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include <functional>

namespace {

using thisapp::NamingSettings;

const QDate Today(2024, 3, 5);
const auto NoFolder = [](const QString&) { return false; };

using Change = std::function<void(NamingSettings&)>;
void asIs(NamingSettings&)
{
}

void decorate(thisapp::NameParts& parts)
{
    parts.addPrefix = parts.addSuffix = parts.addDate = true;
    parts.prefix = "x-";
    parts.suffix = "-y";
}
void decorateBoth(NamingSettings& settings)
{
    decorate(settings.encryption);
    decorate(settings.decryption);
}
void withoutExt(NamingSettings& settings)
{
    settings.encryption.addExt = settings.decryption.addExt = false;
}
void emptyExt(NamingSettings& settings)
{
    settings.encryption.ext = settings.decryption.ext = "";
}
void dottedExt(NamingSettings& settings)
{
    settings.encryption.ext = settings.decryption.ext = ".q";
}

struct Row
{
    QString input;
    Change change;
    QString output;
};

TEST(OutputNaming, Table)
{
    const Row rows[] = {
        {"report.txt", asIs, "report.txt.enc"},
        {"report.txt.enc", asIs, "report.txt.dec"},
        {"report.txt.dec", asIs, "report.txt.enc"},
        {"FILE.ENC", asIs, "FILE.dec"},
        {"FILE.DEC", asIs, "FILE.enc"},
        {"README", asIs, "README.enc"},
        {"enc", asIs, "enc.enc"},
        {"archive.tar.gz", asIs, "archive.tar.gz.enc"},
        {"a.enc.txt", asIs, "a.enc.txt.enc"},
        {".bashrc", asIs, ".bashrc.enc"},
        {".enc", asIs, ".dec"},
        {"report.", asIs, "report.enc"},
        {"#1 50% ü 日本.txt", asIs, "#1 50% ü 日本.txt.enc"},

        {"report.txt", decorateBoth, "x-report_2024_03_05-y.txt.enc"},
        {"report.txt.enc", decorateBoth, "x-report.txt_2024_03_05-y.dec"},
        {"report.txt.dec", decorateBoth, "x-report.txt_2024_03_05-y.enc"},
        {"README", decorateBoth, "x-README_2024_03_05-y.enc"},
        {".bashrc", decorateBoth, "x-_2024_03_05-y.bashrc.enc"},

        {"report.txt", withoutExt, "report.txt"},
        {"report.txt.enc", withoutExt, "report.txt.dec"},
        {"report.txt.dec", withoutExt, "report.txt.enc"},

        {"report.txt", emptyExt, "report.txt"},
        {"README", emptyExt, "README"},
        {"report.txt.enc", [](NamingSettings& s) { s.decryption.ext = ""; }, "report.txt"},
        {"report.txt", dottedExt, "report.txt.q"},
        {"README",
         [](NamingSettings& s) {
             s.encryption.suffix = ".";
             s.encryption.addSuffix = true;
         },
         "README.enc"},
        {"MyFile.txt", [](NamingSettings& s) { s.encryption.ext = "TXT"; }, "MyFile.dec"},
        {"same.x", [](NamingSettings& s) { s.encryption.ext = s.decryption.ext = "x"; }, "same.x"},
    };
    for (const Row& row : rows) {
        NamingSettings settings;
        row.change(settings);
        EXPECT_EQ(thisapp::outputPath("/in/" + row.input, settings, Today, NoFolder), "/in/" + row.output);
    }
}

TEST(OutputNaming, LongNamesAreNotDecorated)
{
    NamingSettings settings;
    decorateBoth(settings);
    const auto name = [&](int length) {
        const QString input = QString(length - 4, 'n') + ".txt";
        return thisapp::outputFileName(input, thisapp::namingDirection(input, settings), settings, Today);
    };
    EXPECT_EQ(name(128), "x-" + QString(124, 'n') + "_2024_03_05-y.txt.enc");
    EXPECT_EQ(name(129), QString(125, 'n') + ".txt.enc");
    // What counts is the name after its extension was replaced.
    settings.decryption.ext = "decrypted";
    EXPECT_EQ(thisapp::outputPath("/in/" + QString(124, 'n') + ".enc", settings, Today, NoFolder),
              "/in/" + QString(124, 'n') + ".decrypted");
}

TEST(OutputNaming, DatePartsOfZeroAreLeftOut)
{
    NamingSettings settings;
    settings.encryption.addDate = true;
    EXPECT_EQ(thisapp::outputPath("/in/a.txt", settings, QDate(), NoFolder), "/in/a.txt.enc");
    EXPECT_EQ(thisapp::outputPath("/in/a.txt", settings, QDate(987, 12, 31), NoFolder),
              "/in/a_0987_12_31.txt.enc");
}

TEST(OutputNaming, DirectionCanBeForced)
{
    const auto forced = [](const char* name) {
        return thisapp::outputFileName(name, thisapp::NamingDirection::Decryption, NamingSettings(), Today);
    };
    EXPECT_EQ(forced("MyFile.txt"), "MyFile.txt.dec");
    EXPECT_EQ(forced("MyFile.enc"), "MyFile.dec");
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
    settings.outputDirPath = root.filePath("deep/er");

    EXPECT_EQ(thisapp::outputPath("/in/a", settings, Today), "/in/a.enc");
    EXPECT_FALSE(root.exists("deep")) << "switched off, the folder is left alone";

    settings.useDefaultOutputDir = true;
    EXPECT_EQ(thisapp::outputPath("/in/a", settings, Today), root.filePath("deep/er/a.enc"));
    EXPECT_TRUE(root.exists("deep/er"));
    EXPECT_EQ(thisapp::outputPath("/in/a", settings, Today), root.filePath("deep/er/a.enc"));

    QFile file(root.filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    settings.outputDirPath = root.filePath("file/below");
    EXPECT_EQ(thisapp::outputPath("/in/a", settings, Today), "/in/a.enc");
    settings.outputDirPath = root.filePath("file");
    EXPECT_EQ(thisapp::outputPath("/in/a", settings, Today), "/in/a.enc");

    settings.outputDirPath = "";
    EXPECT_EQ(thisapp::outputPath("a", settings, Today), QDir::current().filePath("a.enc"));
}

} // namespace
