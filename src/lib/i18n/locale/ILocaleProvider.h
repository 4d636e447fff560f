#pragma once

#include "lib/i18n/locale/Locale.h"

namespace tessaly::i18n {

/// Gives the locale of the user interface.
class ILocaleProvider
{
public:
    virtual ~ILocaleProvider() = default;

    virtual internal::Locale locale() const = 0;
};

} // namespace tessaly::i18n
