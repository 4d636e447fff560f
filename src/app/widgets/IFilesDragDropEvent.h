#pragma once

#include <QList>
#include <QUrl>

/// Receives the files that are dropped on a widget.
class IFilesDragDropEvent
{
public:
    virtual ~IFilesDragDropEvent() = default;
    /// `widgetId` is the id that the widget was given.
    virtual void filesDropped(int widgetId, const QList<QUrl>& urls) = 0;
};
