#pragma once

#include <cstdint>

namespace tessaly {

inline constexpr const char* OrganisationName = "Tessaly";

/// Identifies a program among those of the organisation; each has settings of its own.
inline constexpr std::uint32_t QuilletProductId = 1;
inline constexpr const char* QuilletName = "Quillet";

/// The name of the window's desktop entry, without ".desktop". Desktops ask for this form; the domain in
/// it is registered to nobody of ours. The build reads it here for the names of the installed files.
inline constexpr const char* QuilletDesktopId = "org.quillet.Quillet";
/// The program's icon in the icon themes.
inline constexpr const char* QuilletIconName = "quillet";

} // namespace tessaly
