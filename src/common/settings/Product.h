#pragma once

#include <cstdint>

namespace tessaly {

inline constexpr const char* OrganisationName = "Tessaly";

/// Identifies a program among those of the organisation; each has settings of its own.
inline constexpr std::uint32_t QuilletProductId = 1;
inline constexpr const char* QuilletName = "Quillet";

} // namespace tessaly
