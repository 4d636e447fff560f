#pragma once

#include "lib/i18n/locale/Locale.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace tessaly::i18n {

inline constexpr std::uint32_t EnglishLcid = 1033;

/// Every locale that the program knows, ascending by LCID. Constant, so any thread may read it.
std::span<const internal::Locale> locales();

/// The row with this LCID, or null.
const internal::Locale* findLocale(std::uint32_t lcid);

/// The first row (lowest LCID) with this tag, or null. Case matters.
const internal::Locale* findLocale(std::string_view tag);

} // namespace tessaly::i18n
