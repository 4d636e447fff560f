#include "crypto/FileJob.h"
#include "crypto/Engine.h"
#include "lib/platform/Path.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

namespace {

using namespace tessaly::crypto;
using tessaly::platform::fileStatus;
using tessaly::platform::widePath;
namespace err = tessaly::err;
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
        request.key = ciphers.key;
        request.iv = ciphers.iv;
        test::writeFile(folder / "plain", content);
        ASSERT_TRUE(encrypt("plain", "encrypted").done());
        observer = {};
    }

    std::wstring wide(const char* name) const { return widePath(folder / name); }
    template <class Cipher>
    FileJobOutcome run(Cipher& cipher, const char* input, const char* output)
    {
        request.input = wide(input);
        request.output = wide(output);
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
    EXPECT_EQ(observer.total, fileStatus(wide("encrypted")).size);
    EXPECT_TRUE(outcome.input.sameFile(fileStatus(wide("encrypted"))));
    EXPECT_TRUE(outcome.output.sameFile(fileStatus(wide("plain2"))));
    EXPECT_EQ(test::readFile(folder / "plain2"), content);
    EXPECT_EQ(fs::status(folder / "plain2").permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(folder / "encrypted").permissions(), fs::status(folder / "plain").permissions());

    request.passwordMode = false;
    request.salt = true;
    EXPECT_TRUE(encrypt("plain", "by key").done());
    EXPECT_TRUE(decrypt("by key", "plain3").done());
    EXPECT_EQ(test::readFile(folder / "plain3"), content);

    test::writeFile(folder / "empty", "");
    EXPECT_TRUE(encrypt("empty", "empty.enc").done());
    EXPECT_TRUE(decrypt("empty.enc", "empty.dec").done());
    EXPECT_EQ(fs::file_size(folder / "empty.enc") + fs::file_size(folder / "empty.dec"), 0U);
}

TEST_F(FileJob, CreatesNothingWhereItCannotSucceed)
{
    test::writeFile(folder / "short", "too short");
    test::writeFile(folder / "foreign", std::string(300, 'x'));
    test::writeFile(folder / "taken", "precious");
    fs::create_symlink("nowhere", folder / "dangling");
    const struct
    {
        const char* input;
        const char* output;
        CryptoResult result;
    } rows[] = {
        {"foreign", "out", err::CheckValueDiffers},
        {"short", "out", err::InputTooShort},
        {"absent", "out", err::system(ENOENT)},
        {"encrypted", "taken", {err::WriteStreamFailed, err::system(EEXIST)}},
        {"encrypted", "dangling", {err::WriteStreamFailed, err::system(EEXIST)}},
        {"encrypted", "absent/out", {err::WriteStreamFailed, err::system(ENOENT)}},
    };
    for (const auto& row : rows) {
        const FileJobOutcome outcome = decrypt(row.input, row.output);
        EXPECT_EQ(outcome.result, row.result) << row.input << " to " << row.output;
        EXPECT_FALSE(outcome.done() || outcome.cancelled || removeOutput(request, outcome));
    }
    EXPECT_FALSE(fs::exists(folder / "out") || fs::exists(folder / "nowhere"));
    EXPECT_EQ(test::readFile(folder / "taken"), "precious");
}

TEST_F(FileJob, ACancelAtTheStartCreatesNothingAndOneAtTheFlushLeavesAFileToRemove)
{
    observer.cancelAfter = 's';
    FileJobOutcome outcome = encrypt("plain", "out");
    EXPECT_TRUE(outcome.cancelled && outcome.result.ok() && !outcome.done());
    EXPECT_FALSE(fs::exists(folder / "out"));
    observer.cancelAfter = 'w';
    outcome = encrypt("plain", "out");
    EXPECT_TRUE(outcome.cancelled && outcome.result.ok() && !outcome.done());
    EXPECT_TRUE(removeOutput(request, outcome));
    EXPECT_FALSE(fs::exists(folder / "out") || removeOutput(request, outcome));
}

TEST_F(FileJob, LeavesAPartialOutputWhichIsRemovedUnlessReplaced)
{
    rlimit before = {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small = {40000, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const FileJobOutcome outcome = encrypt("plain", "out");
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_EQ(outcome.result, CryptoResult(err::WriteStreamFailed, err::system(EFBIG)));
    EXPECT_EQ(fs::file_size(folder / "out"), 40000U);

    fs::rename(folder / "out", folder / "moved");
    test::writeFile(folder / "out", "someone else's");
    EXPECT_FALSE(removeOutput(request, outcome));
    EXPECT_EQ(test::readFile(folder / "out"), "someone else's");
    fs::rename(folder / "moved", folder / "out");
    EXPECT_TRUE(removeOutput(request, outcome));
}

} // namespace
