#pragma once

#include "lib/i18n/resource/ILocaleResLoader.h"

namespace tessaly::i18n::internal {

/// Reads the finished translations of a Qt Linguist file (.ts). Of a translation in several forms
/// (plurals, lengths) it takes the last one.
class LocaleResLoaderTrFile final : public ILocaleResLoader
{
public:
    LoadResult load(const std::wstring& path, ILocaleResLoaderCallback& callback) const override;
};

} // namespace tessaly::i18n::internal
