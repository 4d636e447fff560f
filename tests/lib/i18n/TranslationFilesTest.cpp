#include "lib/err/ErrorCodes.h"
#include "lib/i18n/StrBundleTrMgr.h"
#include "lib/i18n/list/TranslationListLoaderXml.h"
#include "lib/i18n/resource/LocaleResLoaderTrFile.h"
#include "support/TempFolder.h"
#include "support/Walk.h"

#include <cerrno>
#include <chrono>

namespace {

using namespace tessaly;
using namespace tessaly::i18n;
using namespace tessaly::i18n::internal;

TEST(TranslationFiles, AreReadWholeOrNotAtAll)
{
    const test::TempFolder folder;
    TranslationListLoaderXml list;
    const auto loadList = [&](const std::string& text) {
        const ResultCode result = list.load(folder.write("list", text)).code;
        return result == err::library(err::MalformedText) ? "malformed" : result.ok() ? "read" : "failed";
    };
    const auto entries = [&] {
        std::string all;
        for (const Translation& entry : list.translations())
            all += entry.language + '|' + entry.country + '|' + entry.displayName + '|' + entry.file + '|' +
                   std::to_string(entry.fileType) + '|' + entry.description + '|' + entry.disabled + ", ";
        return all;
    };
    StrBundleTrMgr bundle;
    const auto loadTexts = [&](const std::string& text) {
        return bundle.load(LocaleResLoaderTrFile(), folder.write("texts", text)).ok() ? "read" : "malformed";
    };
    const auto textOf = [&](const std::string& source) {
        return std::string(bundle.lookup("C", source).text);
    };
    test::walk("translation_files.txt",
               {{"list", loadList}, {"entries", entries}, {"texts", loadTexts}, {"text of", textOf}});

    EXPECT_EQ(list.load(folder.write("list", std::string((256 << 10) + 1, ' '))).code,
              err::library(err::FileTooLarge));
    EXPECT_EQ(list.load(folder.wide("missing")).code, err::system(ENOENT));
    const std::string whole = test::readFile(TEST_DATA_DIR "/i18n/example_de.ts");
    for (std::size_t size = 0; size < whole.rfind('>'); size += 7)
        EXPECT_STREQ(loadTexts(whole.substr(0, size)), "malformed");
    std::string attributes = " quoted='>'"; // thousands are refused at once
    for (int i = 0; attributes.size() < 1 << 20; ++i)
        attributes += " a" + std::to_string(i) + "=''";
    const auto start = std::chrono::steady_clock::now();
    EXPECT_STREQ(loadTexts("<TS><context" + attributes + "/></TS>"), "malformed");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

} // namespace
