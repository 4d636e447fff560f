#pragma once

#include <QString>
#include <QUrl>

namespace thisapp {

/// The folder that holds the file that the text stands for; empty when there is none. Any thread; as
/// slow as the file system.
QUrl folderOf(const QString& text);

/// Shows the folder as the desktop does; nothing for an empty one. GUI thread.
void openFolder(const QUrl& folder);

} // namespace thisapp
