#include "lib/i18n/PluralForms.h"

#include "lib/i18n/TranslationManager.h"
#include "lib/i18n/locale/LocaleCatalogue.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QProcess>
#include <QTranslator>

#include <algorithm>

namespace {

using namespace tessaly::i18n;

constexpr std::size_t MostForms = 6;

std::string translation(std::string_view tag)
{
    std::string forms;
    for (std::size_t form = 0; form < MostForms; ++form)
        forms += "<numerusform>" + std::to_string(form) + "</numerusform>";
    std::string language(tag);
    std::ranges::replace(language, '-', '_');
    return "<!DOCTYPE TS><TS version='2.1' language='" + language +
           "'><context><name>C</name><message numerus='yes'><source>n</source><translation>" + forms +
           "</translation></message></context></TS>";
}

TEST(PluralForms, AreThoseOfTheToolkitInEveryLanguage)
{
    if (!QFileInfo::exists(LRELEASE))
        GTEST_SKIP() << "no lrelease here";
    const test::TempFolder folder;
    QStringList files{"-silent"};
    for (const auto& locale : locales()) {
        const std::string name = std::string(locale.tag) + ".ts";
        folder.write(name.c_str(), translation(locale.tag));
        files += QString::fromStdString(folder / name);
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
