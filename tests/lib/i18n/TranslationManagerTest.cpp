#include "lib/i18n/TranslationManager.h"
#include "lib/err/ErrorCodes.h"
#include "lib/i18n/locale/LocaleCatalogue.h"
#include "lib/platform/Path.h"
#include "support/AppVariable.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace {

using namespace tessaly;
using namespace tessaly::i18n;

const std::wstring DataFolder = platform::widePath(TEST_DATA_DIR "/i18n");
constexpr std::uint32_t German = 1031, French = 1036, SerbianLatin = 2074, SerbianCyrillic = 3098;

std::string text(const TranslationManager& manager, std::string_view context, std::string_view source)
{
    return std::string(manager.bundle().lookup(context, source).text);
}

TEST(TranslationManager, SwitchesBetweenLanguages)
{
    const test::AppVariable names;
    TranslationManager manager(DataFolder, "EXAMPLE");
    manager.setVariables(&names);
    ASSERT_TRUE(manager.load().ok());
    EXPECT_EQ(text(manager, "CErrMsg", "File not found"), "");

    ASSERT_TRUE(manager.use(German).ok());
    EXPECT_EQ(text(manager, "CErrMsg", "File not found"), "Datei nicht gefunden & weg");
    EXPECT_EQ(text(manager, "CMainWindow", "File not found"), "Weg");
    EXPECT_EQ(text(manager, "CMainWindow", "%n file(s)"), "%n Dateien");
    EXPECT_EQ(text(manager, "CMainWindow", "Bell\a"), "Glocke\a von ${app}!");
    for (const char* untranslated : {"Open file failed", "Object busy", "file not found", ""})
        EXPECT_EQ(text(manager, "CErrMsg", untranslated), "") << untranslated;

    const auto kept = manager.bundle().lookup("CMainWindow", "File not found");
    ASSERT_TRUE(manager.use(French).ok());
    EXPECT_EQ(kept.text, "Weg");
    EXPECT_EQ(text(manager, "CErrMsg", "File not found"), "Fichier introuvable");
    EXPECT_EQ(text(manager, "CMainWindow", "Algorithm:"), "Algorithme : de ${app}!");
    EXPECT_EQ(text(manager, "CMainWindow", "a|b"), "barre");

    // What cannot be had leaves everything as it was.
    EXPECT_EQ(manager.use(7).code, err::library(err::UnknownLocale));
    EXPECT_EQ(manager.use(2057).code, err::library(err::NoTranslation));
    EXPECT_EQ(manager.use(SerbianLatin).code, err::system(ENOENT));
    EXPECT_EQ(manager.locale().lcid, French);
    EXPECT_EQ(text(manager, "CErrMsg", "File not found"), "Fichier introuvable");

    ASSERT_TRUE(manager.use(EnglishLcid).ok());
    EXPECT_EQ(text(manager, "CErrMsg", "File not found"), "");
}

TEST(TranslationManager, OffersEnglishAndTheEnabledEntries)
{
    TranslationManager manager(DataFolder, "Example");
    ASSERT_TRUE(manager.load().ok());
    EXPECT_EQ(manager.languages(),
              (std::vector<Language>{{EnglishLcid, "English"},
                                     {German, "Deutsch"},
                                     {French, "Fran\u00E7ais"},
                                     {SerbianLatin, "Serbian (Serbia and Montenegro, Former, Latin)"}}));

    TranslationManager without(DataFolder, "nothing");
    EXPECT_EQ(without.load().code, err::system(ENOENT));
    EXPECT_EQ(without.languages(), (std::vector<Language>{{EnglishLcid, "English"}}));
    EXPECT_TRUE(without.use(EnglishLcid).ok());
}

