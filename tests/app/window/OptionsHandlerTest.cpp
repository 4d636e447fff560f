#include "app/window/OptionsHandler.h"

#include "app/i18n/Translators.h"
#include "common/settings/CAppSettings.h"
#include "lib/i18n/TranslationManager.h"
#include "lib/logger/FileLogging.h"
#include "support/Environment.h"
#include "support/Eventually.h"
#include "support/TempFolder.h"
#include "ui/algorithms/CCryptoAlgProvider.h"

#include <gtest/gtest.h>

#include <fstream>
#include <memory>

namespace {

using thisapp::SAppOptions;

/// The options with what they reach, as start-up puts it together; a fresh profile for each test.
class OptionsHandler : public testing::Test
{
protected:
    void start(const std::string& logFile = {}, const QStringList& userLanguages = {})
    {
        logging = std::make_unique<tessaly::logger::FileLogging>(logFile);
        options = std::make_unique<thisapp::OptionsHandler>(
            thisapp::OptionsTargets{algorithms, translations, translators, *logging,
                                    [this](bool, bool) { ++shellUpdates; }, userLanguages});
        options->applyAtStart();
    }
    std::string problem() const { return options->problem().toStdString(); }
    thisapp::SAppliedOptions apply(const SAppOptions& wanted)
    {
        return options->apply(wanted, [this](const thisapp::AlgSelection& chosen) { selected = chosen; });
    }
    static void store(const char* key, const QVariant& value) { CAppSettings().setValue(key, value); }

    int shellUpdates = 0;
    thisapp::AlgSelection selected;
    test::TempFolder folder;
    test::Environment profile{"XDG_CONFIG_HOME", folder.path().c_str()};
    thisapp::CCryptoAlgProvider algorithms;
    tessaly::i18n::TranslationManager translations{folder.wide(), "Quillet"};
    thisapp::Translators translators{translations};
    std::unique_ptr<tessaly::logger::FileLogging> logging;
    std::unique_ptr<thisapp::OptionsHandler> options;
};

TEST_F(OptionsHandler, WhatDoesNotFitGivesWayAndIsLogged)
{
    folder.write("quillet.langs.xml", "<locales><locale language='de' country='DE' file='de.ts'/></locales>");
    folder.write("de.ts", "<TS>\n<context>\n</TS>");
    store("LocaleId", 1031);
    store("DefaultCryptoLibrary", 10);
    store("EncFileNamePrefix", "a/b");
    store("LogLevel", 3);
    store("UseLogFile", true);
    std::ofstream(CAppSettings().fileName().toStdString(), std::ios::app)
        << "DecFileNameSuffix=@DateTime(\\0\\0\\0\\x10)\n";
    const std::string log = folder / "log";
    start(log);
    SAppOptions used = options->read();
    EXPECT_EQ(used.localeId, 1033U);
    EXPECT_EQ(used.defaultAlgorithm(), thisapp::DefaultAlgSelection);
    EXPECT_FALSE(options->defaultAlgorithm());
    EXPECT_EQ(used.encFileNamePrefix, "");
    EXPECT_NE(problem().find("The translation can't be loaded: "), std::string::npos);
    EXPECT_NE(problem().find("/de.ts:3: (error: 5/47)"), std::string::npos) << problem();
    for (const char* warning :
         {"could not be read: 1", "/de.ts:3: (error: 5/47)",
          "LocaleId is stored as \"1031\"; in use is \"1033\"", "DefaultCryptoLibrary is stored as \"10\"",
          "EncFileNamePrefix is stored as \"a/b\""})
        EXPECT_TRUE(test::eventually([&] { return test::readFile(log).find(warning) != std::string::npos; }))
            << warning;
    EXPECT_EQ(test::readFile(log).find("[WARNG]"), test::readFile(log).find("[", 2)) << "as a warning";

    used.setDefaultAlgorithm({1, 9999});
    EXPECT_EQ(apply(used).problem, "") << "what was shown is what is wanted now";
    EXPECT_FALSE(options->defaultAlgorithm() || selected.isComplete()) << "there is none such";
    used.setDefaultAlgorithm({1, 452});
    EXPECT_EQ(apply(used).problem, "");
    EXPECT_EQ(selected, thisapp::AlgSelection(1, 452));
    EXPECT_EQ(options->defaultAlgorithm(), selected);
    EXPECT_EQ(CAppSettings().value("LocaleId").toInt(), 1033);
    used.localeId = 1031;
    EXPECT_EQ(apply(used).localeId, 1033U);
    EXPECT_NE(problem(), "");
}

TEST_F(OptionsHandler, SpeaksTheUsersLanguageUntilOneIsChosen)
{
    folder.write("quillet.langs.xml",
                 "<locales><locale language='de' country='DE' file='de.properties' filetype='properties'/>"
                 "<locale language='fr' country='FR' file='de.properties' filetype='properties'/></locales>");
    folder.write("de.properties", "C|a=b");
    start({}, {"xx", "de-AT", "fr"});
    SAppOptions used = options->read();
    EXPECT_EQ(used.localeId, 1031U);
    EXPECT_EQ(apply(used).localeId, 1031U);
    EXPECT_FALSE(CAppSettings().contains("LocaleId"));
    EXPECT_EQ(shellUpdates, 0);

    used.localeId = 1033;
    EXPECT_EQ(apply(used).localeId, 1033U);
    EXPECT_EQ(shellUpdates, 1) << "the entries have names";
    start({}, {"de-AT"});
    EXPECT_EQ(options->read().localeId, 1033U) << "the choice stays";
}

TEST_F(OptionsHandler, TellsWhatIsNotInEffect)
{
    start();
    EXPECT_EQ(problem(), "") << "a program without translations is in order";
    SAppOptions wanted = options->read();
    wanted.useLogFile = true;
    EXPECT_EQ(apply(wanted).problem, "Nothing is written to the log file: Failed to create file logger.");
    wanted.useLogFile = false;
    EXPECT_EQ(apply(wanted).problem, "");

    folder.write("file", "");
    const test::Environment nowhere("XDG_CONFIG_HOME", (folder / "file").c_str());
    EXPECT_EQ(apply(wanted).problem.toStdString(),
              "The options can't be saved in " + (folder / "file/Tessaly/Quillet.conf") + ".");

    folder.write("quillet.langs.xml", "<locales/>");
    const test::Environment profileAgain("XDG_CONFIG_HOME", folder.path().c_str());
    store("LocaleId", 1036);
    start();
    EXPECT_EQ(problem(), "There is no translation for the chosen language.");
}

} // namespace
