#pragma once

#include "ui/style/MessageStyle.h"

#include <QLabel>
#include <QTimer>

/// A plain text in its kind's colour, which a screen reader speaks when it changes.
class CMessageLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit CMessageLabel(QWidget* parent = nullptr);

    void showMessage(const QString& text, thisapp::MessageKind kind);

private:
    void recolor();

    thisapp::MessageKind m_kind = thisapp::MessageKind::Plain;
    QTimer m_announcement;
};
