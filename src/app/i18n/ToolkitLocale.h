#pragma once

#include "lib/i18n/locale/Locale.h"

#include <QLocale>

namespace thisapp {

/// The toolkit's form of a locale: its numbers and its direction. Numbers stay without separators of
/// thousands, as ours count bytes and seconds. Plain C for a language that the toolkit doesn't know.
QLocale toolkitLocale(const tessaly::i18n::internal::Locale& locale);

} // namespace thisapp
