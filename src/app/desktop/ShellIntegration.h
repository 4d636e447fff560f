#pragma once

#include <QString>

namespace thisapp::desktop {

/// Makes the file managers' menus of this user agree with the two settings: entries that start
/// `program` (an absolute path) on a file are written, updated or removed. A file that isn't ours is
/// left alone, one that needs no change isn't touched; failures are only logged.
void updateShellIntegration(const QString& program, bool contextMenu, bool sendTo);

} // namespace thisapp::desktop
