#pragma once

#include "lib/i18n/resource/ILocaleResLoader.h"

namespace tessaly::i18n::internal {

/// Reads the finished translations of a Qt Linguist file (.ts). Of a translation in several lengths it
/// takes the last one. Plural forms are handed over under their form keys (see PluralForms.h), and the
/// last one also under the source text itself.
class LocaleResLoaderTrFile final : public ILocaleResLoader
{
public:
    LoadResult load(const std::wstring& path, ILocaleResLoaderCallback& callback) const override;
};

} // namespace tessaly::i18n::internal
