#include "cli/CipherCommand.h"

#include "cli/DefaultOutput.h"
#include "cli/Message.h"
#include "cli/ProgressLine.h"
#include "cli/Secrets.h"
#include "crypto/catalogue/Catalogue.h"
#include "crypto/cryptopp/CDecryptorFactory.h"
#include "crypto/cryptopp/CEncryptorFactory.h"
#include "io/PathCheck.h"
#include "lib/platform/Interrupts.h"
#include "lib/platform/Path.h"

#include <memory>

namespace cli {

using namespace tessaly;
using crypto::CryptoResult;
using crypto::FileJobOutcome;
using crypto::FileJobRequest;

namespace {

/// Empty when the paths can be used.
std::string checkPaths(const FileJobRequest& request, const std::string& input, const std::string& output,
                       bool force)
{
    switch (io::checkInput(request.input)) {
    case io::InputCheck::NotFound:
        return "input not found: " + input;
    case io::InputCheck::NotRegular:
        return "input is not a regular file: " + input;
    case io::InputCheck::Usable:
        break;
    }
    switch (io::checkOutput(request.input, request.output)) {
    case io::OutputCheck::MatchesInput:
        return "output is the input itself: " + output + "; name another with --output";
    case io::OutputCheck::NotRegular:
        return "output is not a regular file: " + output;
    case io::OutputCheck::Exists:
        return force ? "" : "output exists: " + output + "; --force replaces it";
    case io::OutputCheck::Free:
        break;
    }
    return {};
}

ExitCode exitCodeOf(const CryptoResult& result)
{
    const bool wrongOrDamaged = result.module == err::CategoryLibrary &&
                                result.code >= err::CheckValueDiffers && result.code <= err::InputTruncated;
    return wrongOrDamaged ? WrongKeyOrDamaged : Failed;
}

ExitCode report(const FileJobRequest& request, const FileJobOutcome& outcome, const Arguments& arguments)
{
    if (outcome.done())
        return Done;
    const bool created = outcome.output.kind != platform::FileKind::Missing;
    if (created && !crypto::removeOutput(request, outcome))
        complain("could not remove the partial output: " + platform::nativePath(request.output));
    if (outcome.cancelled) {
        complain("interrupted");
        return Interrupted;
    }
    const std::string sentence =
        arguments.command == Command::Encrypt ? "Failed to encrypt file." : "Failed to decrypt file.";
    std::string line = errorLine(sentence, outcome.result);
    if (outcome.result == CryptoResult(err::CheckValueDiffers))
        line += ": wrong password, key, IV or algorithm, or not an encrypted file";
    complain(line);
    return exitCodeOf(outcome.result);
}

template <class Cipher>
ExitCode runJob(Cipher& cipher, const FileJobRequest& request, const Arguments& arguments)
{
    const platform::Interrupts interrupts([&cipher] { cipher.stop(); });
    FileJobOutcome outcome;
    {
        ProgressLine progress;
        outcome = crypto::runFileJob(cipher, request, progress);
    }
    return report(request, outcome, arguments);
}

template <class Factory, class Cipher>
ExitCode runWith(const FileJobRequest& request, const Arguments& arguments)
{
    std::unique_ptr<Cipher> cipher;
    const CryptoResult made = Factory().create(crypto::CryptoPPLibraryId, arguments.algorithmId, &cipher);
    if (!made.ok()) {
        complain(errorLine("Failed to prepare the engine.", made));
        return Failed;
    }
    // The old output goes away only now, when nothing but the work itself can still fail. Without
    // --force none was there; one that has come to be since then stays, and the creation fails.
    if (arguments.force && io::checkOutput(request.input, request.output) == io::OutputCheck::Exists) {
        if (const ResultCode removed = platform::removeFile(request.output); !removed.ok()) {
            complain(errorLine("Failed to replace the output.", removed));
            return Failed;
        }
    }
    return runJob(*cipher, request, arguments);
}

SecretOutcome gatherInterruptibly(const Arguments& arguments, FileJobRequest& request, std::string& problem)
{
    const platform::Interrupts interrupts([] {});
    const SecretOutcome outcome = gatherSecret(arguments, request, problem);
    return platform::Interrupts::happened() ? SecretOutcome::Interrupted : outcome;
}

} // namespace

ExitCode runCipherCommand(const Arguments& arguments)
{
    const std::string output = arguments.output.value_or(defaultOutput(arguments.input, arguments.command));
    FileJobRequest request;
    request.input = platform::widePath(arguments.input);
    request.output = platform::widePath(output);
    request.salt = arguments.salt;
    if (const std::string problem = checkPaths(request, arguments.input, output, arguments.force);
        !problem.empty()) {
        complain(problem);
        return Failed;
    }

    std::string problem;
    switch (gatherInterruptibly(arguments, request, problem)) {
    case SecretOutcome::Unusable:
        complain(problem);
        return Failed;
    case SecretOutcome::NotAsked:
        complain("no password: name --password-file, or --key-file and --iv-file, or run it on a terminal");
        return Usage;
    case SecretOutcome::Interrupted:
        complain("interrupted");
        return Interrupted;
    case SecretOutcome::Ready:
        break;
    }
    return arguments.command == Command::Encrypt
               ? runWith<cryptopp::CEncryptorFactory, crypto::ISymmetricEncryptor>(request, arguments)
               : runWith<cryptopp::CDecryptorFactory, crypto::ISymmetricDecryptor>(request, arguments);
}

} // namespace cli
