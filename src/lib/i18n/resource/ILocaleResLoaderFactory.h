#pragma once

#include "lib/err/ResultCode.h"
#include "lib/i18n/resource/ILocaleResLoader.h"

#include <cstdint>
#include <memory>

namespace tessaly::i18n {

/// Makes loaders of translation resources.
class ILocaleResLoaderFactory
{
public:
    virtual ~ILocaleResLoaderFactory() = default;

    /// Puts a loader for the file type (see Translation) into loader; NoResultPlace when that is null.
    virtual ResultCode create(std::uint32_t fileType, std::unique_ptr<ILocaleResLoader>* loader) const = 0;
};

} // namespace tessaly::i18n
