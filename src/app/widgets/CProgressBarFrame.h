#pragma once

#include <QFrame>
#include <QString>

class CMessageLine;
class QProgressBar;

namespace thisapp {
struct Message;
}

/// The progress bar with its text; hidden while it has nothing to say.
class CProgressBarFrame : public QFrame
{
    Q_OBJECT

public:
    explicit CProgressBarFrame(QWidget* parent = nullptr);

    /// `percent` from 0 to 100; the frame shows itself.
    void setProgress(float percent, thisapp::Message message);
    /// Leaves the bar as it is; the frame shows itself.
    void setMessage(thisapp::Message message);
    /// Value 0 and an empty message.
    void reset();

    float percent() const { return m_percent; }
    QString message() const;

private:
    QProgressBar* m_bar;
    CMessageLine* m_message;
    float m_percent = 0;
};
