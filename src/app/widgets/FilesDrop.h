#pragma once

class IFilesDragDropEvent;
class QDragMoveEvent;
class QDropEvent;

namespace thisapp {

/// Who gets the files that are dropped on a widget, and under which id.
struct FilesDropTarget
{
    IFilesDragDropEvent* receiver = nullptr; ///< may be null
    int id = 0;
};

/// Accepts a drag that carries URLs, refuses every other; true when accepted.
bool acceptFiles(QDragMoveEvent& event);

/// Hands the dropped URLs to the receiver.
void dropFiles(QDropEvent& event, const FilesDropTarget& target);

} // namespace thisapp
