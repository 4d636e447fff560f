#pragma once

#include "crypto/job/FileJob.h"

#include <functional>
#include <string>

namespace test {

/// Notes a job's calls: s(tarted), d(eriving the key), w(aiting for the disk). Cancels after one of them
/// when told to.
class JobWatch final : public tessaly::crypto::IFileJobObserver
{
public:
    std::string calls;
    std::int64_t total = -1;
    char cancelAfter = ' ';
    std::function<void()> atFlush = [] {};

    void jobStarted(std::int64_t size) override
    {
        calls += 's';
        total = size;
    }
    void jobDerivingKey() override { calls += 'd'; }
    void jobProgress(std::int64_t, float) override {}
    void jobFlushing() override
    {
        calls += 'w';
        atFlush();
    }
    bool isJobCancelled() override { return calls.back() == cancelAfter; }
};

} // namespace test
