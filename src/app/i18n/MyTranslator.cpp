#include "app/i18n/MyTranslator.h"

namespace thisapp {

QString MyTranslator::translate(const char* context, const char* sourceText, const char* /*disambiguation*/,
                                int /*n*/) const
{
    const QString found = find(context, sourceText);
    return found.isNull() ? QString::fromLatin1(sourceText) : found;
}

} // namespace thisapp
