#pragma once

class QWidget;

namespace thisapp::desktop {

/// The program's window, which the taskbar shows; null while there is none.
QWidget* mainWindow();

} // namespace thisapp::desktop
