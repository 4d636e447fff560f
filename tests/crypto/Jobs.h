#pragma once

#include "crypto/Engine.h"
#include "crypto/job/FileJob.h"
#include "support/TempFolder.h"

#include <functional>
#include <optional>
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

/// Jobs on the files of a folder.
class Jobs : public testing::Test
{
protected:
    tessaly::crypto::FileJobRequest request(const char* from, const char* to) const
    {
        tessaly::crypto::FileJobRequest made;
        made.input = folder.at(from);
        made.output = folder.at(to);
        made.existing = existing;
        made.passwordMode = byPassword;
        made.password = tessaly::SecretText(byPassword ? password : "");
        made.key = job->key;
        made.iv = job->iv;
        made.cost = cost;
        return made;
    }
    tessaly::crypto::FileJobOutcome encrypt(const char* from, const char* to, bool seal = true)
    {
        auto made = request(from, to);
        made.seal = seal;
        return run(*job->encryptor, made);
    }
    tessaly::crypto::FileJobOutcome decrypt(const char* from, const char* to)
    {
        auto made = request(from, to);
        return run(*job->decryptor, made);
    }
    template <class Cipher>
    tessaly::crypto::FileJobOutcome run(Cipher& cipher, tessaly::crypto::FileJobRequest& made)
    {
        watch.calls.clear();
        return runFileJob(cipher, made, watch);
    }

    TempFolder folder;
    std::optional<Job> job{"AES-256"};
    bool byPassword = true;
    std::string password = "secret";
    tessaly::crypto::Argon2Cost cost{1, 64, 4}; ///< a small one
    tessaly::crypto::ExistingOutput existing = tessaly::crypto::ExistingOutput::ReplaceAtEnd;
    JobWatch watch;
};

} // namespace test
