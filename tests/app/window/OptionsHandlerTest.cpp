#include "window/WindowHarness.h"

namespace test {

/// What the window itself does with its options is told in tests/data/window.
using OptionsHandlerTest = WindowTest;

TEST_F(OptionsHandlerTest, SpeaksTheUsersLanguageUntilOneIsChosen)
{
    folder.write("translations/quillet.langs.xml",
                 "<locales><locale language='de' country='DE' file='de.properties' filetype='properties'/>"
                 "<locale language='fr' country='FR' file='de.properties' filetype='properties'/></locales>");
    folder.write("translations/de.properties", "C|a=b");
    const auto updateShell = [this](bool, bool) { shellUpdates.emplace_back(); };
    OptionsHandler spoken(
        {algorithms, translations, translators, logging, updateShell, {"xx", "de-AT", "fr"}});
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

TEST_F(OptionsHandlerTest, TellsThatNothingIsLogged)
{
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
