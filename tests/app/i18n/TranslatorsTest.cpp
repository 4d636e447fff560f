#include "app/i18n/Translators.h"

#include "app/i18n/SystemLanguage.h"
#include "app/i18n/TranslationFolders.h"
#include "lib/i18n/TranslationManager.h"
#include "support/Environment.h"
#include "support/TempFolder.h"

#include <QApplication>
#include <QLocale>
#include <gtest/gtest.h>

#include <filesystem>

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

TEST(SystemLanguage, IsTheFirstThatWeHave)
{
    const std::vector<tessaly::i18n::Language> offered{{English, ""},    {Swiss, ""},   {German, ""},
                                                       {Portuguese, ""}, {Chinese, ""}, {Arabic, ""}};
    const std::pair<QStringList, std::uint32_t> rows[] = {
        {{"de-DE"}, German},
        {{"de-AT"}, Swiss},
        {{"de"}, German},
        {{"sv-SE", "pt-PT", "de-DE"}, Portuguese},
        {{"zh-CN"}, Chinese},
        {{"zh-Hans-SG"}, Chinese},
        {{"zh-TW"}, English},
        {{"ar-EG"}, Arabic},
        {{"en-GB", "de-DE"}, English},
        {{"C"}, English},
        {{"", "xx-YY"}, English},
        {{}, English},
    };
    for (const auto& [wanted, lcid] : rows)
        EXPECT_EQ(thisapp::firstOffered(wanted, offered), lcid) << wanted.join(',').toStdString();
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
