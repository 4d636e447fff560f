#pragma once

#include <QString>

#include <string>

/// Between the texts of the fields and the system's paths, lossless for every file name: what is not
/// UTF-8 travels as lone surrogates (see lib/platform/Path.h), which Qt's own conversions replace.
namespace thisapp {

QString pathText(const std::wstring& path);
QString pathText(const std::string& native);
std::wstring widePath(const QString& text);
std::string nativePath(const QString& text);

} // namespace thisapp
