#include "crypto/FileJob.h"
#include "crypto/Engine.h"
#include "lib/platform/Path.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

using namespace tessaly::crypto;
using tessaly::platform::FileKind;
using tessaly::platform::fileStatus;
using tessaly::platform::widePath;
namespace err = tessaly::err;
namespace fs = std::filesystem;

/// Notes the calls; cancels at the start or at the flush when told to.
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
        test::writeFile(folder / "plain", content);
        ASSERT_TRUE(encrypt("plain", "encrypted").done());
        observer = {};
    }

    FileJobRequest request(const char* input, const char* output, std::string_view password = "secret") const
    {
        FileJobRequest request;
        request.input = widePath(folder / input);
        request.output = widePath(folder / output);
        request.password = tessaly::SecretText(password);
        return request;
    }
    FileJobOutcome encrypt(const char* input, const char* output)
    {
        return runFileJob(*test::encryptorOf(*findAlgorithm("AES-256")), request(input, output), observer);
    }
    FileJobOutcome decrypt(const char* input, const char* output, std::string_view password = "secret")
    {
        return runFileJob(*test::decryptorOf(*findAlgorithm("AES-256")), request(input, output, password),
                          observer);
    }
    mode_t modeOf(const char* name) const
    {
        struct stat info = {};
        return ::stat((folder / name).c_str(), &info) == 0 ? info.st_mode & 07777U : 0;
    }

    test::TempFolder folder;
    std::string content = std::string(100000, 'x') + "end";
    Observer observer;
};

TEST_F(FileJob, TellsWhatItReadAndMade)
{
    const FileJobOutcome outcome = decrypt("encrypted", "plain2");
    EXPECT_TRUE(outcome.done());
    EXPECT_EQ(observer.calls, "sw");
    EXPECT_EQ(observer.total, fileStatus(widePath(folder / "encrypted")).size);
    EXPECT_TRUE(outcome.input.sameFile(fileStatus(widePath(folder / "encrypted"))));
    EXPECT_TRUE(outcome.output.sameFile(fileStatus(widePath(folder / "plain2"))));
    EXPECT_EQ(test::readFile(folder / "plain2"), content);
    EXPECT_EQ(modeOf("plain2"), 0600U);
    EXPECT_EQ(modeOf("encrypted"), modeOf("plain")) << "as the umask has it";
}

TEST_F(FileJob, WorksWithKeyAndIv)
{
    const test::Job secrets("Threefish-512");
    FileJobRequest made = request("plain", "encrypted2");
    made.passwordMode = false;
    made.salt = true;
    made.key = secrets.key;
    made.iv = secrets.iv;
    EXPECT_TRUE(runFileJob(*test::encryptorOf(secrets.algorithm), made, observer).done());
    made.input = made.output;
    made.output = widePath(folder / "plain2");
    EXPECT_TRUE(runFileJob(*test::decryptorOf(secrets.algorithm), made, observer).done());
    EXPECT_EQ(test::readFile(folder / "plain2"), content);
}

TEST_F(FileJob, AnEmptyFileGivesAnEmptyFile)
{
    test::writeFile(folder / "empty", "");
    EXPECT_TRUE(encrypt("empty", "empty.enc").done());
    EXPECT_TRUE(decrypt("empty.enc", "empty.dec").done());
    EXPECT_EQ(fs::file_size(folder / "empty.enc") + fs::file_size(folder / "empty.dec"), 0U);
}

TEST_F(FileJob, CreatesNothingWhereItCannotSucceed)
{
    test::writeFile(folder / "short", "too short");
    test::writeFile(folder / "taken", "precious");
    fs::create_symlink("nowhere", folder / "dangling");
    const struct
    {
        const char* input;
        const char* output;
        const char* password;
        CryptoResult result;
    } rows[] = {
        {"encrypted", "out", "wrong", err::CheckValueDiffers},
        {"short", "out", "secret", err::InputTooShort},
        {"absent", "out", "secret", err::system(ENOENT)},
        {"encrypted", "taken", "secret", {err::WriteStreamFailed, err::system(EEXIST)}},
        {"encrypted", "dangling", "secret", {err::WriteStreamFailed, err::system(EEXIST)}},
        {"encrypted", "absent/out", "secret", {err::WriteStreamFailed, err::system(ENOENT)}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.input) + " to " + row.output);
        const FileJobOutcome outcome = decrypt(row.input, row.output, row.password);
        EXPECT_EQ(outcome.result, row.result);
        EXPECT_FALSE(outcome.done() || outcome.cancelled);
        EXPECT_EQ(outcome.output.kind, FileKind::Missing);
        EXPECT_FALSE(removeOutput(request(row.input, row.output), outcome));
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
    EXPECT_TRUE(removeOutput(request("plain", "out"), outcome));
    EXPECT_FALSE(fs::exists(folder / "out"));
    EXPECT_FALSE(removeOutput(request("plain", "out"), outcome));
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
    EXPECT_FALSE(removeOutput(request("plain", "out"), outcome));
    EXPECT_EQ(test::readFile(folder / "out"), "someone else's");
    fs::rename(folder / "moved", folder / "out");
    EXPECT_TRUE(removeOutput(request("plain", "out"), outcome));
    EXPECT_FALSE(fs::exists(folder / "out"));
}

} // namespace
