#include "app/job/CFileJob.h"

#include "app/job/CMsgDispatcher.h"
#include "common/errors/ErrorText.h"
#include "lib/err/ErrorCodes.h"
#include "lib/platform/File.h"
#include "lib/platform/Path.h"

#include <utility>

namespace thisapp {

using namespace tessaly;

namespace {

/// What the thread is started for.
enum Task : std::uintptr_t { Cipher, RemoveInput };

crypto::FileJobRequest engineRequest(SEncryptData& data)
{
    return {platform::widePath(data.inputPath),
            platform::widePath(data.outputPath),
            data.passwordMode,
            data.useSalt,
            std::exchange(data.password, {}),
            std::exchange(data.key, {}),
            std::exchange(data.iv, {})};
}

/// Makes room for a new output; fine when there is nothing any more.
ResultCode removeFormerOutput(const std::wstring& path)
{
    const ResultCode result = platform::removeFile(path);
    return platform::fileStatus(path).kind == platform::FileKind::Missing ? ResultCode{} : result;
}

} // namespace

CFileJob::CFileJob(const crypto::IEncryptorFactory& encryptors, const crypto::IDecryptorFactory& decryptors,
                   CMsgDispatcher& dispatcher)
    : m_encryptors(encryptors), m_decryptors(decryptors), m_dispatcher(dispatcher)
{
    m_thread.setRunnable(this);
}

CFileJob::~CFileJob()
{
    stop();
    m_thread.wait();
}

bool CFileJob::isStoppable() const
{
    return m_running && !m_cancelled.get() && m_progress.get().phase != JobPhase::RemovingInput;
}

bool CFileJob::prepare(Operation operation, const AlgSelection& selection)
{
    std::unique_ptr<crypto::ISymmetricEncryptor> encryptor;
    std::unique_ptr<crypto::ISymmetricDecryptor> decryptor;
    const crypto::CryptoResult made =
        operation == Operation::Encrypt
            ? m_encryptors.create(selection.library, selection.algorithm, &encryptor)
            : m_decryptors.create(selection.library, selection.algorithm, &decryptor);
    m_engines.set({std::move(encryptor), std::move(decryptor)});
    return made.ok();
}

ResultCode CFileJob::start(SEncryptData request)
{
    m_data.set(std::move(request));
    m_cancelled.set(false);
    m_progress.set({});
    const ResultCode started = startThread(Cipher);
    if (!started.ok()) {
        m_data.with([](SEncryptData& data) { data.wipeSecrets(); });
        const SEncryptData unstarted = m_data.get();
        if (unstarted.outputFlag) // the output that was to be replaced, as if the job had begun
            (void)platform::removeFile(platform::widePath(unstarted.outputPath));
    }
    return started;
}

void CFileJob::stop()
{
    m_cancelled.set(true);
    m_engines.with([](SEncryptor& engines) {
        if (engines.encryptor)
            engines.encryptor->stop();
        if (engines.decryptor)
            engines.decryptor->stop();
    });
}

void CFileJob::finish()
{
    m_thread.wait();
    m_running = false;
}

void CFileJob::clear()
{
    m_engines.set({});
}

ResultCode CFileJob::startInputRemoval()
{
    m_progress.set({JobPhase::RemovingInput});
    return startThread(RemoveInput);
}

ResultCode CFileJob::startThread(std::uintptr_t task)
{
    const ResultCode started = m_thread.start(task);
    m_running = m_running || started.ok();
    return started;
}

ResultCode CFileJob::run(std::uint32_t, std::uintptr_t task)
{
    if (task == Cipher) {
        runCipher();
        emit m_dispatcher.notifyEncryptFinished();
    } else {
        m_inputRemoval.set(removeInput(m_data.get()));
        emit m_dispatcher.notifyInputRemovalFinished();
    }
    return {};
}

void CFileJob::runCipher()
{
    SEncryptData request = m_data.with([](SEncryptData& data) {
        SEncryptData copy = data;
        data.wipeSecrets();
        data.outcome = {};
        return copy;
    });
    const JobOutcome outcome = execute(request);
    m_data.with([&](SEncryptData& data) {
        data.outputFlag = request.outputFlag;
        data.outcome = outcome;
    });
}

JobOutcome CFileJob::execute(SEncryptData& request)
{
    const crypto::FileJobRequest job = engineRequest(request);
    JobOutcome outcome;
    const bool replacing = request.outputFlag;
    if (replacing)
        outcome.result = removeFormerOutput(job.output);
    if (!outcome.result.ok()) {
        request.outputFlag = false;
        outcome.errorText = errorText(outcome.result).toStdString();
        return outcome;
    }

    const crypto::FileJobOutcome ended = runEngine(request.operation, job);
    const bool created = ended.output.kind != platform::FileKind::Missing;
    request.outputFlag = replacing || created;
    outcome.cancelled = ended.cancelled;
    outcome.result = ended.result;
    outcome.errorText = errorText(ended.result).toStdString();
    outcome.input = ended.input;
    outcome.output = ended.output;
    if (!outcome.done() && request.outputFlag) {
        const bool gone = platform::fileStatus(job.output).kind == platform::FileKind::Missing;
        outcome.outputRemoved = gone || crypto::removeOutput(job, ended);
    }
    return outcome;
}

crypto::FileJobOutcome CFileJob::runEngine(Operation operation, const crypto::FileJobRequest& request)
{
    // References of its own: the owner may clear the job while the engines are at work.
    const SEncryptor engines = m_engines.get();
    if (operation == Operation::Encrypt && engines.encryptor)
        return crypto::runFileJob(*engines.encryptor, request, *this);
    if (operation == Operation::Decrypt && engines.decryptor)
        return crypto::runFileJob(*engines.decryptor, request, *this);
    crypto::FileJobOutcome outcome;
    outcome.result = err::EngineNotInitialized;
    return outcome;
}

void CFileJob::jobStarted(std::int64_t total)
{
    m_progress.set({JobPhase::Processing, 0, total});
    emit m_dispatcher.notifyEncryptStarted();
}

void CFileJob::jobProgress(std::int64_t processed, float)
{
    m_progress.with([processed](JobProgress& progress) { progress.processed = processed; });
    emit m_dispatcher.notifyEncryptProgress();
}

void CFileJob::jobFlushing()
{
    m_progress.with([](JobProgress& progress) {
        progress.phase = JobPhase::Flushing;
        progress.processed = progress.total;
    });
    emit m_dispatcher.notifyEncryptProgress();
}

bool CFileJob::isJobCancelled()
{
    return m_cancelled.get();
}

} // namespace thisapp
