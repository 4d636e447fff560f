#pragma once

#include "app/job/Message.h"

#include <QFrame>
#include <QTimer>

class CElidedLabel;
class CLinkLabel;
class QLabel;

/// Shows a message with a glyph and in the colour of its kind. It always has room for one line, so that
/// what stands below it keeps its place, and grows when a text needs more.
class CMessageLine : public QFrame
{
    Q_OBJECT

public:
    explicit CMessageLine(QWidget* parent = nullptr);

    /// New messages are spoken by a screen reader. Off at first.
    void setAnnounced(bool announced) { m_isAnnounced = announced; }
    void setMessage(thisapp::Message message);
    /// What the field holds that the line stands beside: a message about that file needn't name it.
    void setFieldText(const QString& text);
    void clear() { setMessage({}); }
    QString text() const;
    /// The second line: the files that the message is about.
    QString detail() const;
    thisapp::MessageKind kind() const { return m_message.kind; }

protected:
    void changeEvent(QEvent* event) override;

private slots:
    void onUiFollow();

private:
    void refresh();

    QLabel* m_glyph;
    QLabel* m_text;
    CElidedLabel* m_detail;
    CLinkLabel* m_link;
    QString m_fieldText;
    thisapp::Message m_message;
    bool m_isAnnounced = false;
    QTimer m_speech;
};
