#pragma once

#include "lib/i18n/list/ITranslationListLoader.h"

#include <memory>

namespace tessaly::i18n {

/// Makes loaders of translation lists.
class ITranslationListLoaderFactory
{
public:
    virtual ~ITranslationListLoaderFactory() = default;

    virtual std::unique_ptr<ITranslationListLoader> create() const = 0;
};

} // namespace tessaly::i18n
