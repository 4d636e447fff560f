#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tessaly::platform {

/// Between the wide paths of our interfaces and the bytes of the system's. On Linux these are UTF-8;
/// a byte that is not travels as a lone surrogate (U+DC80 to U+DCFF), so every name survives.
std::wstring widePath(std::string_view native);
std::string nativePath(std::wstring_view wide);

/// The same for a path, which holds the system's own form.
std::filesystem::path pathFromWide(std::wstring_view wide);
std::wstring wideText(const std::filesystem::path& path);

/// The lower-case letter of Unicode's simple mapping, whatever the user's locale.
wchar_t lowerCase(wchar_t c);

} // namespace tessaly::platform
