#include "app/desktop/windows/MainWindow.h"

#include <QApplication>
#include <QMainWindow>

#include <algorithm>

namespace thisapp::desktop {

QWidget* mainWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::ranges::find_if(
        windows, [](const QWidget* window) { return qobject_cast<const QMainWindow*>(window) != nullptr; });
    return found == windows.end() ? nullptr : *found;
}

} // namespace thisapp::desktop
