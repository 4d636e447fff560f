#pragma once

#include "app/job/CFileJob.h"
#include "app/job/ProgressTracker.h"

#include <QElapsedTimer>
#include <QString>

class CJobFrame;

namespace thisapp {

namespace desktop {
class INotifier;
class ITaskbarProgress;
} // namespace desktop

/// Shows the course of a job: in the form, on the taskbar and, to who looks elsewhere, by a
/// notification at its end.
class JobDisplay
{
public:
    JobDisplay(CJobFrame& form, desktop::ITaskbarProgress& taskbar, desktop::INotifier& notifier);

    /// A job over the file of `size` bytes has been started.
    void begin(const QString& input, std::int64_t size);
    /// The engine begins; what took its time before that says nothing of its speed.
    void showStarted();
    void showProgress(Operation operation, const JobProgress& progress);
    void resetProgress() { m_progress.reset(); }
    void showEnd(const SEncryptData& ended, bool userIsHere);

    /// "40% - report.txt" while a job runs.
    QString title() const;

private:
    CJobFrame& m_form;
    desktop::ITaskbarProgress& m_taskbar;
    desktop::INotifier& m_notifier;
    ProgressTracker m_progress;
    QElapsedTimer m_clock;
    QString m_fileName;
};

} // namespace thisapp
