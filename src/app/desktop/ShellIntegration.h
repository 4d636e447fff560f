#pragma once

#include <QString>

namespace thisapp::desktop {

/// Makes the file managers' menus of this user agree with the two settings and the present language: for
/// the managers that are there, entries that start `program` (an absolute path) on the selected files are
/// written or updated; all others of ours are removed, with the folders that this leaves empty. A file
/// that isn't ours is left alone, one that needs no change isn't touched; failures are only logged. A
/// program in its build folder leaves those of an installed one alone.
void updateShellIntegration(const QString& program, bool contextMenu, bool sendTo);

} // namespace thisapp::desktop
