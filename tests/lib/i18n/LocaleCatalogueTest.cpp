#include "lib/i18n/locale/LocaleCatalogue.h"

#include "support/DataRows.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace tessaly::i18n;

TEST(LocaleCatalogue, IsTheOneOfItsEra)
{
    const auto rows = test::dataRows("locales.txt");
    ASSERT_EQ(rows.size(), locales().size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const internal::Locale& locale = locales()[i];
        EXPECT_EQ((test::Row{std::to_string(locale.lcid), std::to_string(locale.primaryLanguageId),
                             std::to_string(locale.subLanguageId), std::string(locale.tag),
                             std::string(locale.languageName), std::string(locale.countryName)}),
                  rows[i]);
        EXPECT_EQ(locale.tag, std::string(locale.languageCode) + '-' + std::string(locale.countryCode));
        const std::string language = locale.lcid == 1078 ? "Afrikaans" : rows[i].at(4);
        EXPECT_EQ(locale.displayName, language + " (" + rows[i].at(5) + ")");
        EXPECT_EQ(findLocale(locale.lcid), &locale);
    }
}

TEST(LocaleCatalogue, FindsTheFirstRowOfATag)
{
    EXPECT_EQ(findLocale("az-AZ")->lcid, 1068U);
    EXPECT_EQ(findLocale("en-029")->lcid, 9225U);
    EXPECT_EQ(findLocale(1034U), nullptr);
    EXPECT_EQ(findLocale(0U), nullptr);
    EXPECT_EQ(findLocale(99999U), nullptr);
    EXPECT_EQ(findLocale("EN-us"), nullptr);
}

} // namespace
