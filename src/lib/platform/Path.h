#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tessaly::platform {

/// Between the wide paths of our interfaces and names as bytes, which are UTF-8. On Linux the bytes are the
/// system's; one that is not UTF-8 travels as a lone surrogate (U+DC80 to U+DCFF). On Windows the wide
/// characters are; a lone surrogate travels as three bytes. So every name survives.
std::wstring widePath(std::string_view native);
std::string nativePath(std::wstring_view wide);

/// The same for a path, which holds the system's own form.
std::filesystem::path pathFromWide(std::wstring_view wide);
std::wstring wideText(const std::filesystem::path& path);

/// The same between the bytes and a path; on Linux these are the same bytes.
std::filesystem::path pathFromNative(std::string_view native);
std::string nativeText(const std::filesystem::path& path);

/// From the root on; as given where the system cannot tell.
std::filesystem::path absolutePath(const std::filesystem::path& path);
/// The one path of a folder, whatever links lead to it, and otherwise as absolutePath.
std::filesystem::path realFolder(const std::filesystem::path& folder);

/// The path of a file URL, of which `host` is the name of the computer and `path` what follows it, with its
/// escapes resolved. Empty when such a file cannot be opened from here.
std::filesystem::path pathFromUrl(std::string_view host, std::string_view path);
/// What follows "file://" in the URL of an absolute path, before any escapes.
std::string urlText(const std::filesystem::path& path);

/// The lower-case letter of Unicode's simple mapping, whatever the user's locale.
wchar_t lowerCase(wchar_t c);

} // namespace tessaly::platform
