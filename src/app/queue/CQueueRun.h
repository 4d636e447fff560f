#pragma once

#include "app/job/SEncryptData.h"
#include "app/queue/CQueueRemoval.h"
#include "app/queue/FileQueue.h"
#include "app/queue/QueueLook.h"

#include <QObject>

#include <functional>
#include <future>
#include <optional>
#include <utility>
#include <vector>

class CDiskWork;

namespace thisapp {
class CFileJob;
}

/// Processes the files of a queue, one after the other, each as a job of its own. A failure does not stop
/// the others. GUI thread.
class CQueueRun final : public QObject
{
    Q_OBJECT

public:
    /// All must outlive the run. The job is the run's until its end.
    CQueueRun(thisapp::FileQueue& queue, thisapp::CFileJob& job, CDiskWork& disk);

    /// `request` has everything but the files, and its secrets are kept until the end of the run. The
    /// queue has begun its run.
    void start(thisapp::SEncryptData request);
    /// The running file is given up, and so are the others.
    void stop();
    /// The news of its job, while it is running.
    void showJobProgress();
    void takeJobEnd();
    bool isRunning() const { return m_isRunning; }
    bool isStopped() const { return m_isStopped; }

    /// The encryptions that are done, to delete their inputs. None of them keeps a folder open.
    std::vector<CQueueRemoval::Candidate> takeEncrypted() { return std::exchange(m_encrypted, {}); }
    /// The running file, for who shows it.
    std::optional<std::size_t> current() const { return m_current; }

signals:
    /// Something of the queue has changed.
    void notifyNews();
    void notifyEnded();

private slots:
    void onUiLooked();

private:
    void next();
    void startJob(const thisapp::EntryLook& look);
    /// Of the current file.
    void endWith(thisapp::EntryState state, std::function<QString()> reason);
    void end();

    thisapp::FileQueue& m_queue;
    thisapp::CFileJob& m_job;
    CDiskWork& m_disk;
    thisapp::SEncryptData m_request;
    std::shared_future<thisapp::EntryLook> m_look;
    std::optional<std::size_t> m_current;
    std::vector<CQueueRemoval::Candidate> m_encrypted;
    bool m_isRunning = false;
    bool m_isStopped = false;
};
