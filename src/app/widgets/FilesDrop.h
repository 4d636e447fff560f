#pragma once

class IFilesDragDropEvent;
class QDragEnterEvent;
class QDragMoveEvent;
class QDropEvent;

namespace thisapp {

/// Who gets the files that are dropped on a widget, and under which id.
struct FilesDropTarget
{
    IFilesDragDropEvent* receiver = nullptr; ///< may be null
    int id = 0;
};

/// Accepts the proposed action of a drag that carries URLs, refuses every other; true when accepted.
bool acceptFiles(QDragEnterEvent& event);

/// Settles on an action that leaves the files with their owner: a program that hands them over as a
/// move deletes them afterwards. Refuses what could only be moved.
void keepFiles(QDragMoveEvent& event);

/// Hands the dropped URLs to the receiver.
void dropFiles(QDropEvent& event, const FilesDropTarget& target);

} // namespace thisapp
