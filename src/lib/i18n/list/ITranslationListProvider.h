#pragma once

#include "lib/i18n/list/Translation.h"

#include <vector>

namespace tessaly::i18n {

/// Gives the entries of the translation list, in file order.
class ITranslationListProvider
{
public:
    virtual ~ITranslationListProvider() = default;

    virtual std::vector<internal::Translation> translations() const = 0;
};

} // namespace tessaly::i18n
