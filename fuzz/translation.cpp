// The reader of Qt Linguist files (.ts), which users may add: what it hands over is text, and no more than in
// proportion to the file. The seeds come from the translations.

#include "fuzz/support/MemoryFile.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/Text.h"
#include "lib/err/ErrorCodes.h"
#include "lib/file/IVariablesSetter.h"
#include "lib/i18n/StrBundleTrMgr.h"
#include "lib/i18n/resource/LocaleResLoaderTrFile.h"

#include <QString>

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <utility>

using namespace fuzz;
using namespace tessaly::i18n;

namespace {

class Variables final : public tessaly::file::IVariablesSetter
{
    std::optional<std::string> variable(std::string_view name) const override
    {
        return name == "name" ? std::optional<std::string>("${name}") : std::nullopt;
    }
};

class Items final : public ILocaleResLoaderCallback
{
public:
    std::map<std::pair<std::string, std::string>, std::string> last;
    std::size_t bytes = 0;

    void onItem(const std::string& context, const std::string& source,
                const std::string& translation) override
    {
        for (const std::string* part : {&context, &source, &translation})
            require(QString::fromStdString('x' + *part).toStdString() == 'x' + *part, // a first U+FEFF stays
                    "a text is UTF-8");
        require(context.size() <= 3 * 1000, "a context is a name");
        bytes += source.size() + translation.size(); // each form stands with its source
        last[{context, source}] = translation;
    }
    const tessaly::file::IVariablesSetter* variables() const override { return &m_variables; }

private:
    Variables m_variables;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const MemoryFile file(text(data, size));
    const internal::LocaleResLoaderTrFile loader;
    Items items;
    const LoadResult result = loader.load(file.path(), items);
    const auto lines = 1 + std::count(data, data + size, '\n') + std::count(data, data + size, '\r');
    require(result.ok() || result.code == tessaly::err::library(tessaly::err::MalformedText),
            "a file is read or malformed");
    require(result.line >= 0 && result.line <= lines, "the line is one of the file");
    require(items.bytes <= 8 * size, "texts in proportion to the file");

    internal::StrBundleTrMgr bundle;
    require(bundle.load(loader, file.path(), items.variables()).ok() == result.ok(), "it loads as it reads");
    for (const auto& [name, translation] : items.last)
        require(bundle.lookup(name.first, name.second).text ==
                    (result.ok() ? std::string_view(translation) : std::string_view()),
                "all texts, or none after a failure");
    return 0;
}
