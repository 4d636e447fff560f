#include "lib/i18n/PluralForms.h"
#include "lib/i18n/TranslationManager.h"
#include "lib/i18n/locale/LocaleCatalogue.h"
#include "support/DataRows.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QProcess>
#include <QTranslator>

namespace {

using namespace tessaly::i18n;

TEST(LocaleCatalogue, IsTheOneOfItsEra)
{
    const auto rows = test::dataRows("locales.txt");
    ASSERT_EQ(rows.size(), locales().size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& locale = locales()[i];
        EXPECT_EQ((test::Row{std::to_string(locale.lcid), std::to_string(locale.primaryLanguageId),
                             std::to_string(locale.subLanguageId), std::string(locale.tag),
                             std::string(locale.languageName), std::string(locale.countryName)}),
                  rows[i]);
        EXPECT_EQ(locale.tag, std::string(locale.languageCode) + '-' + std::string(locale.countryCode));
        const std::string language = locale.lcid == 1078 ? "Afrikaans" : rows[i].at(4);
        EXPECT_EQ(locale.displayName, language + " (" + rows[i].at(5) + ")");
        EXPECT_EQ(findLocale(locale.lcid), &locale);
    }
    EXPECT_EQ(findLocale("az-AZ")->lcid, 1068U) << "the first of two";
    EXPECT_EQ(findLocale("en-029")->lcid, 9225U);
    EXPECT_EQ(findLocale("EN-us"), nullptr);
    for (const std::uint32_t unknown : {0U, 1034U, 99999U})
        EXPECT_EQ(findLocale(unknown), nullptr);
}

TEST(PluralForms, AreThoseOfTheToolkitInEveryLanguage)
{
    if (!QFileInfo::exists(LRELEASE))
        GTEST_SKIP() << "no lrelease here";
    std::string forms;
    for (const char form : {'0', '1', '2', '3', '4', '5'})
        forms += std::string("<numerusform>") + form + "</numerusform>";
    const test::TempFolder folder;
    QStringList files{"-silent"};
    for (const auto& locale : locales()) {
        const std::string tag(locale.tag);
        std::string language = tag;
        language.replace(language.find('-'), 1, "_");
        folder.write(tag + ".ts", "<!DOCTYPE TS><TS version='2.1' language='" + language +
                                      "'><context><name>C</name><message numerus='yes'><source>n</source>"
                                      "<translation>" +
                                      forms + "</translation></message></context></TS>");
        files += QString::fromStdString(folder / (tag + ".ts"));
    }
    QProcess lrelease;
    lrelease.start(LRELEASE, files);
    ASSERT_TRUE(lrelease.waitForFinished(60000));

    for (const auto& locale : locales()) {
        QTranslator translator;
        ASSERT_TRUE(translator.load(QString::fromStdString(folder / (std::string(locale.tag) + ".qm"))));
        for (int number = 0; number < 230; ++number)
            ASSERT_EQ(std::to_string(pluralForm(locale, static_cast<std::uint32_t>(number))),
                      translator.translate("C", "n", nullptr, number).toStdString())
                << locale.tag << ' ' << number;
    }
}

} // namespace
