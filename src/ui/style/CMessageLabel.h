#pragma once

#include "ui/style/MessageStyle.h"

#include <QLabel>

/// A plain text in its kind's colour.
class CMessageLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit CMessageLabel(QWidget* parent = nullptr);

    void showMessage(const QString& text, thisapp::MessageKind kind);

private:
    void recolor();

    thisapp::MessageKind m_kind = thisapp::MessageKind::Plain;
};
