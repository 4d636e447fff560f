#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/cipher/ISymmetricDecryptor.h"
#include "crypto/cipher/ISymmetricEncryptor.h"
#include "lib/platform/File.h"
#include "lib/secret/Secret.h"

#include <cstdint>
#include <string>

namespace tessaly::crypto {

/// What to read, what to write and with which secret.
struct FileJobRequest
{
    std::wstring input;
    std::wstring output;
    bool passwordMode = true;
    bool salt = false;   ///< encryption only
    SecretText password; ///< password mode
    SecretBytes key;     ///< else
    SecretBytes iv;      ///< else
};

struct FileJobOutcome
{
    bool cancelled = false;
    CryptoResult result;
    /// The output as it was created; of kind Missing when the job created none.
    platform::FileStatus output;
    /// The input as it was opened.
    platform::FileStatus input;

    bool done() const { return result.ok() && !cancelled; }
};

/// Follows a job, on the thread that runs it.
class IFileJobObserver
{
public:
    virtual ~IFileJobObserver() = default;
    /// `total` is the size of the input in bytes.
    virtual void jobStarted(std::int64_t total) = 0;
    /// Bytes of the plain file done so far, and the same from 0 to 100 per cent.
    virtual void jobProgress(std::int64_t processed, float percent) = 0;
    /// All is written; the disk is being waited for.
    virtual void jobFlushing() = 0;
    /// Asked at the start and after the flush, for a stop that came when no engine was at work.
    virtual bool isJobCancelled() = 0;
};

/// Enciphers or deciphers one file into a new one: opens both, runs the engine, and waits until the
/// output is on the disk. The output is created with the first bytes, and only where nothing stands.
/// A partial output is left for the caller to remove with removeOutput. Blocks; to end it early call
/// stop on the engine from another thread.
FileJobOutcome runFileJob(ISymmetricEncryptor& encryptor, const FileJobRequest& request,
                          IFileJobObserver& observer);
FileJobOutcome runFileJob(ISymmetricDecryptor& decryptor, const FileJobRequest& request,
                          IFileJobObserver& observer);

/// Removes the output that the job created, unless another file has taken its place since.
/// True when it was removed.
bool removeOutput(const FileJobRequest& request, const FileJobOutcome& outcome);

} // namespace tessaly::crypto
