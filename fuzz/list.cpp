// The list of languages and the manager above it: entries of any kind, and no file outside the list's folder
// is ever read.

#include "fuzz/support/Require.h"
#include "fuzz/support/Text.h"
#include "lib/err/ErrorCodes.h"
#include "lib/i18n/TranslationManager.h"
#include "lib/i18n/list/TranslationListLoaderXml.h"
#include "lib/i18n/locale/LocaleCatalogue.h"
#include "tests/support/TempFolder.h"

#include <cstdint>
#include <set>
#include <string>

using namespace fuzz;
using namespace tessaly::i18n;

namespace {

std::string translationOf(const char* text)
{
    return std::string("<TS><context><name>C</name><message><source>S</source><translation>") + text +
           "</translation></message></context></TS>";
}

/// The folder of the list between files that are none of its own.
const test::TempFolder& place()
{
    static const test::TempFolder folder;
    [[maybe_unused]] static const bool isMade = [] {
        for (const char* name : {"a.ts", "secret.ts"})
            folder.write(name, translationOf("outside"));
        for (const char* name : {"in/a.ts", "in/sub/a.ts"})
            folder.write(name, translationOf("inside"));
        return true;
    }();
    return folder;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    place().write("in/quillet.langs.xml", text(data, size));
    const std::wstring folder = (place().path() / "in").wstring();
    TranslationManager manager(folder, "Quillet");
    const LoadResult loaded = manager.load();
    require(loaded.ok() || loaded.code == tessaly::err::library(tessaly::err::MalformedText) ||
                loaded.code == tessaly::err::library(tessaly::err::FileTooLarge),
            "a list is read, malformed or too large");
    require(loaded.ok() || manager.translations().empty(), "no entries after a failure");

    const std::vector<Language> languages = manager.languages();
    std::set<std::uint32_t> ids;
    for (const Language& language : languages) {
        require(ids.insert(language.lcid).second && findLocale(language.lcid) != nullptr &&
                    !language.displayName.empty(),
                "each language is known, has a name and is offered once");
        const LoadResult used = manager.use(language.lcid);
        const std::string_view found = manager.bundle().lookup("C", "S").text;
        require(found.empty() || found == "inside", "no file outside the folder is read");
        require(!used.ok() || manager.locale().lcid == language.lcid,
                "the locale is the one that was loaded");
    }
    require(ids.contains(EnglishLcid), "there is always English");
    return 0;
}
