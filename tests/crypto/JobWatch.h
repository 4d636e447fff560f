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
    int questions = 0;
    int cancelAtQuestion = 0;
    std::function<void(char)> onCall = [](char) {}; ///< p(rogress) among them

    void jobStarted(std::int64_t size) override
    {
        total = size;
        note('s');
    }
    void jobDerivingKey() override { note('d'); }
    void jobProgress(std::int64_t, float) override { onCall('p'); }
    void jobFlushing() override { note('w'); }
    bool isJobCancelled() override { return ++questions == cancelAtQuestion || calls.back() == cancelAfter; }

private:
    void note(char call)
    {
        calls += call;
        onCall(call);
    }
};

} // namespace test
