#include "lib/err/ErrorCodes.h"
#include "lib/i18n/PluralForms.h"
#include "lib/i18n/StrBundleTrMgr.h"
#include "lib/i18n/list/TranslationListLoaderXml.h"
#include "lib/i18n/list/WordTest.h"
#include "lib/i18n/resource/LocaleResLoaderTrFile.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>

namespace {

using namespace tessaly;
using namespace tessaly::i18n;
using namespace tessaly::i18n::internal;

const std::string Attributes = "<!DOCTYPE locales [<!ATTLIST locale file CDATA 'x'>]>";
const std::string Entities = R"(<!DOCTYPE x [<!ENTITY a "aaaaaaaaaa"><!ENTITY b "&a;&a;&a;&a;">]>)";

TEST(TranslationListLoaderXml, ReadsEntriesInFileOrder)
{
    const test::TempFolder folder;
    TranslationListLoaderXml loader;
    const auto load = [&](const std::string& text) { return loader.load(folder.write("l", text)).code; };
    ASSERT_TRUE(load("\xEF\xBB\xBF<?xml version='1.0' encoding='ISO-8859-1'?><locales>"
                     "<locale language='a' Country='b' displayname='\xC3\xA4' file='f'"
                     " filetype='dll' description='d' disabled='x'/>"
                     "<locale filetype='XML'><locale/></locale><other/><Locale/>"
                     "<locale filetype='properties'/>"
                     "<locale filetype='translations'/><locale filetype='DLL'/></locales>")
                    .ok());
    const std::vector<Translation> expected = {{"a", "", "\xC3\xA4", "f", 32, "d", "x"},
                                               {"", "", "", "", 0, "", ""},
                                               {"", "", "", "", 1, "", ""},
                                               {"", "", "", "", 16, "", ""},
                                               {"", "", "", "", 0, "", ""}};
    EXPECT_EQ(loader.translations(), expected);

    // A failure leaves them alone.
    std::string nested;
    for (int depth = 0; depth < 100; ++depth)
        nested = "<a>" + nested + "</a>";
    for (const std::string& text : std::initializer_list<std::string>{
             "", "<locales>", "<locale/>", "<locales/><x/>", "<locales><locale></locales>",
             "<locales file='\xE4'/>", "<locales file='\xC3",
             Entities + "<locales><locale file='&b;'/></locales>", Attributes + "<locales/>",
             "<locales>" + nested + "</locales>"})
        EXPECT_EQ(load(text), err::library(err::MalformedText)) << text;
    EXPECT_EQ(load(std::string((256 << 10) + 1, ' ')), err::library(err::FileTooLarge));
    EXPECT_EQ(loader.load(folder.wide("missing")).code, err::system(ENOENT));
    EXPECT_EQ(loader.translations(), expected);
}

TEST(TranslationListLoaderXml, KnowsTheWordsOfOldFiles)
{
    for (const char* word : {"1", "ok", "yes", "ofcouse", "true", "OK", "YES", "TRUE"})
        EXPECT_EQ(readYesNo(word), true) << word;
    for (const char* word : {"0", "not", "never", "false", "NeVer"})
        EXPECT_EQ(readYesNo(word), false) << word;
    for (const char* word : {"", "no", "x", "ofcourse", "2", " 1"})
        EXPECT_EQ(readYesNo(word), std::nullopt) << word;
    EXPECT_EQ(asciiLower("@AZ[`az{\xC3\x84"), "@az[`az{\xC3\x84");
}

struct LocaleResLoaders : testing::Test
{
    bool loads(const std::string& text)
    {
        return bundle.load(LocaleResLoaderTrFile(), folder.write("t", text)).ok();
    }

    const test::TempFolder folder;
    StrBundleTrMgr bundle;
};

TEST_F(LocaleResLoaders, KeepMessagesApartAndKnowBytes)
{
    ASSERT_TRUE(loads("<TS><context><name>C</name><message numerus='yes'><source>many</source>"
                      "<translation><numerusform>0</numerusform><numerusform>1</numerusform>"
                      "</translation></message><message><source>one</source><translation>"
                      "<byte value='x1b'/>-<byte value='27'/></translation></message></context></TS>"));
    for (const auto& [source, text] : {std::pair(formKey("many", 0), "0"),
                                       {formKey("many", 1), "1"},
                                       {"one", "\x1b-\x1b"},
                                       {formKey("one", 0), ""}})
        EXPECT_EQ(bundle.lookup("C", source).text, text);
}

TEST_F(LocaleResLoaders, SurviveBrokenFiles)
{
    const std::string good = "<TS><context><name>C</name><message><source>a</source>"
                             "<translation>b</translation></message></context></TS>";
    ASSERT_TRUE(loads(good));
    for (std::size_t size = 0; size < good.size(); ++size)
        EXPECT_FALSE(loads(good.substr(0, size)));
    EXPECT_FALSE(loads("<ts/>"));
    for (const std::string& type : {Entities, std::string("<!DOCTYPE TS [<!ELEMENT TS ANY>]>"),
                                    std::string("<!DOCTYPE TS [<!-- --><!NOTATION n SYSTEM 'n'>]>")})
        EXPECT_FALSE(loads(type + good)) << type;
    EXPECT_EQ(bundle.lookup("C", "a").text, "b");
    for (const char* type : {"<!DOCTYPE TS []>", "<!DOCTYPE TS SYSTEM \"[a]\" [ <!-- x --> <?y z?> ]>"})
        EXPECT_TRUE(loads(type + good)) << type;

    // Thousands of attributes are refused at once.
    std::string attributes = " quoted='>'";
    for (int i = 0; attributes.size() < 1 << 20; ++i)
        attributes += " a" + std::to_string(i) + "=''";
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(loads("<TS><context" + attributes + "/></TS>"));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

} // namespace
