#include "crypto/job/FileJob.h"

#include "crypto/Guard.h"
#include "crypto/format/FileHeader.h"
#include "crypto/key/RandomBytes.h"
#include "crypto/sealed/OpeningInput.h"
#include "crypto/sealed/SealedFormat.h"
#include "crypto/sealed/SealedKeys.h"
#include "crypto/sealed/SealingOutput.h"
#include "io/IStreamFile.h"
#include "io/OutputFile.h"
#include "lib/err/ErrorCodes.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tessaly::crypto {

namespace {

using io::OutputFile;
using platform::Access;

/// Hands the engine's callbacks on to the job's observer.
template <class Cipher>
class EngineWatch final : public ICipherCallback
{
public:
    /// A password that is needed for another attempt goes when there is progress, so that there is none.
    EngineWatch(Cipher& cipher, FileJobRequest& request, IFileJobObserver& observer, std::int64_t total,
                bool isAttempt)
        : m_cipher(cipher), m_request(request), m_observer(observer), m_total(total), m_isAttempt(isAttempt)
    {
    }

    bool wasStopped() const { return m_stopped; }

    void started(void*) override
    {
        if (!m_isAttempt)
            m_request.password = {}; // the engine has its key
        m_observer.jobStarted(m_total);
        if (m_observer.isJobCancelled())
            m_cipher.stop();
    }
    void progress(std::int64_t processed, float percent, void*) override
    {
        m_request.password = {};
        m_observer.jobProgress(processed, percent);
    }
    void finished(bool stopped, const CryptoResult&, void*) override { m_stopped = stopped; }

private:
    Cipher& m_cipher;
    FileJobRequest& m_request;
    IFileJobObserver& m_observer;
    std::int64_t m_total;
    bool m_isAttempt;
    bool m_stopped = false;
};

template <class... SaltFlag>
CryptoResult process(ISymmetricCipher<SaltFlag...>& cipher, const FileJobRequest& request,
                     io::IStreamBytes& in, io::OStreamBytes& out, ICipherCallback& callback)
{
    return request.passwordMode ? cipher.runWithPassword(&in, &out, request.password.c_str(),
                                                         SaltFlag(request.useSalt)..., &callback, nullptr)
                                : cipher.run(&in, &out, request.key, request.iv, SaltFlag(request.useSalt)...,
                                             &callback, nullptr);
}

template <class... SaltFlag>
CryptoResult process(ISymmetricCipher<SaltFlag...>& cipher, const SealedKeys& keys, io::IStreamBytes& in,
                     io::OStreamBytes& out, ICipherCallback& callback)
{
    return cipher.run(&in, &out, keys.cipherKey, keys.iv, SaltFlag(false)..., &callback, nullptr);
}

/// The size of what is inside if the input is a sealed file; nothing if it cannot be one.
std::optional<std::uint64_t> sizeWithin(const io::IStreamBytes& input)
{
    return innerSize(static_cast<std::uint64_t>(input.size()));
}

/// The input is none of the plain format under that secret, whatever else it is.
bool isNoPlainFile(const CryptoResult& result)
{
    return result == CryptoResult(err::CheckValueDiffers) || result == CryptoResult(err::InputTooShort);
}

CryptoResult readSalt(io::IStreamFile<wchar_t>& in, SecretBytes& salt)
{
    if (const ResultCode rewound = in.rewind(); !rewound.ok())
        return {err::ReadStreamFailed, rewound};
    salt = SecretBytes(SealSaltSize);
    for (std::size_t got = 0; got < salt.size();) {
        std::int64_t more = 0;
        if (!in.read(salt.data() + got, static_cast<std::int64_t>(salt.size() - got), more) || more < 1)
            return {err::ReadStreamFailed, in.lastError()};
        got += static_cast<std::size_t>(more);
    }
    return {};
}

/// An encrypted file is for everybody who may read the plain one, a decrypted one for its owner.
Access accessOf(const ISymmetricEncryptor&, const platform::FileStatus& input)
{
    return Access::noMoreThan(input);
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
    const auto size =
        static_cast<std::int64_t>(sizeWithin(in).value_or(static_cast<std::uint64_t>(in.size())));
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
        return m_outcome.cancelled || !result.ok() ? result : storeOutput();
    }

