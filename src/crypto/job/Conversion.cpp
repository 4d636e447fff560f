#include "crypto/job/Conversion.h"

#include "crypto/job/AlgorithmSearch.h"
#include "crypto/job/RootOfRequest.h"
#include "crypto/key/RandomBytes.h"
#include "crypto/sealed/OpeningInput.h"
#include "crypto/sealed/SealedFormat.h"
#include "crypto/sealed/SealedKeys.h"
#include "crypto/sealed/SealingOutput.h"
#include "lib/err/ErrorCodes.h"

#include <optional>
#include <utility>

namespace tessaly::crypto {

namespace {

using Input = io::IRewindableBytes;

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

/// The input is none of the plain format under that secret, whatever else it is.
bool isNoPlainFile(const CryptoResult& result)
{
    return result == CryptoResult(err::CheckValueDiffers) || result == CryptoResult(err::InputTooShort);
}

/// A wrong tag, or an inner file that ends before the length in its header.
bool isBroken(const CryptoResult& result)
{
    return result == CryptoResult(err::ReadStreamFailed, err::library(err::SealBroken)) ||
           result == CryptoResult(err::InputTruncated);
}

CryptoResult readSalt(Input& in, SecretBytes& salt)
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

/// One conversion on its way, in the format that is asked for or found.
template <class Cipher>
class Work
{
public:
    Work(Cipher& cipher, FileJobRequest& request, Input& in, io::OStreamBytes& out,
         IFileJobObserver& observer)
        : m_cipher(cipher), m_request(request), m_in(in), m_out(out), m_observer(observer)
    {
    }

    Conversion run()
    {
        m_done.result = work(m_cipher);
        m_request.password = {};
        return m_done;
    }

private:
    CryptoResult work(const ISymmetricEncryptor&)
    {
        return m_request.seal ? seal() : runEngine(m_request, m_in, m_out);
    }

    CryptoResult work(const ISymmetricDecryptor&)
    {
        const std::optional<std::uint64_t> within = innerSize(static_cast<std::uint64_t>(m_in.size()));
        const CryptoResult result = runEngine(m_request, m_in, m_out, true);
        if (!isNoPlainFile(result) || m_done.cancelled)
            return result;
        AlgorithmSearch search(m_request, m_cipher.algorithmId());
        if (const CryptoResult read = search.read(m_in); !read.ok())
            return read;
        m_done.fittingAlgorithm = search.findPlain();
        return m_done.fittingAlgorithm || !within ? result : unseal(*within, search);
    }

    template <class Secret>
    CryptoResult runEngine(const Secret& secret, io::IStreamBytes& in, io::OStreamBytes& out,
                           bool isAttempt = false)
    {
        EngineWatch<Cipher> watch(m_cipher, m_request, m_observer, m_in.size(), isAttempt);
        const CryptoResult result = process(m_cipher, secret, in, out, watch);
        m_done.cancelled = watch.wasStopped();
        return result;
    }

    CryptoResult seal()
    {
        m_done.sealed = true;
        SecretBytes salt;
        SealedRoot root;
        SealedKeys keys;
        CryptoResult result = randomBytes(SealSaltSize, salt);
        if (result.ok())
            result = makeKeys(salt, root, keys);
        if (!result.ok() || m_done.cancelled)
            return result;
        SealingOutput out(m_out, salt);
        result = out.open(keys.tagKey);
        if (result.ok())
            result = runEngine(keys, m_in, out);
        if (result.ok() && !m_done.cancelled && !out.finish())
            result = {err::WriteStreamFailed, out.lastError()};
        return result;
    }

    CryptoResult unseal(std::uint64_t within, const AlgorithmSearch& search)
    {
        SecretBytes salt;
        SealedRoot root;
        SealedKeys keys;
        CryptoResult result = readSalt(m_in, salt);
        if (result.ok())
            result = makeKeys(salt, root, keys);
        if (!result.ok() || m_done.cancelled)
            return result;
        OpeningInput in(m_in, within);
        result = in.open(keys.tagKey);
        m_done.sealed = result.ok();
        if (result.ok())
            result = runEngine(keys, in, m_out);
        else if (result == CryptoResult(err::CheckValueDiffers))
            m_done.fittingAlgorithm = search.findSealed(root.bytes);
        if (m_done.fittingAlgorithm)
            m_done.root = std::move(root);
        return isBroken(result) ? CryptoResult(err::SealBroken) : result;
    }

    CryptoResult makeKeys(const SecretBytes& salt, SealedRoot& root, SealedKeys& keys)
    {
        const CryptoResult result = makeRoot(m_request, std::exchange(m_request.password, {}), m_cipher, salt,
                                             m_observer, root, m_done.cancelled);
        return result.ok() && !m_done.cancelled ? expandRoot(root.bytes, m_cipher, keys) : result;
    }

    Cipher& m_cipher;
    FileJobRequest& m_request;
    Input& m_in;
    io::OStreamBytes& m_out;
    IFileJobObserver& m_observer;
    Conversion m_done;
};

} // namespace

Conversion convert(ISymmetricEncryptor& encryptor, FileJobRequest& request, Input& in, io::OStreamBytes& out,
                   IFileJobObserver& observer)
{
    return Work(encryptor, request, in, out, observer).run();
}

Conversion convert(ISymmetricDecryptor& decryptor, FileJobRequest& request, Input& in, io::OStreamBytes& out,
                   IFileJobObserver& observer)
{
    return Work(decryptor, request, in, out, observer).run();
}

} // namespace tessaly::crypto
