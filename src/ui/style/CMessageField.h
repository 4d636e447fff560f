#pragma once

#include "ui/style/MessageStyle.h"

#include <QLineEdit>
#include <QTimer>

/// The one-line read-only field in which a dialog reports problems and outcomes, also to a screen
/// reader. Tab reaches it only while it has something to tell.
class CMessageField final : public QLineEdit
{
    Q_OBJECT

public:
    explicit CMessageField(QWidget* parent = nullptr);

    /// In the kind's colour for every colour group; the tool tip has the text whole.
    void showMessage(const QString& text, thisapp::MessageKind kind);
    void clearMessage() { showMessage({}, thisapp::MessageKind::Plain); }

private:
    void fitText();
    void recolor();

    thisapp::MessageKind m_kind = thisapp::MessageKind::Plain;
    QTimer m_announcement;
};
