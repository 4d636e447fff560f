#pragma once

#include "common/naming/NamingSettings.h"

#include <QDate>
#include <QString>

#include <functional>

/// How an output file gets its name from the input file.
namespace thisapp {

/// Makes a folder with all its missing parents; true when it exists afterwards.
using FolderMaker = std::function<bool(const QString& path)>;

/// The maker that works on the real file system; what it makes survives a power cut.
bool makeFolder(const QString& path);

/// Decryption for a name that carries the encryption extension, in any letter case.
NamingDirection namingDirection(const QString& fileName, const NamingSettings& settings);

/// The output file's name for the name (without folder) of an input file.
QString outputFileName(const QString& fileName, NamingDirection direction, const NamingSettings& settings,
                       const QDate& today);

/// The absolute path proposed for the output, with native separators. Empty when the input path names
/// no file or the proposals are switched off. A default output folder is made if it is missing;
/// if that fails, the output goes beside the input.
QString outputPath(const QString& inputPath, const NamingSettings& settings, const QDate& today,
                   const FolderMaker& folderMaker = makeFolder);

} // namespace thisapp
