#pragma once

#include "app/job/InputRemoval.h"
#include "app/job/ProgressText.h"
#include "app/job/SEncryptData.h"
#include "crypto/cipher/ICipherFactory.h"
#include "crypto/job/FileJob.h"
#include "lib/err/ResultCode.h"
#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"
#include "lib/thread/IRunnable.h"
#include "lib/thread/Thread.h"

#include <cstdint>
#include <memory>

class CMsgDispatcher;

namespace thisapp {

/// The engines of the running job; one of the two at most is set.
struct SEncryptor
{
    std::shared_ptr<tessaly::crypto::ISymmetricEncryptor> encryptor;
    std::shared_ptr<tessaly::crypto::ISymmetricDecryptor> decryptor;
};

struct JobProgress
{
    JobPhase phase = JobPhase::Processing;
    std::int64_t processed = 0;
    std::int64_t total = 0;
};

/// One encryption or decryption at a time on a thread of its own. The public operations belong to the
/// owner's thread; the worker reports through the dispatcher's signals, which the owner receives on
/// its own thread. Each shared value has a lock, held only to copy. What a job does with its files is
/// crypto::runFileJob's business.
class CFileJob final : private tessaly::thread::IRunnable, private tessaly::crypto::IFileJobObserver
{
public:
    /// The references must outlive the job.
    CFileJob(const tessaly::crypto::IEncryptorFactory& encryptors,
             const tessaly::crypto::IDecryptorFactory& decryptors, CMsgDispatcher& dispatcher);
    /// Stops and waits without limit.
    ~CFileJob() override;
    /// Stops and waits for at most that long; false when the worker is still at it, which then must not
    /// lose what it works with.
    [[nodiscard]] bool end(unsigned milliseconds);

    /// From a start until the owner, having got the news of the end, calls finish.
    bool isRunning() const { return m_running; }
    /// A job runs, and nobody has stopped it yet. The removal of an input is not to be stopped.
    bool isStoppable() const;

    /// Makes the engine for the next start; false when the factory gives none.
    bool prepare(Operation operation, const AlgSelection& selection);
    /// Takes the secrets with it. Ends with notifyEncryptFinished.
    tessaly::ResultCode start(SEncryptData request);
    /// The job then ends at its next chunk, as cancelled.
    void stop();
    /// To be called on the signal of the end, which is the worker's last act.
    void finish();
    /// Lets go of the engines, of the secret in the outcome, and of the folders, which cannot be unmounted or
    /// ejected as long as they are held.
    void clear();

    /// Deletes the input of a job that has ended, as its data were before they were cleared, if that is safe;
    /// ends with notifyInputRemovalFinished.
    tessaly::ResultCode startInputRemoval(const SEncryptData& ended);

    /// The request, without its secrets once the worker has them, and its outcome.
    SEncryptData data() const { return m_data.get(); }
    JobProgress progress() const { return m_progress.get(); }
    /// How the last startInputRemoval ended.
    InputRemoval inputRemoval() const { return m_inputRemoval.get(); }

private:
    tessaly::ResultCode run(std::uint32_t value, std::uintptr_t task) override;
    void jobStarted(std::int64_t total) override;
    void jobDerivingKey() override;
    void jobProgress(std::int64_t processed, float percent) override;
    void jobFlushing() override;
    bool isJobCancelled() override;

    void runCipher();
    void removeJobInput();
    tessaly::crypto::FileJobOutcome execute(Operation operation, tessaly::crypto::FileJobRequest& request);
    tessaly::ResultCode startThread(std::uintptr_t task);

    template <class T>
    using Shared = tessaly::sync::internal::SafeData<tessaly::sync::Locker, T>;

    const tessaly::crypto::IEncryptorFactory& m_encryptors;
    const tessaly::crypto::IDecryptorFactory& m_decryptors;
    CMsgDispatcher& m_dispatcher;
    Shared<SEncryptor> m_engines;
    Shared<SEncryptData> m_data;
    Shared<bool> m_cancelled;
    Shared<JobProgress> m_progress;
    Shared<InputRemoval> m_inputRemoval;
    bool m_running = false; ///< the owner's thread alone
    /// Last: the thread ends before what it uses.
    tessaly::thread::Thread m_thread;
};

} // namespace thisapp
