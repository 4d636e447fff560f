#pragma once

#include "app/job/JobRequest.h"
#include "app/queue/CQueueRemoval.h"
#include "app/queue/CQueueRun.h"
#include "app/queue/FileQueue.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <future>
#include <vector>

class CInputField;
class CJobFrame;

namespace thisapp {
class JobDisplay;
}

/// The window's work on more than one file: how the list is filled, processed, shown and emptied. A
/// single file goes to the fields, whichever way it came. GUI thread.
class CQueueJob final : public QObject
{
    Q_OBJECT

public:
    /// What it works with; all must outlive it.
    struct Parts
    {
        thisapp::FileQueue& queue;
        CJobFrame& form;
        CInputField& input;
        CDiskWork& disk;
        thisapp::CFileJob& job;
        thisapp::JobDisplay& display;
    };

    explicit CQueueJob(const Parts& parts);

    /// The window works on a list, not on the file of the fields.
    bool isActive() const { return !m_parts.queue.isEmpty(); }
    bool isRunning() const { return m_run.isRunning() || m_removal.isRunning(); }
    bool isStoppable() const { return m_run.isRunning() && !m_run.isStopped(); }

    /// Files that the user gives: more for a list that nothing has been done with yet, else instead of
    /// what there was.
    void take(const QStringList& files);
    /// Waits for the look at files that were given; false, and told, when the file system doesn't answer.
    bool settle();
    /// What couldn't be taken is told in the request's messages, too. False when nothing could.
    bool showLeftOut();
    /// Of the files that such a request is about: all, or after a run those that it hasn't done.
    QStringList names(thisapp::Operation operation) const;
    /// `request` has everything but the files.
    void start(thisapp::SEncryptData request, thisapp::OnEncrypted onEncrypted);
    void stop() { m_run.stop(); }
    /// The news of the job while the list is running.
    void showJobProgress() { m_run.showJobProgress(); }
    void takeJobEnd() { m_run.takeJobEnd(); }
    void clear();

    /// What the title says of the list.
    QString title() const;

signals:
    /// Whether there is a list or a run may be otherwise than before.
    void notifyChanged();

private slots:
    void onUiLooked();
    void onUiCurrent(int row);
    void onUiRemove(const QList<int>& rows);
    void onUiNews();
    void onUiShow();
    void onUiEnded();
    void onUiRemovalEnded();

private:
    void show();
    bool redoesAll(thisapp::Operation operation) const;
    void leaveOutEncrypted();
    /// What is left of the list is a file for the fields.
    void useFields();
    bool confirmRemoval(const std::vector<CQueueRemoval::Candidate>& removable);

    const Parts m_parts;
    CQueueRun m_run;
    CQueueRemoval m_removal;
    QTimer m_timer;
    std::shared_future<thisapp::QueueLook> m_look;
    thisapp::Operation m_operation = thisapp::Operation::Encrypt;
    bool m_redoAll = true;
    thisapp::Message m_leftOut;
    bool m_isNoneTaken = false;
};
