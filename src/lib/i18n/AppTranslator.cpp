#include "lib/i18n/AppTranslator.h"

namespace tessaly {

AppTranslator::AppTranslator(const i18n::IStrBundle& bundle, QObject* parent)
    : QTranslator(parent), m_bundle(bundle)
{
}

QString AppTranslator::find(const char* context, const char* sourceText) const
{
    if (context == nullptr || sourceText == nullptr)
        return {};
    const auto found = m_bundle.lookup(context, sourceText);
    return found.text.empty() ? QString()
                              : QString::fromUtf8(found.text.data(), static_cast<int>(found.text.size()));
}

} // namespace tessaly