TEST(TranslationManager, TheFirstFolderCountsAndTheOthersAddToIt)
{
    const test::TempFolder mine, others;
    const std::string entry = "<locale language='de' country='DE' displayname='Meins' file='de.ts'/>";
    mine.write("example.langs.xml", "<locales>" + entry + "</locales>");
    mine.write("de.ts", "<TS><context><name>CErrMsg</name><message><source>File not found</source>"
                        "<translation>Fort</translation></message></context></TS>");
    TranslationManager manager(std::vector{others.wide("missing"), mine.wide(), DataFolder}, "example");
    ASSERT_TRUE(manager.load().ok());
    EXPECT_EQ(manager.languages()[1], (Language{German, "Meins"}));
    ASSERT_TRUE(manager.use(German).ok());
    EXPECT_EQ(text(manager, "CErrMsg", "File not found"), "Fort");
    ASSERT_TRUE(manager.use(French).ok());
    EXPECT_EQ(text(manager, "CErrMsg", "File not found"), "Fichier introuvable");

    // A list with a fault is told of, and takes nothing from the others.
    mine.write("example.langs.xml", "<locales>" + entry);
    TranslationManager without(std::vector{mine.wide(), DataFolder}, "example");
    const LoadResult result = without.load();
    EXPECT_EQ(result.code, err::library(err::MalformedText));
    EXPECT_EQ(result.file, mine.wide() + L"/example.langs.xml");
    EXPECT_EQ(without.languages()[1].displayName, "Deutsch");
    others.write("example.langs.xml", "<wrong, too");
    EXPECT_EQ(TranslationManager(std::vector{mine.wide(), others.wide()}, "example").load().file,
              result.file);
}

TEST(TranslationManager, TakesEnglishAndSharedTagsFromTheList)
{
    const test::TempFolder folder;
    folder.write("t.langs.xml", "<locales><locale language='en' country='US' displayname='Plain English'"
                                " file='en.properties' filetype='properties'/>"
                                "<locale language='sr' country='CS' displayname='S' file='en.properties'"
                                " filetype='properties'/></locales>");
    folder.write("en.properties", "C|a=b");
    TranslationManager manager(folder.wide(), "T");
    ASSERT_TRUE(manager.load().ok());
    ASSERT_TRUE(manager.use(SerbianCyrillic).ok());
    EXPECT_EQ(manager.languages(),
              (std::vector<Language>{{EnglishLcid, "Plain English"}, {SerbianCyrillic, "S"}}));
    ASSERT_TRUE(manager.use(EnglishLcid).ok());
    EXPECT_EQ(text(manager, "C", "a"), "b");

    // A broken resource does not take English away.
    ASSERT_EQ(std::remove((folder / "en.properties").c_str()), 0);
    EXPECT_TRUE(manager.use(EnglishLcid).ok());
    EXPECT_EQ(text(manager, "C", "a"), "");
}

TEST(TranslationManager, TellsWhatIsWrongAndWhere)
{
    const test::TempFolder folder;
    folder.write("texts", "C|a=b");
    const char* const list = "/t.langs.xml";
    const char* const broken = "/de.ts";
    const auto entry = [](const std::string& file) {
        return "<locales><locale language='de' country='DE' file='" + file + "'/></locales>";
    };
    const std::tuple<std::string, std::string, const char*, std::int64_t> rows[] = {
        {"<locales>\n<locale>\n", "", list, 3},
        {entry("de.ts"), "<TS>\n\n<context></TS>", broken, 3},
        {entry("de.ts"), "<TS>\n<!-- " + std::string(5000, '-') + " -->\n<context " + std::string(5000, 'x'),
         broken, 3},
        {entry(folder / "texts"), "", list, 0},
        {entry("../t/de.ts"), "", list, 0},
    };
    for (const auto& [listText, resource, wrong, line] : rows) {
        folder.write("de.ts", resource);
        folder.write("t.langs.xml", listText);
        TranslationManager manager(folder.wide(), "T");
        LoadResult result = manager.load();
        if (result.ok())
            result = manager.use(German);
        EXPECT_EQ(result.code, err::library(err::MalformedText)) << listText;
        EXPECT_TRUE(platform::nativePath(result.file).ends_with(wrong)) << listText;
        EXPECT_EQ(result.line, line) << listText;
        EXPECT_EQ(manager.locale().lcid, EnglishLcid);
    }
}

} // namespace
