#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/cipher/ISymmetricCipher.h"
#include "crypto/sealed/Argon2.h"
#include "crypto/sealed/SealedKeys.h"
#include "io/FilePlace.h"
#include "io/IRewindableBytes.h"
#include "io/OStreamBytes.h"
#include "lib/platform/File.h"
#include "lib/secret/Secret.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>

namespace tessaly::crypto {

/// What becomes of a file that stands where the output is to go.
enum class ExistingOutput {
    Keep,         ///< it stays, and the job fails
    RemoveFirst,  ///< it goes before the work begins
    ReplaceAtEnd, ///< it is whole until the new one takes its place
};

/// What to read, what to write and with which secret.
struct FileJobRequest
{
    std::filesystem::path input;
    std::filesystem::path output;
    /// When set, it is read and rewound instead of the input, or written instead of the output, of which
    /// the path is then not looked at. What a failed job has written stays written.
    io::IRewindableBytes* source = nullptr;
    io::OStreamBytes* sink = nullptr;
    ExistingOutput existing = ExistingOutput::Keep;
    bool passwordMode = true;
    bool useSalt = false; ///< encryption only, and not of a sealed file, which has a salt of its own
    bool seal = false;    ///< encryption only: makes a sealed file. Decryption finds out by itself
    SecretText password;  ///< password mode
    SecretBytes key;      ///< else
    SecretBytes iv;       ///< else
    /// Of a sealed file that is to be decrypted, when it is known already: with it no key is made of the
    /// password, and none is needed. Another file's is ignored.
    SealedRoot root;
    Argon2Cost cost = {}; ///< of a sealed file's password; another one makes a file of another format

    void wipeSecrets();
};

/// A file that a job has opened or made: where, and what it was then.
struct JobFile
{
    std::shared_ptr<const io::FilePlace> place; ///< null when the job did not come to it
    platform::FileStatus status;
};

enum class JobStep { OpenInput, RemoveFormerOutput, CreateOutput, Process, StoreOutput };

struct FileJobOutcome
{
    bool cancelled = false;
    CryptoResult result;
    /// The last one that was begun: after a failure the one that failed.
    JobStep step = JobStep::OpenInput;
    /// The encrypted file, made or read, is a sealed one.
    bool sealed = false;
    /// After failure (5, 4003) of a decryption: the algorithm that the file was encrypted with.
    std::optional<std::uint32_t> fittingAlgorithm;
    /// With that algorithm, and when the file is a sealed one: what a request with it takes instead of the
    /// password.
    SealedRoot root;
    /// There was an output of this job, or a former one that it removed, and nothing of it is left.
    bool outputDeleted = false;
    JobFile input;
    JobFile output;

    bool done() const { return result.ok() && !cancelled; }
    /// The failure has to do with the output, not with the input.
    bool failedAtOutput() const;
};

/// Follows a job, on the thread that runs it.
class IFileJobObserver
{
public:
    virtual ~IFileJobObserver() = default;
    /// The engine begins; `total` is the size of the input in bytes. Once more after jobDerivingKey when
    /// the input has turned out to be no plain file.
    virtual void jobStarted(std::int64_t total) = 0;
    /// A sealed file's key is being made of the password, which takes a second or more and cannot be
    /// interrupted; a stop is heeded after it.
    virtual void jobDerivingKey() {}
    /// Bytes of the plain file done so far, and the same from 0 to 100 per cent.
    virtual void jobProgress(std::int64_t processed, float percent) = 0;
    /// All is written; the disk is being waited for.
    virtual void jobFlushing() = 0;
    /// Asked at the start, around the making of a key and after the flush, for a stop that came when no
    /// engine was at work.
    virtual bool isJobCancelled() = 0;
};

/// Enciphers or deciphers one file into a new one, from making room for it to its name: the output
/// appears when it is whole and on the disk, or not at all. A decryption takes its input for a plain file
/// first; when the header does not verify and a sealed file can have that size, for a sealed one. When the
/// algorithm turns out to be wrong it looks for the right one (see AlgorithmSearch.h): among the plain
/// headers before it makes a sealed file's key, and among the tags with that same key. The password is wiped
/// as soon as it is not needed any more, the rest of the secret at the end. Blocks; to end it early call stop
/// on the engine from another thread. No exception leaves it.
FileJobOutcome runFileJob(ISymmetricEncryptor& encryptor, FileJobRequest& request,
                          IFileJobObserver& observer) noexcept;
FileJobOutcome runFileJob(ISymmetricDecryptor& decryptor, FileJobRequest& request,
                          IFileJobObserver& observer) noexcept;

/// The first step of a job alone, for one that cannot be started: removes the former output when it is
/// to go first. `removed` tells whether there was one.
ResultCode makeRoom(const FileJobRequest& request, bool& removed);

} // namespace tessaly::crypto
