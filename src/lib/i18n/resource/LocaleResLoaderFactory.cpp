#include "lib/i18n/resource/LocaleResLoaderFactory.h"

#include "lib/err/ErrorCodes.h"
#include "lib/i18n/list/Translation.h"
#include "lib/i18n/resource/LocaleResLoaderPropFile.h"
#include "lib/i18n/resource/LocaleResLoaderTrFile.h"

namespace tessaly::i18n::internal {

ResultCode LocaleResLoaderFactory::create(std::uint32_t fileType,
                                          std::unique_ptr<ILocaleResLoader>* loader) const
{
    if (loader == nullptr)
        return err::library(err::NoResultPlace);
    if (fileType == PropertiesFileType)
        *loader = std::make_unique<LocaleResLoaderPropFile>();
    else
        *loader = std::make_unique<LocaleResLoaderTrFile>();
    return {};
}

} // namespace tessaly::i18n::internal
