#include "lib/i18n/TranslationListLoaderFactory.h"

#include "lib/i18n/TranslationListLoaderXml.h"

namespace tessaly::i18n::internal {

std::unique_ptr<ITranslationListLoader> TranslationListLoaderFactory::create() const
{
    return std::make_unique<TranslationListLoaderXml>();
}

} // namespace tessaly::i18n::internal
