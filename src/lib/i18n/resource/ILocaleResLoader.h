#pragma once

#include "lib/i18n/resource/ILocaleResLoaderCallback.h"
#include "lib/i18n/resource/TranslationFile.h"

#include <string>

namespace tessaly::i18n {

/// Reads one translation resource. Stateless, so one loader may serve several threads.
class ILocaleResLoader
{
public:
    virtual ~ILocaleResLoader() = default;

    /// Hands every text to the callback; after a failure these are the texts before it.
    virtual LoadResult load(const std::wstring& path, ILocaleResLoaderCallback& callback) const = 0;
};

} // namespace tessaly::i18n
