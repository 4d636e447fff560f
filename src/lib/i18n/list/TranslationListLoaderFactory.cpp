#include "lib/i18n/list/TranslationListLoaderFactory.h"

#include "lib/i18n/list/TranslationListLoaderXml.h"

namespace tessaly::i18n::internal {

std::unique_ptr<ITranslationListLoader> TranslationListLoaderFactory::create() const
{
    return std::make_unique<TranslationListLoaderXml>();
}

} // namespace tessaly::i18n::internal
