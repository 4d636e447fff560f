#pragma once

#include "lib/i18n/locale/Locale.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tessaly::i18n {

/// Which of a text's plural forms goes with the number, counted from 0 in the order in which Qt's tools
/// write them.
std::size_t pluralForm(const internal::Locale& locale, std::uint32_t number);

/// The source text under which a string bundle holds that form.
std::string formKey(std::string_view source, std::size_t form);

} // namespace tessaly::i18n