    CryptoResult makeRoomFirst()
    {
        m_outcome.step = JobStep::RemoveFormerOutput;
        return makeRoom(m_request, m_removedFormer);
    }

    CryptoResult openInput()
    {
        m_outcome.step = JobStep::OpenInput;
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
        m_outcome.step = JobStep::CreateOutput;
        const auto place = std::make_shared<io::FilePlace>();
        ResultCode result = place->open(m_request.output);
        if (result.ok())
            result = m_out.open(place, accessOf(m_cipher, m_outcome.input.status),
                                expectedSize(m_cipher, m_in, m_request.seal));
        m_outcome.output = {place, m_out.status()};
        return result.ok() ? CryptoResult() : CryptoResult(err::WriteStreamFailed, result);
    }

    CryptoResult encipher()
    {
        m_outcome.step = JobStep::Process;
        const CryptoResult result = convert(m_cipher);
        m_request.password = {};
        return result;
    }

    CryptoResult convert(const ISymmetricEncryptor&)
    {
        return m_request.seal ? seal() : runEngine(m_request, m_in, m_out);
    }

    CryptoResult convert(const ISymmetricDecryptor&)
    {
        const std::optional<std::uint64_t> within = sizeWithin(m_in);
        const CryptoResult result = runEngine(m_request, m_in, m_out, within.has_value());
        return within && isNoPlainFile(result) && !m_outcome.cancelled ? unseal(*within) : result;
    }

    template <class Secret>
    CryptoResult runEngine(const Secret& secret, io::IStreamBytes& in, io::OStreamBytes& out,
                           bool isAttempt = false)
    {
        EngineWatch<Cipher> watch(m_cipher, m_request, m_observer, m_in.size(), isAttempt);
        const CryptoResult result = process(m_cipher, secret, in, out, watch);
        m_outcome.cancelled = watch.wasStopped();
        return result;
    }

    CryptoResult seal()
    {
        m_outcome.sealed = true;
        SecretBytes salt;
        SealedKeys keys;
        CryptoResult result = randomBytes(SealSaltSize, salt);
        if (result.ok())
            result = makeKeys(salt, keys);
        if (!result.ok() || m_outcome.cancelled)
            return result;
        SealingOutput out(m_out, salt);
        result = out.open(keys.tagKey);
        if (result.ok())
            result = runEngine(keys, m_in, out);
        if (result.ok() && !m_outcome.cancelled && !out.finish())
            result = {err::WriteStreamFailed, out.lastError()};
        return result;
    }

    CryptoResult unseal(std::uint64_t within)
    {
        SecretBytes salt;
        SealedKeys keys;
        CryptoResult result = readSalt(m_in, salt);
        if (result.ok())
            result = makeKeys(salt, keys);
        if (!result.ok() || m_outcome.cancelled)
            return result;
        OpeningInput in(m_in, within);
        result = in.open(keys.tagKey);
        m_outcome.sealed = result.ok();
        if (result.ok())
            result = runEngine(keys, in, m_out);
        if (result == CryptoResult(err::ReadStreamFailed, err::library(err::SealBroken)))
            result = err::SealBroken;
        return result;
    }

    CryptoResult makeKeys(const SecretBytes& salt, SealedKeys& keys)
    {
        SecretBytes root;
        const CryptoResult result = m_request.passwordMode
                                        ? rootOfPassword(salt, root)
                                        : rootOfKeyAndIv(m_request.key, m_request.iv, m_cipher, salt, root);
        return result.ok() && !m_outcome.cancelled ? expandRoot(root, m_cipher, keys) : result;
    }

    CryptoResult rootOfPassword(const SecretBytes& salt, SecretBytes& root)
    {
        m_observer.jobDerivingKey();
        m_outcome.cancelled = m_observer.isJobCancelled();
        if (m_outcome.cancelled)
            return {};
        const CryptoResult result =
            argon2id(std::exchange(m_request.password, {}), salt, m_request.cost, root);
        m_outcome.cancelled = m_observer.isJobCancelled();
        return result;
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
