#pragma once

#include <QRegularExpression>
#include <QString>

#include <optional>

/// What the texts among the settings have to be.
namespace thisapp {

/// Matches what may be added to a file name: a separator would move the file to another folder.
QRegularExpression namePartPattern();
bool isNamePart(const QString& text);

/// The folder that the text names: an absolute path as it stands, "~" and "~/..." below the user's home
/// folder, a file URL of this computer as its path, an empty text as it is. Nothing for a relative
/// path, which would mean another folder with every start, another URL, another user's home.
std::optional<QString> folderPath(const QString& text);

} // namespace thisapp
