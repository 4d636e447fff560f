#pragma once

#include <QStringList>

#include <span>

namespace thisapp {

/// The program's arguments as texts, with the bytes of file names that are not UTF-8. The URL of a file on
/// this computer, which file managers may hand over, becomes its path, unless a file has that very name.
QStringList argumentTexts(std::span<const char* const> arguments);

} // namespace thisapp
