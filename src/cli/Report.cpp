#include "cli/Report.h"

#include "cli/Message.h"
#include "common/errors/JobStepText.h"
#include "crypto/catalogue/Catalogue.h"
#include "lib/platform/Interrupts.h"
#include "lib/platform/Path.h"
#include "lib/platform/StandardStreams.h"

#include <new>

namespace cli {

using namespace tessaly;
using crypto::CryptoResult;
using crypto::FileJobOutcome;
using crypto::FileJobRequest;

namespace {

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

std::string nameOf(std::uint32_t algorithmId)
{
    return std::string(crypto::displayName(algorithmId));
}

/// Beside the work, which is done: where there is no memory for the words, they are left out.
void tellAlgorithm(const FileResult& result)
{
    try {
        complain(result.input + " was encrypted with " + nameOf(result.algorithmId.value_or(0)));
    } catch (const std::bad_alloc&) {
    }
}

/// What was being done to which file.
std::string stepSentence(const FileJobRequest& request, const FileJobOutcome& outcome)
{
    std::string text = thisapp::failedStepText(outcome);
    return text.replace(text.find("%1"), 2, platform::nativeText(thisapp::failedFile(outcome, request)));
}

/// Why nothing fits, or what would.
std::string reasonOf(const FileJobOutcome& outcome, const Arguments& arguments)
{
    if (outcome.result != CryptoResult(err::CheckValueDiffers))
        return {};
    if (outcome.fittingAlgorithm)
        return ": the file was encrypted with " + nameOf(*outcome.fittingAlgorithm) + ", not with " +
               nameOf(arguments.algorithmId.value_or(0));
    return arguments.algorithmId ? ": wrong password, key, IV or algorithm, or a damaged or foreign file"
                                 : ": wrong password, key or IV, or a damaged or foreign file";
}

ExitCode reportFailure(const FileJobRequest& request, const FileResult& result, const Arguments& arguments)
{
    const FileJobOutcome& outcome = result.outcome;
    // Whoever closed the pipe has what he wanted.
    if (request.sink && platform::isClosedPipe(outcome.result.second()))
        return Failed;
    const char* sentence = arguments.command == Command::Encrypt   ? "Failed to encrypt file."
                           : arguments.command == Command::Decrypt ? "Failed to decrypt file."
                                                                   : "Failed to verify file.";
    complain(errorLine(sentence, outcome.result) + reasonOf(outcome, arguments) + ". " +
             (result.failedStep.empty() ? stepSentence(request, outcome) : result.failedStep) +
             (result.isCutOff ? " What was written to standard output is incomplete." : ""));
    return exitCodeOf(outcome.result);
}

std::string verdict(const FileResult& result, bool byPassword)
{
    if (result.isEmpty)
        return "the file is empty, which stands for an empty file whatever the password";
    const std::string secret = byPassword ? "the password fits" : "key and IV fit";
    const std::string start = secret + ", the algorithm is " + nameOf(result.algorithmId.value_or(0));
    return result.outcome.sealed
               ? start + ", the file is sealed, whole and unchanged"
               : start + ", the length is right; the plain format cannot tell whether the data was changed";
}

} // namespace

ExitCode report(const FileJobRequest& request, const FileResult& result, const Arguments& arguments)
{
    const FileJobOutcome& outcome = result.outcome;
    if (outcome.cancelled || (!outcome.done() && platform::Interrupts::happened()))
        return Interrupted;
    if (!outcome.done())
        return reportFailure(request, result, arguments);
    if (arguments.quiet)
        return Done;
    if (arguments.command == Command::Verify)
        return tell(result.input + ": " + verdict(result, request.passwordMode));
    if (arguments.command == Command::Decrypt && !arguments.algorithmId && !result.isEmpty)
        tellAlgorithm(result);
    return Done;
}

} // namespace cli
