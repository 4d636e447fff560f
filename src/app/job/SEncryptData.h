#pragma once

#include "app/job/Operation.h"
#include "common/settings/AlgSelection.h"
#include "crypto/job/FileJob.h"

#include <string>

namespace thisapp {

/// One request and, afterwards, its outcome, which the worker writes.
struct SEncryptData
{
    Operation operation = Operation::Encrypt;
    AlgSelection selection;
    bool rewriteOutput = false;
    tessaly::crypto::FileJobRequest request;
    tessaly::crypto::FileJobOutcome outcome;
    /// The failure in words; empty on success.
    std::string errorText;
};

} // namespace thisapp
