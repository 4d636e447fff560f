#pragma once

#include "ui/style/MessageStyle.h"

#include <QLineEdit>

/// The one-line read-only field in which a dialog reports problems and outcomes.
class CMessageField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit CMessageField(QWidget* parent = nullptr);

    /// In the kind's colour for every colour group; the tool tip has the text whole.
    void showMessage(const QString& text, thisapp::MessageKind kind);
    void clearMessage() { showMessage({}, thisapp::MessageKind::Plain); }

private:
    void recolor();

    thisapp::MessageKind m_kind = thisapp::MessageKind::Plain;
};
