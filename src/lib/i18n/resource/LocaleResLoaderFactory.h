#pragma once

#include "lib/i18n/resource/ILocaleResLoaderFactory.h"

namespace tessaly::i18n::internal {

/// A properties file is read as such, everything else as a Qt Linguist file.
class LocaleResLoaderFactory final : public ILocaleResLoaderFactory
{
public:
    ResultCode create(std::uint32_t fileType, std::unique_ptr<ILocaleResLoader>* loader) const override;
};

} // namespace tessaly::i18n::internal
