#pragma once

#include "lib/i18n/list/ITranslationListLoader.h"
#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"

namespace tessaly::i18n::internal {

/// Reads a list of this shape; other elements and attributes are ignored:
///
///     <locales>
///       <locale language="de" country="DE" displayname="Deutsch" file="quillet_de.ts"
///               filetype="translations" description="..." disabled="no"/>
///     </locales>
///
/// filetype is "properties", "translations" or "dll".
class TranslationListLoaderXml final : public ITranslationListLoader
{
public:
    LoadResult load(const std::wstring& path) override;
    std::vector<Translation> translations() const override { return m_translations.get(); }

private:
    sync::internal::SafeData<sync::Locker, std::vector<Translation>> m_translations;
};

} // namespace tessaly::i18n::internal
