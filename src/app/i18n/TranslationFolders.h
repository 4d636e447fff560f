#pragma once

#include <QString>

#include <string>
#include <vector>

namespace thisapp {

/// Where translations are looked for, the preferred folder first: the user's own ones, then those
/// installed with the program, or, where it has been built only, those in the folder of the program.
std::vector<std::wstring> translationFolders(const QString& programFolder);

} // namespace thisapp
