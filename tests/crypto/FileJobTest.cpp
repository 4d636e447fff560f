#include "crypto/job/FileJob.h"
#include "crypto/Engine.h"
#include "lib/platform/Path.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace {

using namespace tessaly::crypto;
using tessaly::platform::fileStatus;
namespace fs = std::filesystem;

/// Notes the calls; cancels after one of them when told to.
class Observer final : public IFileJobObserver
{
public:
    std::string calls;
    std::int64_t total = -1;
    char cancelAfter = ' ';

    void jobStarted(std::int64_t size) override
    {
        calls += 's';
        total = size;
    }
    void jobProgress(std::int64_t, float) override {}
    void jobFlushing() override { calls += 'w'; }
    bool isJobCancelled() override { return calls.back() == cancelAfter; }
};

class FileJob : public testing::Test
{
protected:
    void SetUp() override
    {
        request.password = tessaly::SecretText("secret");
        folder.write("plain", content);
        ASSERT_TRUE(encrypt("plain", "encrypted").done());
        observer = {};
    }

    template <class Cipher>
    FileJobOutcome run(Cipher& cipher, const char* input, const char* output)
    {
        request.input = folder.wide(input);
        request.output = folder.wide(output);
        return runFileJob(*cipher, request, observer);
    }
    FileJobOutcome encrypt(const char* from, const char* to) { return run(ciphers.encryptor, from, to); }
    FileJobOutcome decrypt(const char* from, const char* to) { return run(ciphers.decryptor, from, to); }

    test::TempFolder folder;
    std::string content = std::string(100000, 'x') + "end";
    test::Job ciphers{"Threefish-512"};
    FileJobRequest request;
    Observer observer;
};

TEST_F(FileJob, TellsWhatItReadAndMade)
{
    const FileJobOutcome outcome = decrypt("encrypted", "plain2");
    EXPECT_TRUE(outcome.done());
    EXPECT_EQ(observer.calls, "sw");
    EXPECT_EQ(observer.total, fileStatus(folder.wide("encrypted")).size);
    EXPECT_TRUE(outcome.input.sameFile(fileStatus(folder.wide("encrypted"))));
    EXPECT_TRUE(outcome.output.sameFile(fileStatus(folder.wide("plain2"))));
    EXPECT_EQ(test::readFile(folder / "plain2"), content);
    EXPECT_EQ(fs::status(folder / "plain2").permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(folder / "encrypted").permissions(), fs::status(folder / "plain").permissions());
}

TEST_F(FileJob, ACancelLeavesNothingOrAFileThatIsRemovedUnlessReplaced)
{
    observer.cancelAfter = 's';
    EXPECT_TRUE(encrypt("plain", "out").cancelled);
    EXPECT_FALSE(fs::exists(folder / "out"));

    observer.cancelAfter = 'w';
    const FileJobOutcome outcome = encrypt("plain", "out");
    EXPECT_TRUE(outcome.cancelled && outcome.result.ok() && !outcome.done());
    fs::rename(folder / "out", folder / "moved");
    folder.write("out", "someone else's");
    EXPECT_FALSE(removeOutput(request, outcome));
    EXPECT_EQ(test::readFile(folder / "out"), "someone else's");
    fs::rename(folder / "moved", folder / "out");
    EXPECT_TRUE(removeOutput(request, outcome));
    EXPECT_FALSE(fs::exists(folder / "out"));
}

} // namespace
