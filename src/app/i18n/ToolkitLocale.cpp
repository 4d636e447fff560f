#include "app/i18n/ToolkitLocale.h"

#include <QString>

namespace thisapp {

QLocale toolkitLocale(const tessaly::i18n::internal::Locale& locale)
{
    QLocale found(QString::fromLatin1(locale.tag.data(), static_cast<int>(locale.tag.size())));
    found.setNumberOptions(QLocale::OmitGroupSeparator);
    return found;
}

} // namespace thisapp
