#pragma once

#include <QStringList>

#include <string>
#include <vector>

namespace thisapp {

/// The program's arguments (see platform::programArguments) as texts, with the bytes of file names that are
/// not UTF-8. The URL of a file on this computer, which file managers may hand over, becomes its path, unless
/// a file has that very name.
QStringList argumentTexts(const std::vector<std::string>& arguments);

} // namespace thisapp
