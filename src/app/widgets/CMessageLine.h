#pragma once

#include "app/job/Message.h"

#include <QFrame>

class QLabel;

/// Shows a message with a glyph and in the colour of its kind. It always has room for one line, so that
/// what stands below it keeps its place, and grows when a text needs more.
class CMessageLine : public QFrame
{
    Q_OBJECT

public:
    explicit CMessageLine(QWidget* parent = nullptr);

    void setMessage(thisapp::Message message);
    void clear() { setMessage({}); }
    QString text() const;
    thisapp::MessageKind kind() const { return m_message.kind; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void refresh();

    QLabel* m_glyph;
    QLabel* m_text;
    thisapp::Message m_message;
};
