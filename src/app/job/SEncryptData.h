#pragma once

#include "app/job/Operation.h"
#include "common/settings/AlgSelection.h"
#include "crypto/CryptoResult.h"
#include "lib/platform/File.h"
#include "lib/secret/Secret.h"

#include <string>

namespace thisapp {

/// How a job ended; written by the worker.
struct JobOutcome
{
    bool cancelled = false;
    tessaly::crypto::CryptoResult result;
    /// The failure in words; empty on success.
    std::string errorText;
    /// The output was there and is no more: the worker removed it after a cancel or failure.
    bool outputRemoved = false;
    /// Both files as the job opened them.
    tessaly::platform::FileStatus input;
    tessaly::platform::FileStatus output;

    bool done() const { return result.ok() && !cancelled; }
};

/// One request and, afterwards, its outcome.
struct SEncryptData
{
    Operation operation = Operation::Encrypt;
    AlgSelection selection;
    std::string inputPath;  ///< in the system's own bytes, UTF-8 as a rule
    std::string outputPath; ///< likewise
    bool passwordMode = true;
    bool useSalt = false;
    bool rewriteOutput = false;
    /// The output is this job's: an existing one gives way to it, or it has created a new one.
    /// After a cancel or failure nothing but such an output is removed.
    bool outputFlag = false;
    tessaly::SecretText password;
    tessaly::SecretBytes key;
    tessaly::SecretBytes iv;
    JobOutcome outcome;

    void wipeSecrets()
    {
        password = {};
        key = {};
        iv = {};
    }
};

} // namespace thisapp
