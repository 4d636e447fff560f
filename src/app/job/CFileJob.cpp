#include "app/job/CFileJob.h"

#include "app/job/CMsgDispatcher.h"
#include "common/errors/ErrorText.h"
#include "lib/err/ErrorCodes.h"
#include "lib/thread/Deliver.h"

#include <new>
#include <utility>

namespace thisapp {

using namespace tessaly;

namespace {

/// What the thread is started for.
enum Task : std::uintptr_t { Cipher, RemoveInput };

/// In words for the log. Empty on success, and without memory for them.
std::string failureIn(const crypto::FileJobOutcome& outcome)
{
    try {
        return errorText(outcome.result).toStdString();
    } catch (const std::bad_alloc&) {
        return {};
    }
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

bool CFileJob::end(unsigned milliseconds)
{
    stop();
    return m_thread.wait(milliseconds) != thread::WaitStatus::TimedOut;
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
        m_data.with([](SEncryptData& data) { data.request.wipeSecrets(); });
        bool removed = false; // the output that was to be replaced goes as if the job had begun
        (void)crypto::makeRoom(m_data.get().request, removed);
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
    m_data.with([](SEncryptData& data) {
        data.outcome.root = {};
        data.outcome.input.place = data.outcome.output.place = nullptr;
    });
}

ResultCode CFileJob::startInputRemoval(const SEncryptData& ended)
{
    m_data.set(ended);
    m_progress.set({JobPhase::RemovingInput});
    const ResultCode started = startThread(RemoveInput);
    if (!started.ok())
        clear();
    return started;
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
        thread::deliver([this] { emit m_dispatcher.notifyEncryptFinished(); });
    } else {
        removeJobInput();
        thread::deliver([this] { emit m_dispatcher.notifyInputRemovalFinished(); });
    }
    return {};
}

/// No exception leaves it, as with the cipher.
void CFileJob::removeJobInput()
{
    InputRemoval removal;
    try {
        removal = removeInput(m_data.get());
    } catch (...) {
        removal.error = err::library(err::RunnableThrew);
    }
    m_inputRemoval.set(removal);
    clear();
}

/// No exception leaves it: whatever happens, the outcome says how the job ended.
void CFileJob::runCipher()
{
    crypto::FileJobOutcome outcome;
    try {
        Operation operation{};
        crypto::FileJobRequest request = m_data.with([&operation](SEncryptData& data) {
            crypto::FileJobRequest copy = data.request;
            data.request.wipeSecrets();
            operation = data.operation;
            return copy;
        });
        outcome = execute(operation, request);
    } catch (...) {
        outcome.result = err::library(err::RunnableThrew);
    }
    std::string text = failureIn(outcome);
    m_data.with([&](SEncryptData& data) {
        data.request.wipeSecrets();
        data.outcome = std::move(outcome);
        data.errorText = std::move(text);
    });
}

crypto::FileJobOutcome CFileJob::execute(Operation operation, crypto::FileJobRequest& request)
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

void CFileJob::jobDerivingKey()
{
    m_progress.with([](JobProgress& progress) { progress.phase = JobPhase::DerivingKey; });
    emit m_dispatcher.notifyEncryptProgress();
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
