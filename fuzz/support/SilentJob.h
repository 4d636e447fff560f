#pragma once

#include "crypto/job/FileJob.h"

namespace fuzz {

/// Nobody looks at the job or stops it.
class SilentJob final : public tessaly::crypto::IFileJobObserver
{
    void jobStarted(std::int64_t) override {}
    void jobProgress(std::int64_t, float) override {}
    void jobFlushing() override {}
    bool isJobCancelled() override { return false; }
};

} // namespace fuzz
