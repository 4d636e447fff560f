#pragma once

#include "app/job/InputRemoval.h"
#include "app/job/SEncryptData.h"

#include <QObject>

#include <cstddef>
#include <functional>
#include <future>
#include <optional>
#include <vector>

class CDiskWork;

/// Deletes the inputs of a queue's encryptions where that is safe, after one question for all. GUI thread;
/// the work is done on others.
class CQueueRemoval final : public QObject
{
    Q_OBJECT

public:
    struct Candidate
    {
        std::size_t index; ///< in the queue
        thisapp::SEncryptData ended;
    };
    struct Result
    {
        std::size_t index;
        thisapp::InputRemoval removal;
    };
    /// Asks whether that many may be deleted.
    using Confirm = std::function<bool(const std::vector<Candidate>& removable)>;

    explicit CQueueRemoval(CDiskWork& disk);

    /// Ends with notifyEnded, in any case after the return.
    void start(std::vector<Candidate> candidates, Confirm confirm);
    bool isRunning() const { return m_isRunning; }
    /// Of those that were to be deleted, and of those that can't be; none when the user said no.
    const std::vector<Result>& results() const { return m_results; }

signals:
    void notifyEnded();

private slots:
    void onUiAnswered();

private:
    using Reasons = std::vector<std::optional<thisapp::KeepReason>>;

    void remove(Reasons reasons);
    void end(const std::vector<Result>& removed);

    CDiskWork& m_disk;
    Confirm m_confirm;
    std::vector<Candidate> m_candidates;
    std::shared_future<Reasons> m_look;
    std::shared_future<std::vector<Result>> m_removal;
    std::vector<std::size_t> m_removing; ///< the indexes of those that are being removed
    std::vector<Result> m_results;
    bool m_isRunning = false;
};
