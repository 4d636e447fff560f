#pragma once

#include <QScrollArea>

/// What stands in a dialog above its message and buttons: as large as it wants to be where the screen
/// has the room, and scrolled where not. Shows whatever gets the focus.
class CScrollPage final : public QScrollArea
{
    Q_OBJECT

public:
    explicit CScrollPage(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};
