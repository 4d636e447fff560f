#pragma once

#include "lib/i18n/resource/ILocaleResLoader.h"

namespace tessaly::i18n::internal {

/// Reads a properties file whose keys are "Context|Source text", for example
/// `CErrMsg|File\ not\ found=Datei nicht gefunden`. Other keys are skipped.
class LocaleResLoaderPropFile final : public ILocaleResLoader
{
public:
    LoadResult load(const std::wstring& path, ILocaleResLoaderCallback& callback) const override;
};

} // namespace tessaly::i18n::internal
