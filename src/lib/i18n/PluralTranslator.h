#pragma once

#include "lib/i18n/AppTranslator.h"
#include "lib/i18n/locale/ILocaleProvider.h"

namespace tessaly {

/// Answers for texts with a number, in the plural form of the present locale; leaves everything else,
/// and a text without that form, to the translators installed before it.
class PluralTranslator final : public AppTranslator
{
public:
    /// Both must outlive it.
    PluralTranslator(const i18n::IStrBundle& bundle, const i18n::ILocaleProvider& locale);

    QString translate(const char* context, const char* sourceText, const char* disambiguation = nullptr,
                      int n = -1) const override;

private:
    const i18n::ILocaleProvider& m_locale;
};

} // namespace tessaly
