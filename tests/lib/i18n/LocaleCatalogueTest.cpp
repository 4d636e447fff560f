#include "lib/i18n/locale/LocaleCatalogue.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace {

using namespace tessaly::i18n;

TEST(LocaleCatalogue, Holds204RowsWith196Tags)
{
    std::map<std::string, std::set<std::uint32_t>> byTag;
    for (const auto& locale : locales()) {
        EXPECT_EQ(findLocale(locale.lcid), &locale);
        EXPECT_EQ(locale.tag, std::string(locale.languageCode) + '-' + std::string(locale.countryCode));
        byTag[std::string(locale.tag)].insert(locale.lcid);
    }
    EXPECT_EQ(locales().size(), 204u);
    EXPECT_EQ(byTag.size(), 196u);

    std::erase_if(byTag, [](const auto& row) { return row.second.size() == 1; });
    const decltype(byTag) doubled = {
        {"az-AZ", {1068, 2092}}, {"bs-BA", {5146, 8218}}, {"iu-CA", {1117, 2141}}, {"mn-MN", {1104, 2128}},
        {"no-NO", {1044, 2068}}, {"sr-BA", {6170, 7194}}, {"sr-CS", {2074, 3098}}, {"uz-UZ", {1091, 2115}}};
    EXPECT_EQ(byTag, doubled);
}

TEST(LocaleCatalogue, FindsRows)
{
    const internal::Locale rows[] = {
        {1033, 9, 1, "English (United States)", "English", "United States", "en-US", "en", "US"},
        {9225, 9, 9, "English (Caribbean)", "English", "Caribbean", "en-029", "en", "029"},
        {3076, 4, 3, "Chinese (Hong Kong SAR, PRC)", "Chinese", "Hong Kong SAR, PRC", "zh-HK", "zh", "HK"},
        {1107, 83, 1, "Khmer (Cambodia)", "Khmer", "Cambodia", "kh-KH", "kh", "KH"},
    };
    for (const auto& row : rows) {
        ASSERT_NE(findLocale(row.lcid), nullptr);
        EXPECT_TRUE(*findLocale(row.lcid) == row) << row.tag;
        EXPECT_EQ(findLocale(row.tag), findLocale(row.lcid));
    }
    EXPECT_EQ(findLocale(0u), nullptr);
    EXPECT_EQ(findLocale("EN-us"), nullptr);
}

} // namespace
