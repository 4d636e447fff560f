#include "lib/i18n/PluralForms.h"
#include "lib/i18n/locale/LocaleCatalogue.h"
#include "support/DataRows.h"

#include <gtest/gtest.h>

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
    std::size_t languages = 0;
    for (const test::Row& row : test::dataRows("plurals.txt"))
        for (std::size_t i = 1; i < row.size(); ++i, ++languages) {
            std::string forms;
            while (forms.size() < row[0].size())
                forms +=
                    std::to_string(pluralForm(*findLocale(row[i]), static_cast<std::uint32_t>(forms.size())));
            EXPECT_EQ(forms, row[0]) << row[i];
        }
    EXPECT_EQ(languages, locales().size());
}

} // namespace
