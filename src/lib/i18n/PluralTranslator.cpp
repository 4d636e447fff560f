#include "lib/i18n/PluralTranslator.h"

#include "lib/i18n/PluralForms.h"

namespace tessaly {

PluralTranslator::PluralTranslator(const i18n::IStrBundle& bundle, const i18n::ILocaleProvider& locale)
    : AppTranslator(bundle), m_locale(locale)
{
}

QString PluralTranslator::translate(const char* context, const char* sourceText,
                                    const char* /*disambiguation*/, int n) const
{
    if (n < 0 || sourceText == nullptr)
        return {};
    const auto form = i18n::pluralForm(m_locale.locale(), static_cast<std::uint32_t>(n));
    return find(context, i18n::formKey(sourceText, form).c_str());
}

} // namespace tessaly
