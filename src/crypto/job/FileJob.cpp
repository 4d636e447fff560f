#include "crypto/job/FileJob.h"

#include "crypto/Guard.h"
#include "crypto/format/FileHeader.h"
#include "crypto/job/Conversion.h"
#include "crypto/sealed/SealedFormat.h"
#include "io/IStreamFile.h"
#include "io/OutputFile.h"
#include "lib/err/ErrorCodes.h"

#include <algorithm>
#include <utility>

namespace tessaly::crypto {

namespace {

using io::OutputFile;
using platform::Access;

/// An encrypted file is for everybody who may read the plain one, a decrypted one for its owner.
Access accessOf(const ISymmetricEncryptor&, const platform::FileStatus& input)
{
    return input.exists() ? Access::noMoreThan(input) : Access::byUmask();
}

Access accessOf(const ISymmetricDecryptor&, const platform::FileStatus&)
{
    return Access::ownerOnly();
}

/// Of the output in bytes, at the least; that of a decryption stands in the header, which is yet to be read.
std::int64_t expectedSize(const ISymmetricEncryptor& encryptor, const io::IStreamBytes& in, bool seal)
{
    const std::uint64_t plain = encryptedSize(static_cast<std::uint64_t>(in.size()), encryptor.blockLength());
    return static_cast<std::int64_t>(seal ? sealedSize(plain) : plain);
}

std::int64_t expectedSize(const ISymmetricDecryptor&, const io::IStreamBytes& in, bool)
{
    const auto whole = static_cast<std::uint64_t>(in.size());
    const auto size = static_cast<std::int64_t>(innerSize(whole).value_or(whole));
    return std::max<std::int64_t>(size - static_cast<std::int64_t>(HeaderSize), 0);
}

/// One job on its way through its steps; each notes itself in the outcome before it begins.
template <class Cipher>
class Run
{
public:
    Run(Cipher& cipher, FileJobRequest& request, IFileJobObserver& observer)
        : m_cipher(cipher), m_request(request), m_observer(observer)
    {
    }

    FileJobOutcome run()
    {
        m_outcome.result = guarded(err::library(err::ProcessingFailed), [this] { return work(); });
        const bool wasThere = m_removedFormer || m_out.isBegun();
        if (!m_outcome.done())
            m_outcome.outputDeleted = m_out.discard() && wasThere;
        return std::move(m_outcome);
    }

private:
    CryptoResult work()
    {
        CryptoResult result = makeRoomFirst();
        if (result.ok())
            result = openInput();
        if (result.ok())
            result = createOutput();
        if (result.ok())
            result = encipher();
        return m_outcome.cancelled || !result.ok() || m_request.sink ? result : storeOutput();
    }

    CryptoResult makeRoomFirst()
    {
        if (m_request.sink)
            return {};
        m_outcome.step = JobStep::RemoveFormerOutput;
        return makeRoom(m_request, m_removedFormer);
    }

    CryptoResult openInput()
    {
        m_outcome.step = JobStep::OpenInput;
        if (m_request.source)
            return {};
        const auto place = std::make_shared<io::FilePlace>();
        platform::File file;
        ResultCode result = place->open(m_request.input);
        if (result.ok())
            result = place->folder().openForReading(place->name(), file);
        if (result.ok())
            result = m_in.open(std::move(file));
        m_outcome.input = {place, m_in.status()};
        return result;
    }

    CryptoResult createOutput()
    {
        if (m_request.sink)
            return {};
        m_outcome.step = JobStep::CreateOutput;
        const auto place = std::make_shared<io::FilePlace>();
        m_out.protect(m_outcome.input.status);
        ResultCode result = place->open(m_request.output);
        if (result.ok())
            result = m_out.open(place, accessOf(m_cipher, m_outcome.input.status),
                                expectedSize(m_cipher, in(), m_request.seal));
        m_outcome.output = {place, m_out.status()};
        return result.ok() ? CryptoResult() : CryptoResult(err::WriteStreamFailed, result);
    }

    CryptoResult encipher()
    {
        m_outcome.step = JobStep::Process;
        const Conversion conversion = convert(m_cipher, m_request, in(), out(), m_observer);
        m_outcome.cancelled = conversion.cancelled;
        m_outcome.sealed = conversion.sealed;
        m_outcome.fittingAlgorithm = conversion.fittingAlgorithm;
        m_outcome.root = conversion.root;
        return conversion.result;
    }

    CryptoResult storeOutput()
    {
        m_outcome.step = JobStep::StoreOutput;
        m_observer.jobFlushing();
        const auto existing = m_request.existing == ExistingOutput::ReplaceAtEnd
                                  ? OutputFile::Existing::Replace
                                  : OutputFile::Existing::Keep;
        const ResultCode stored = m_out.commit(existing, [this] { return !m_observer.isJobCancelled(); });
        m_outcome.output.status = m_out.status();
        m_outcome.cancelled = stored == err::library(err::OperationStopped);
        return stored.ok() || m_outcome.cancelled ? CryptoResult()
                                                  : CryptoResult(err::WriteStreamFailed, stored);
    }

    io::IRewindableBytes& in() { return m_request.source ? *m_request.source : m_in; }
    io::OStreamBytes& out() { return m_request.sink ? *m_request.sink : m_out; }

    Cipher& m_cipher;
    FileJobRequest& m_request;
    IFileJobObserver& m_observer;
    io::IStreamFile<wchar_t> m_in;
    OutputFile m_out;
    FileJobOutcome m_outcome;
    bool m_removedFormer = false;
};

template <class Cipher>
FileJobOutcome runJob(Cipher& cipher, FileJobRequest& request, IFileJobObserver& observer) noexcept
{
    FileJobOutcome outcome = Run<Cipher>(cipher, request, observer).run();
    request.wipeSecrets();
    return outcome;
}

} // namespace

void FileJobRequest::wipeSecrets()
{
    password = {};
    key = {};
    iv = {};
    root = {};
}

bool FileJobOutcome::failedAtOutput() const
{
    if (step == JobStep::Process)
        return result.first() == err::library(err::WriteStreamFailed);
    return step != JobStep::OpenInput;
}

FileJobOutcome runFileJob(ISymmetricEncryptor& encryptor, FileJobRequest& request,
                          IFileJobObserver& observer) noexcept
{
    return runJob(encryptor, request, observer);
}

FileJobOutcome runFileJob(ISymmetricDecryptor& decryptor, FileJobRequest& request,
                          IFileJobObserver& observer) noexcept
{
    return runJob(decryptor, request, observer);
}

ResultCode makeRoom(const FileJobRequest& request, bool& removed)
{
    removed = false;
    if (request.existing != ExistingOutput::RemoveFirst)
        return {};
    io::FilePlace place;
    if (const ResultCode opened = place.open(request.output); !opened.ok())
        return opened;
    const platform::FileStatus former = place.status();
    if (former.isLink || former.kind != platform::FileKind::Regular)
        return {}; // gone already, or not what the user agreed to: the end of the job will find it
    if (former.sameFile(platform::fileStatus(request.input)))
        return err::library(err::OutputMatchesInput);
    const ResultCode result = place.folder().remove(place.name());
    removed = !place.status().sameFile(former);
    return removed ? ResultCode{} : result;
}

} // namespace tessaly::crypto
