#pragma once

#include "lib/i18n/list/ITranslationListProvider.h"
#include "lib/i18n/resource/TranslationFile.h"

#include <string>

namespace tessaly::i18n {

/// Loads a translation list, then provides its entries. Any thread may read them meanwhile.
class ITranslationListLoader : public ITranslationListProvider
{
public:
    /// Reads the list at path; a failure leaves the entries as they were.
    virtual LoadResult load(const std::wstring& path) = 0;
};

} // namespace tessaly::i18n
