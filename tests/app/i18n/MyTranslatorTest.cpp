#include "app/i18n/MyTranslator.h"

#include "common/errors/CErrMsg.h"
#include "lib/i18n/TranslationManager.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

namespace {

using tessaly::i18n::TranslationManager;

constexpr std::uint32_t German = 1031;

TEST(MyTranslator, TranslatesOrGivesTheSourceText)
{
    TranslationManager manager(QString(TEST_DATA_DIR "/i18n").toStdWString(), "example");
    ASSERT_TRUE(manager.load().ok());
    const thisapp::MyTranslator translator(manager.bundle());
    EXPECT_EQ(translator.translate("CErrMsg", "File not found"), "File not found");
    ASSERT_TRUE(manager.use(German).ok());
    EXPECT_EQ(translator.translate("CErrMsg", "File not found", "other", 3), "Datei nicht gefunden & weg");
    EXPECT_EQ(translator.translate("CErrMsg", "\xE4"), QString(QChar(0xe4)));
}

/// Fills in every translation as a translator would: "[source]" for each.
int translateAll(const test::TempFolder& folder, const char* name)
{
    static const QRegularExpression Message(
        "<source>((?:[^<]|<byte[^>]*>)*)</source>(.*?)<translation[^>]*>.*?</translation>",
        QRegularExpression::DotMatchesEverythingOption);
    auto text = QString::fromStdString(test::readFile(folder / name));
    const int count = text.count(Message);
    text.replace(Message, "<source>\\1</source>\\2<translation>[\\1]</translation>");
    folder.write(name, text.toStdString());
    return count;
}

TEST(MyTranslator, TakesAFileThatLupdateMadeFromTheSources)
{
    if (!QFileInfo::exists(LUPDATE))
        GTEST_SKIP() << "no lupdate here";
    int argc = 1;
    char name[] = "test";
    char* argv[] = {name, nullptr};
    const QCoreApplication application(argc, argv);
    const test::TempFolder folder;
    QProcess lupdate;
    lupdate.start(LUPDATE, {"-silent", "-locations", "none", SOURCE_DIR, "-ts", (folder / "all.ts").c_str()});
    ASSERT_TRUE(lupdate.waitForFinished(120000));
    ASSERT_EQ(lupdate.exitCode(), 0);
    // A complaint about a file that holds texts means that some of them are missing or in no context;
    // but a class nested in another one may well be beyond lupdate.
    static const QRegularExpression Loss("/src/(app|ui)/[^\n]*: (?!Ignoring definition)");
    const QString complaints = QString::fromUtf8(lupdate.readAllStandardError());
    EXPECT_FALSE(complaints.contains(Loss)) << complaints.toStdString();
    ASSERT_GE(translateAll(folder, "all.ts"), 15);

    folder.write("all.langs.xml", "<locales><locale language='de' country='DE' file='all.ts'"
                                  " filetype='translations'/></locales>");
    TranslationManager manager(folder.wide(), "all");
    ASSERT_TRUE(manager.load().ok());
    ASSERT_TRUE(manager.use(German).ok());
    thisapp::MyTranslator translator(manager.bundle());
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    std::string text;
    ASSERT_TRUE(thisapp::CErrMsg().lookup(5, 4003, text));
    EXPECT_EQ(text, "[Corrupted data]");
}

} // namespace
