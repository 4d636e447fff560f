#include "window/WindowHarness.h"

#include "support/Eventually.h"

namespace test {

class OptionsHandlerTest : public WindowTest
{
protected:
    OptionsHandlerTest() { makeFolder("translations"); }
    std::string problem() const { return options.problem().toStdString(); }
    SAppliedOptions apply(const SAppOptions& wanted)
    {
        return options.apply(wanted, [this](const AlgSelection& chosen) { selected = chosen; });
    }

    AlgSelection selected;
};

TEST_F(OptionsHandlerTest, WhatDoesNotFitGivesWayAndIsLogged)
{
    folder.write("translations/quillet.langs.xml",
                 "<locales><locale language='de' country='DE' file='de.ts'/></locales>");
    folder.write("translations/de.ts", "<TS>\n<context>\n</TS>");
    set({{"LocaleId", 1031},
         {"DefaultCryptoLibrary", 10},
         {"EncFileNamePrefix", "a/b"},
         {"LogLevel", 3},
         {"UseLogFile", true}});
    std::ofstream(CAppSettings().fileName().toStdString(), std::ios::app)
        << "DecFileNameSuffix=@DateTime(\\0\\0\\0\\x10)\n";
    options.applyAtStart();
    SAppOptions used = options.read();
    EXPECT_EQ(used.localeId, 1033U);
    EXPECT_EQ(used.defaultAlgorithm(), DefaultAlgSelection);
    EXPECT_FALSE(options.defaultAlgorithm());
    EXPECT_EQ(used.encFileNamePrefix, "");
    EXPECT_TRUE(problem().starts_with("The translation can't be loaded: ") &&
                problem().find("/de.ts:3: (error: 5/47)") != std::string::npos)
        << problem();
    for (const char* warning :
         {"could not be read: 1", "/de.ts:3: (error: 5/47)",
          "LocaleId is stored as \"1031\"; in use is \"1033\"", "DefaultCryptoLibrary is stored as \"10\"",
          "EncFileNamePrefix is stored as \"a/b\""})
        EXPECT_TRUE(eventually([&] { return read("quillet.log").find(warning) != std::string::npos; }))
            << warning;
    const std::string log = read("quillet.log");
    EXPECT_EQ(log.find("[WARNG]"), log.find("[", 2)) << "as a warning";

    used.setDefaultAlgorithm({1, 9999});
    EXPECT_EQ(apply(used).problem, "") << "what was shown is what is wanted now";
    EXPECT_FALSE(options.defaultAlgorithm() || selected.isComplete()) << "there is none such";
    used.setDefaultAlgorithm({1, 452});
    EXPECT_EQ(apply(used).problem, "");
    EXPECT_EQ(selected, (AlgSelection{1, 452}));
    EXPECT_EQ(options.defaultAlgorithm(), selected);
    EXPECT_EQ(CAppSettings().value("LocaleId").toInt(), 1033);
    used.localeId = 1031;
    EXPECT_EQ(apply(used).localeId, 1033U);
    EXPECT_NE(problem(), "");
}

TEST_F(OptionsHandlerTest, SpeaksTheUsersLanguageUntilOneIsChosen)
{
    folder.write("translations/quillet.langs.xml",
                 "<locales><locale language='de' country='DE' file='de.properties' filetype='properties'/>"
                 "<locale language='fr' country='FR' file='de.properties' filetype='properties'/></locales>");
    folder.write("translations/de.properties", "C|a=b");
    OptionsHandler spoken({algorithms,
                           translations,
                           translators,
                           logging,
                           [this](bool, bool) { shellUpdates.emplace_back(); },
                           {"xx", "de-AT", "fr"}});
    const auto apply = [&](std::uint32_t localeId) {
        SAppOptions wanted = spoken.read();
        wanted.localeId = localeId;
        return spoken.apply(wanted, [](const AlgSelection&) {}).localeId;
    };
    spoken.applyAtStart();
    EXPECT_EQ(spoken.read().localeId, 1031U);
    EXPECT_EQ(apply(1031), 1031U);
    EXPECT_FALSE(CAppSettings().contains("LocaleId"));
    EXPECT_EQ(shellUpdates.size(), 0U);
    EXPECT_EQ(apply(1033), 1033U);
    EXPECT_EQ(shellUpdates.size(), 1U) << "the entries have names";
    spoken.applyAtStart();
    EXPECT_EQ(spoken.read().localeId, 1033U) << "the choice stays";
}

TEST_F(OptionsHandlerTest, TellsWhatIsNotInEffect)
{
    options.applyAtStart();
    EXPECT_EQ(problem(), "") << "a program without translations is in order";
    folder.write("translations/quillet.langs.xml", "<locales/>");
    set({{"LocaleId", 1036}});
    options.applyAtStart();
    EXPECT_EQ(problem(), "There is no translation for the chosen language.");

    set({});
    tessaly::logger::FileLogging nowhere("");
    OptionsHandler unlogged({algorithms, translations, translators, nowhere, [](bool, bool) {}});
    SAppOptions wanted = unlogged.read();
    const auto problemOf = [&] { return unlogged.apply(wanted, [](auto&) {}).problem.toStdString(); };
    wanted.useLogFile = true;
    EXPECT_EQ(problemOf(), "Nothing is written to the log file: Failed to create file logger.");
    wanted.useLogFile = false;
    EXPECT_EQ(problemOf(), "");
}

} // namespace test
