#pragma once

#include "app/job/CFileJob.h"
#include "app/job/ProgressTracker.h"

#include <QElapsedTimer>
#include <QString>

#include <functional>

class CJobFrame;

namespace thisapp {

class FileQueue;
struct Message;

namespace desktop {
class INotifier;
class ITaskbarProgress;
} // namespace desktop

/// Shows the course of a job, or of a queue of them: in the form, on the taskbar and, to who looks
/// elsewhere, by a notification at its end.
class JobDisplay
{
public:
    /// `openFolder` shows where a file stands; it may be called as long as the form lives.
    JobDisplay(CJobFrame& form, desktop::ITaskbarProgress& taskbar, desktop::INotifier& notifier,
               std::function<void(const QString& file)> openFolder);

    /// Work on that many bytes has been started, under a name for the title.
    void begin(const QString& name, std::int64_t size);
    void setName(const QString& name) { m_name = name; }
    /// There is more or less to do than was thought.
    void setTotal(std::int64_t size) { m_progress.setTotal(size); }
    /// The engine begins; what took its time before that says nothing of its speed.
    void showStarted();
    void showProgress(Operation operation, const JobProgress& progress);
    void resetProgress() { m_progress.reset(); }
    void showEnd(const SEncryptData& ended);
    void showQueueEnd(Message result, const FileQueue& queue, bool isStopped);

    /// "40% - report.txt" while a job runs.
    QString title() const;

private:
    void hideProgress();
    /// Of so many bytes.
    void showSummary(std::int64_t bytes);
    void notify(const QString& body, const std::function<void()>& openFolder);

    CJobFrame& m_form;
    desktop::ITaskbarProgress& m_taskbar;
    desktop::INotifier& m_notifier;
    const std::function<void(const QString& file)> m_openFolder;
    ProgressTracker m_progress;
    QElapsedTimer m_clock;
    QString m_name;
};

} // namespace thisapp
