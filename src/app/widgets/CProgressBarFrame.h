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
    /// Stands below the progress, whatever that does, until the next notice or a reset; the frame shows
    /// itself.
    void setNotice(thisapp::Message notice);
    /// Value 0 and no texts.
    void reset();

    float percent() const { return m_percent; }
    QString message() const;
    QString notice() const;

private:
    QProgressBar* m_bar;
    CMessageLine* m_message;
    CMessageLine* m_notice;
    float m_percent = 0;
};
