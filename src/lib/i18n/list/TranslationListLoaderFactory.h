#pragma once

#include "lib/i18n/list/ITranslationListLoaderFactory.h"

namespace tessaly::i18n::internal {

/// Makes loaders of XML lists.
class TranslationListLoaderFactory final : public ITranslationListLoaderFactory
{
public:
    std::unique_ptr<ITranslationListLoader> create() const override;
};

} // namespace tessaly::i18n::internal
