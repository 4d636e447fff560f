#pragma once

#include "crypto/job/FileJob.h"

#include <filesystem>

namespace thisapp {

/// What a failed job was doing, as a source text of the context "JobStep" with %1 for the file.
const char* failedStepText(const tessaly::crypto::FileJobOutcome& outcome);

/// The file that it was doing that to.
const std::filesystem::path& failedFile(const tessaly::crypto::FileJobOutcome& outcome,
                                        const tessaly::crypto::FileJobRequest& request);

} // namespace thisapp
