#include "cli/CipherCommand.h"

#include "cli/DefaultOutput.h"
#include "cli/Message.h"
#include "cli/ProgressLine.h"
#include "cli/Secrets.h"
#include "common/errors/JobStepText.h"
#include "crypto/catalogue/Catalogue.h"
#include "crypto/cryptopp/CCipherFactory.h"
#include "io/PathCheck.h"
#include "lib/platform/File.h"
#include "lib/platform/Interrupts.h"
#include "lib/sync/Locker.h"
#include "lib/sync/SafeData.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace cli {

using namespace tessaly;
using crypto::CryptoResult;
using crypto::ExistingOutput;
using crypto::FileJobOutcome;
using crypto::FileJobRequest;

namespace {

/// What Ctrl-C stops: the engine at work, if there is one.
using Stop = sync::internal::SafeData<sync::Locker, std::function<void()>>;

std::string folderText(const std::filesystem::path& path)
{
    return path.has_parent_path() ? path.parent_path().string() : ".";
}

/// Empty when the paths can be used.
std::string checkPaths(const FileJobRequest& request, bool force)
{
    const std::string input = request.input.string();
    const std::string output = request.output.string();
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
    case io::OutputCheck::NoFolder:
        return "output folder not found: " + folderText(request.output);
    case io::OutputCheck::Exists:
        return force ? "" : "output exists: " + output + "; --force replaces it";
    case io::OutputCheck::Free:
        break;
    }
    return {};
}

/// Empty unless the output would take the place of the secret that opens it.
std::string checkSecretFiles(const FileJobRequest& request, const Arguments& arguments)
{
    const platform::FileStatus output = platform::fileStatus(request.output);
    const std::pair<const std::optional<std::string>&, const char*> secrets[] = {
        {arguments.passwordFile, "password"}, {arguments.keyFile, "key"}, {arguments.ivFile, "IV"}};
    for (const auto& [file, what] : secrets)
        if (file &&
            output.sameFile(*file == "-" ? platform::standardInputStatus() : platform::fileStatus(*file)))
            return "output is the " + std::string(what) + " file: " + request.output.string();
    return {};
}

ExitCode exitCodeOf(const CryptoResult& result)
{
    if (result.module != err::CategoryLibrary)
        return Failed;
    switch (result.code) {
    case err::CheckValueDiffers:
    case err::InputTooShort:
    case err::InputTruncated:
    case err::SealBroken:
        return WrongKeyOrDamaged;
    default:
        return Failed;
    }
}

/// What was being done to which file.
std::string stepSentence(const FileJobRequest& request, const FileJobOutcome& outcome)
{
    std::string text = thisapp::failedStepText(outcome);
    return text.replace(text.find("%1"), 2, thisapp::failedFile(outcome, request).string());
}

ExitCode report(const FileJobRequest& request, const FileJobOutcome& outcome, Command command)
{
    if (outcome.done())
        return Done;
    if (outcome.cancelled) {
        complain("interrupted");
        return Interrupted;
    }
    std::string line = errorLine(
        command == Command::Encrypt ? "Failed to encrypt file." : "Failed to decrypt file.", outcome.result);
    if (outcome.result == CryptoResult(err::CheckValueDiffers))
        line += ": wrong password, key, IV or algorithm, or a damaged or foreign file";
    complain(line + ". " + stepSentence(request, outcome));
    return exitCodeOf(outcome.result);
}

template <class Factory, class Cipher>
ExitCode runWith(FileJobRequest& request, const Arguments& arguments, Stop& stop)
{
    std::unique_ptr<Cipher> cipher;
    const CryptoResult made = Factory().create(crypto::CryptoPPLibraryId, arguments.algorithmId, &cipher);
    if (!made.ok()) {
        complain(errorLine("Failed to prepare the engine.", made));
        return Failed;
    }
    stop.set([&cipher] { cipher->stop(); });
    FileJobOutcome outcome;
    {
        ProgressLine progress;
        outcome = crypto::runFileJob(*cipher, request, progress);
    }
    stop.set({});
    return report(request, outcome, arguments.command);
}

/// Usage errors apart, everything that keeps the job from its start is told here.
std::optional<ExitCode> prepare(FileJobRequest& request, const Arguments& arguments)
{
    std::string problem = checkPaths(request, arguments.force);
    if (problem.empty())
        problem = checkSecretFiles(request, arguments);
    if (!problem.empty()) {
        complain(problem);
        return Failed;
    }
    const SecretOutcome secret = gatherSecret(arguments, request, problem);
    if (secret == SecretOutcome::Interrupted || platform::Interrupts::happened()) {
        complain("interrupted");
        return Interrupted;
    }
    if (secret == SecretOutcome::NotAsked) {
        complain("no password: name --password-file, or --key-file and --iv-file, or run it on a terminal");
        return Usage;
    }
    if (secret == SecretOutcome::Unusable) {
        complain(problem);
        return Failed;
    }
    return {};
}

} // namespace

ExitCode runCipherCommand(const Arguments& arguments)
{
    FileJobRequest request;
    request.input = arguments.input;
    request.output = arguments.output.value_or(defaultOutput(arguments.input, arguments.command));
    request.useSalt = arguments.salt;
    request.seal = arguments.seal;
    request.existing = arguments.force ? ExistingOutput::ReplaceAtEnd : ExistingOutput::Keep;

    Stop stop;
    const platform::Interrupts interrupts([&stop] {
        stop.with([](const std::function<void()>& stopEngine) {
            if (stopEngine)
                stopEngine();
        });
    });
    if (const std::optional<ExitCode> ended = prepare(request, arguments))
        return *ended;
    return arguments.command == Command::Encrypt
               ? runWith<cryptopp::CEncryptorFactory, crypto::ISymmetricEncryptor>(request, arguments, stop)
               : runWith<cryptopp::CDecryptorFactory, crypto::ISymmetricDecryptor>(request, arguments, stop);
}

} // namespace cli
