#pragma once

#include <QString>

#include <filesystem>

/// The one place where the texts of the user interface become paths and paths texts, lossless for every
/// file name: what is not UTF-8 travels as lone surrogates (see lib/platform/Path.h), which Qt's own
/// conversions replace.
namespace thisapp {

QString pathText(const std::filesystem::path& path);
std::filesystem::path textPath(const QString& text);

} // namespace thisapp
