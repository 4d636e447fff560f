#include "app/i18n/Translators.h"
#include "app/i18n/MyTranslator.h"
#include "app/i18n/SystemLanguage.h"
#include "app/i18n/TranslationFolders.h"
#include "lib/i18n/TranslationManager.h"
#include "support/DataRows.h"
#include "support/Environment.h"
#include "support/TempFolder.h"

#include <QtWidgets>
#include <gtest/gtest.h>

namespace {

constexpr std::uint32_t Arabic = 1025, Chinese = 2052, German = 1031, English = 1033, Portuguese = 1046,
                        Swiss = 2055;

std::string translated(const char* context, const char* source, int n = -1)
{
    return QCoreApplication::translate(context, source, nullptr, n).toStdString();
}

TEST(Translators, BringTheWholeApplicationIntoALanguage)
{
    const test::TempFolder folder;
    folder.write("t.langs.xml", "<locales><locale language='ar' country='SA' file='t.ts'/>"
                                "<locale language='de' country='DE' file='t.ts'/></locales>");
    folder.write("t.ts", "<TS><context><name>C</name><message numerus='yes'><source>%n file(s)</source>"
                         "<translation><numerusform>%n Datei</numerusform><numerusform>%n Dateien"
                         "</numerusform></translation></message></context></TS>");
    tessaly::i18n::TranslationManager translations(folder.wide(), "T");
    ASSERT_TRUE(translations.load().ok());
    thisapp::Translators translators(translations);
    const auto use = [&](std::uint32_t lcid) {
        ASSERT_TRUE(translations.use(lcid).ok());
        translators.install();
    };
    use(German);
    EXPECT_EQ(translated("C", "%n file(s)", 1), "1 Datei");
    EXPECT_EQ(translated("C", "%n file(s)", 2), "2 Dateien");
    EXPECT_EQ(translated("C", "%n hour(s)", 2), "2 hour(s)");
    EXPECT_EQ(QLocale().toString(1234.5, 'f', 1), "1234,5");
    EXPECT_EQ(QLocale().formattedDataSize(1536), "1,50 KiB");
    EXPECT_EQ(translated("QPlatformTheme", "&Yes"), "&Ja");
    use(Arabic);
    EXPECT_EQ(QApplication::layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(translated("C", "%Ln hour(s)", 3), "\u0663 hour(s)");
    use(English);
    EXPECT_EQ(QApplication::layoutDirection(), Qt::LeftToRight);
    EXPECT_EQ(translated("QPlatformTheme", "&Yes"), "&Yes");
    EXPECT_EQ(translated("C", "%n file(s)", 1), "1 file(s)");
    EXPECT_EQ(QLocale().formattedDataSize(1536), "1.50 KiB");
}

TEST(Translators, GiveTheSourceTextOfWhatHasNoTranslation)
{
    tessaly::i18n::TranslationManager manager(QString(TEST_DATA_DIR "/i18n").toStdWString(), "example");
    ASSERT_TRUE(manager.load().ok());
    const thisapp::MyTranslator translator(manager.bundle());
    EXPECT_EQ(translator.translate("CErrMsg", "File not found"), "File not found");
    ASSERT_TRUE(manager.use(German).ok());
    EXPECT_EQ(translator.translate("CErrMsg", "File not found", "other", 3), "Datei nicht gefunden & weg");
    EXPECT_EQ(translator.translate("CErrMsg", "\xE4"), QString(QChar(0xe4)));
}

/// A complaint about a file that holds texts means that some of them are missing or in no context; but a
/// class nested in another one may well be beyond lupdate.
TEST(Translators, GetEveryTextOfTheSources)
{
    if (!QFileInfo::exists(LUPDATE))
        GTEST_SKIP() << "no lupdate here";
    const test::TempFolder folder;
    QProcess lupdate;
    lupdate.start(LUPDATE, {"-silent", "-locations", "none", SOURCE_DIR, "-ts", (folder / "all.ts").c_str()});
    ASSERT_TRUE(lupdate.waitForFinished(120'000));
    ASSERT_EQ(lupdate.exitCode(), 0);
    const QString complaints = QString::fromUtf8(lupdate.readAllStandardError());
    EXPECT_FALSE(complaints.contains(QRegularExpression("/src/(app|ui)/[^\n]*: (?!Ignoring definition)")))
        << complaints.toStdString();
}

TEST(SystemLanguage, IsTheFirstThatWeHave)
{
    std::vector<tessaly::i18n::Language> offered;
    for (const std::uint32_t lcid : {English, Swiss, German, Portuguese, Chinese, Arabic})
        offered.push_back({lcid, ""});
    for (const auto& row : test::dataRows("user_languages.txt")) {
        const QStringList wanted = QString::fromStdString(row[0]).split(' ', Qt::SkipEmptyParts);
        EXPECT_EQ(thisapp::firstOffered(wanted, offered), std::stoul(row[1])) << row[0];
    }
}

TEST(TranslationFolders, AreTheUsersAndThatOfTheProgram)
{
    const test::TempFolder root;
    const test::Environment data("XDG_DATA_HOME", (root / "data").c_str());
    std::filesystem::create_directory(root / "bin");
    const QString bin = QString::fromStdString(root / "bin");
    const std::wstring mine = root.wide("data/quillet/translations");
    EXPECT_EQ(thisapp::translationFolders(bin), (std::vector{mine, root.wide("bin/translations")}));
    std::filesystem::create_directories(root / "share/quillet/translations");
    EXPECT_EQ(thisapp::translationFolders(bin), (std::vector{mine, root.wide("share/quillet/translations")}));
}

} // namespace
