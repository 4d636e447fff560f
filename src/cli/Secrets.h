#pragma once

#include "cli/CommandLine.h"
#include "crypto/job/FileJob.h"

#include <string>

namespace cli {

enum class SecretOutcome {
    Ready,
    Unusable, ///< the secret cannot be read or is not one; told by `problem`
    NotAsked, ///< no source was named and there is no terminal
    Interrupted,
};

/// Fills the secret of the request from the named files or, without any, from the terminal.
SecretOutcome gatherSecret(const Arguments& arguments, tessaly::crypto::FileJobRequest& request,
                           std::string& problem);

} // namespace cli
