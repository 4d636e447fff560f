#include "crypto/job/FileJob.h"

#include "io/IStreamFile.h"
#include "io/OStreamNewFile.h"

#include <utility>

namespace tessaly::crypto {

namespace {

using platform::Access;

/// Hands the engine's callbacks on to the job's observer.
template <class Cipher>
class EngineWatch final : public ICipherCallback
{
public:
    EngineWatch(Cipher& cipher, IFileJobObserver& observer, std::int64_t total)
        : m_cipher(cipher), m_observer(observer), m_total(total)
    {
    }

    bool wasStopped() const { return m_stopped; }

    void started(void*) override
    {
        m_observer.jobStarted(m_total);
        if (m_observer.isJobCancelled())
            m_cipher.stop();
    }
    void progress(std::int64_t processed, float percent, void*) override
    {
        m_observer.jobProgress(processed, percent);
    }
    void finished(bool stopped, const CryptoResult&, void*) override { m_stopped = stopped; }

private:
    Cipher& m_cipher;
    IFileJobObserver& m_observer;
    std::int64_t m_total;
    bool m_stopped = false;
};

CryptoResult process(ISymmetricEncryptor& encryptor, const FileJobRequest& request, io::IStreamBytes& in,
                     io::OStreamBytes& out, ICipherCallback& callback)
{
    return request.passwordMode
               ? encryptor.encryptWithPassword(&in, &out, request.password.c_str(), request.salt, &callback,
                                               nullptr)
               : encryptor.encrypt(&in, &out, request.key, request.iv, request.salt, &callback, nullptr);
}

CryptoResult process(ISymmetricDecryptor& decryptor, const FileJobRequest& request, io::IStreamBytes& in,
                     io::OStreamBytes& out, ICipherCallback& callback)
{
    return request.passwordMode
               ? decryptor.decryptWithPassword(&in, &out, request.password.c_str(), &callback, nullptr)
               : decryptor.decrypt(&in, &out, request.key, request.iv, &callback, nullptr);
}

template <class Cipher>
FileJobOutcome runJob(Cipher& cipher, const FileJobRequest& request, IFileJobObserver& observer,
                      Access access)
{
    FileJobOutcome outcome;
    io::IStreamFile<wchar_t> in;
    if (const ResultCode opened = in.open(request.input); !opened.ok()) {
        outcome.result = opened;
        return outcome;
    }
    outcome.input = in.status();
    io::OStreamNewFile out(request.output, access);
    EngineWatch<Cipher> watch(cipher, observer, in.size());
    outcome.result = process(cipher, request, in, out, watch);
    outcome.cancelled = watch.wasStopped();
    if (outcome.done()) {
        observer.jobFlushing();
        if (const ResultCode flushed = out.finish(); !flushed.ok())
            outcome.result = {err::WriteStreamFailed, flushed};
        outcome.cancelled = observer.isJobCancelled();
    }
    out.close();
    outcome.output = out.created();
    return outcome;
}

} // namespace

FileJobOutcome runFileJob(ISymmetricEncryptor& encryptor, const FileJobRequest& request,
                          IFileJobObserver& observer)
{
    return runJob(encryptor, request, observer, Access::Default);
}

FileJobOutcome runFileJob(ISymmetricDecryptor& decryptor, const FileJobRequest& request,
                          IFileJobObserver& observer)
{
    return runJob(decryptor, request, observer, Access::Private);
}

bool removeOutput(const FileJobRequest& request, const FileJobOutcome& outcome)
{
    return outcome.output.sameFile(platform::fileStatus(request.output)) &&
           platform::removeFile(request.output).ok();
}

} // namespace tessaly::crypto
