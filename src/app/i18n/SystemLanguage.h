#pragma once

#include "lib/i18n/locale/Language.h"

#include <QStringList>

#include <cstdint>
#include <vector>

namespace thisapp {

/// The LCID of the first of the wanted languages ("de-AT", as QLocale::uiLanguages gives them) that is
/// offered: for its country, or else for any country where the same script is written. English when
/// none is.
std::uint32_t firstOffered(const QStringList& wanted, const std::vector<tessaly::i18n::Language>& offered);

} // namespace thisapp
