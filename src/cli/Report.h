#pragma once

#include "cli/CommandLine.h"
#include "cli/ExitCode.h"
#include "crypto/job/FileJob.h"

#include <cstdint>
#include <optional>
#include <string>

namespace cli {

/// How one file fared.
struct FileResult
{
    tessaly::crypto::FileJobOutcome outcome;
    /// The one that the file was decrypted with; nothing when none was asked for or found.
    std::optional<std::uint32_t> algorithmId;
    std::string input; ///< as it is shown
    bool isEmpty = false;
    bool isCutOff = false; ///< standard output has got a part of what was to come
    /// What could not be done, where that was no step of a job on its files.
    std::string failedStep = {};
};

/// The failure in one line on standard error, or the command's success where there is something to tell:
/// the algorithm that was found, or what has been verified, which goes to standard output. An interruption is
/// left to the caller, who knows what it has cut off.
ExitCode report(const tessaly::crypto::FileJobRequest& request, const FileResult& result,
                const Arguments& arguments);

} // namespace cli
