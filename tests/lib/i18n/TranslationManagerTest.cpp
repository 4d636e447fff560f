#include "lib/i18n/TranslationManager.h"
#include "lib/i18n/PluralTranslator.h"
#include "lib/i18n/locale/LocaleCatalogue.h"
#include "lib/platform/Path.h"
#include "support/AppVariable.h"
#include "support/TempFolder.h"
#include "support/Walk.h"

#include <optional>

namespace {

using namespace tessaly;
using namespace tessaly::i18n;
using std::string;

/// With the end of its path and the line.
string told(const LoadResult& result)
{
    if (result.ok())
        return "ok";
    const std::filesystem::path file = platform::pathFromWide(result.file);
    return std::to_string(result.code.category) + '/' + std::to_string(result.code.code) + ' ' +
           (file.parent_path().filename() / file.filename()).string() + ':' + std::to_string(result.line);
}

TEST(TranslationManager, FindsItsLanguagesAndSwitchesBetweenThem)
{
    const test::TempFolder folder;
    const test::AppVariable names;
    std::optional<TranslationManager> manager;
    StrBundleText kept;
    const auto load = [&](const string& nameAndFolders) {
        std::istringstream words(nameAndFolders);
        string name;
        words >> name;
        std::vector<std::wstring> folders;
        for (string word; words >> word;)
            folders.push_back(word == "i18n" ? platform::widePath(TEST_DATA_DIR "/i18n") : folder.wide(word));
        manager.emplace(folders, name);
        manager->setVariables(&names);
        return told(manager->load());
    };
    const auto write = [&](const string& nameAndText) {
        const auto [name, text] = test::halves(nameAndText);
        folder.write(name, text);
    };
    const auto languages = [&] {
        string all;
        for (const Language& language : manager->languages())
            all += std::to_string(language.lcid) + ' ' + language.displayName + ", ";
        return all;
    };
    const auto lookUp = [&](const string& contextAndText) {
        const auto [context, source] = test::halves(contextAndText);
        kept = manager->bundle().lookup(context, source);
        return string(kept.text);
    };
    const auto withNumber = [&](const string& sourceAndNumber) {
        const auto [source, number] = test::halves(sourceAndNumber);
        const PluralTranslator translator(manager->bundle(), *manager);
        const QString found = translator.translate("CMainWindow", source.c_str(), nullptr, std::stoi(number));
        return found.isNull() ? "none" : found.toStdString();
    };
    const auto use = [&](const string& lcid) {
        return told(manager->use(static_cast<std::uint32_t>(std::stoul(lcid))));
    };
    test::walk("languages.txt",
               {{"write", write},
                {"remove", [&](const string& name) { std::filesystem::remove(folder / name); }},
                {"load", load},
                {"languages", languages},
                {"use", use},
                {"in use", [&] { return std::to_string(manager->locale().lcid); }},
                {"text", lookUp},
                {"with number", withNumber},
                {"kept", [&] { return string(kept.text); }}});
}

} // namespace
