#include "crypto/job/FileJob.h"
#include "crypto/Engine.h"
#include "crypto/JobWatch.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <sys/stat.h>
#include <thread>

namespace {

using namespace tessaly::crypto;
using tessaly::platform::fileStatus;
namespace fs = std::filesystem;

class FileJob : public testing::Test
{
protected:
    void SetUp() override
    {
        folder.write("plain", content);
        ASSERT_TRUE(encrypt("plain", "encrypted").done());
        observer = {};
    }

    template <class Cipher>
    FileJobOutcome run(Cipher& cipher, const char* input, const char* output)
    {
        request.password = tessaly::SecretText(password);
        request.cost = {1, 64, 4}; // a wrong password is tried on a sealed file, too
        request.input = folder.at(input);
        request.output = folder.at(output);
        return runFileJob(*cipher, request, observer);
    }
    FileJobOutcome encrypt(const char* from, const char* to) { return run(ciphers.encryptor, from, to); }
    FileJobOutcome decrypt(const char* from, const char* to) { return run(ciphers.decryptor, from, to); }

    test::TempFolder folder;
    std::string content = std::string(100000, 'x') + "end";
    test::Job ciphers{"Threefish-512"};
    const char* password = "secret";
    FileJobRequest request;
    test::JobWatch observer;
};

TEST_F(FileJob, TellsWhatItReadAndMade)
{
    const FileJobOutcome outcome = decrypt("encrypted", "plain2");
    EXPECT_TRUE(outcome.done());
    EXPECT_FALSE(outcome.outputDeleted);
    EXPECT_EQ(observer.calls, "sw");
    EXPECT_EQ(observer.total, fileStatus(folder.at("encrypted")).size);
    EXPECT_TRUE(outcome.input.place->names(outcome.input.status));
    EXPECT_TRUE(outcome.output.place->names(outcome.output.status));
    EXPECT_EQ(test::readFile(folder / "plain2"), content);
    EXPECT_EQ(fs::status(folder / "plain2").permissions(), fs::perms(0600));
}

TEST_F(FileJob, TheSecretGoesAsSoonAsItCan)
{
    for (const bool encrypting : {true, false}) {
        std::string seen;
        observer.onCall = [&](char call) {
            seen += call;
            if (call == 's') { // so that there is progress to tell of
                const auto start = std::chrono::steady_clock::now();
                while (std::chrono::steady_clock::now() - start <=
                       std::chrono::milliseconds(DefaultProgressInterval))
                    std::this_thread::yield();
            }
            EXPECT_EQ(request.password.empty(), encrypting || call != 's') << call;
        };
        request.key = request.iv = request.root.salt = request.root.bytes = {1, 2, 3};
        EXPECT_TRUE((encrypting ? encrypt("plain", "out") : decrypt("out", "plain2")).done());
        EXPECT_TRUE(seen.starts_with("sp") && seen.ends_with('w')) << seen;
        EXPECT_TRUE(request.key.empty() && request.iv.empty() && request.root.salt.empty() &&
                    request.root.bytes.empty());
    }
    password = "wrong";
    request.key = request.iv = {1, 2, 3};
    observer = {};
    EXPECT_FALSE(decrypt("encrypted", "plain3").done());
    EXPECT_TRUE(request.password.empty() && request.key.empty() && request.iv.empty());
}

TEST_F(FileJob, RemovesNothingFirstThatIsNoFormerOutput)
{
    request.existing = ExistingOutput::RemoveFirst;
    fs::create_symlink("nowhere", folder / "link");
    fs::create_symlink("plain", folder / "link to a file");
    fs::create_hard_link(folder / "encrypted", folder / "hard");
    for (const char* name : {"link", "link to a file", "hard", "encrypted"}) {
        const FileJobOutcome outcome = decrypt("encrypted", name);
        EXPECT_FALSE(outcome.done() || outcome.outputDeleted != (name[0] == 'l'));
        EXPECT_TRUE(outcome.failedAtOutput());
        EXPECT_EQ(outcome.step == JobStep::RemoveFormerOutput, name[0] != 'l');
        EXPECT_TRUE(fs::exists(fs::symlink_status(folder / name))) << name;
    }
}

/// How a job ends, by what stood at the output's path, and what is told and left of it.
TEST_F(FileJob, LeavesAndTellsWhatItShould)
{
    using enum ExistingOutput;
    enum End { Success, WrongKey, StopAtStart, StopAtFlush, NoInput, OutputComes, FolderMoves, InputMoves };
    const struct
    {
        const char* name;
        ExistingOutput existing;
        bool formerThere;
        End end;
        bool deletedTold;
        const char* left; ///< at the path: nothing, the former, the new or another's
    } rows[] = {
        {"new", Keep, false, Success, false, "new"},
        {"kept", Keep, true, Success, true, "former"},
        {"kept, wrong key", Keep, true, WrongKey, false, "former"},
        {"wrong key", Keep, false, WrongKey, false, ""},
        {"stopped before a byte", Keep, false, StopAtStart, false, ""},
        {"stopped at the flush", Keep, false, StopAtFlush, true, ""},
        {"another's comes", Keep, false, OutputComes, true, "another's"},
        {"folder moves", Keep, false, FolderMoves, true, ""},
        {"removed first", RemoveFirst, true, Success, false, "new"},
        {"removed first, wrong key", RemoveFirst, true, WrongKey, true, ""},
        {"removed first, no input", RemoveFirst, true, NoInput, true, ""},
        {"removed first, none there", RemoveFirst, false, WrongKey, false, ""},
        {"removed first, another's comes", RemoveFirst, true, OutputComes, true, "another's"},
        {"replaced", ReplaceAtEnd, true, Success, false, "new"},
        {"not replaced, wrong key", ReplaceAtEnd, true, WrongKey, false, "former"},
        {"not replaced, no input", ReplaceAtEnd, true, NoInput, false, "former"},
        {"not replaced, stopped", ReplaceAtEnd, true, StopAtFlush, true, "former"},
        {"not replaced, as the input stands there", ReplaceAtEnd, true, InputMoves, true, "input"},
    };
    const std::string encrypted = test::readFile(folder / "encrypted");
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        fs::remove_all(folder / "dir");
        fs::remove_all(folder / "moved");
        fs::create_directory(folder / "dir");
        if (row.formerThere)
            folder.write("dir/out", "former");
        password = row.end == WrongKey ? "wrong" : "secret";
        request.existing = row.existing;
        observer = {};
        observer.cancelAfter = row.end == StopAtStart ? 's' : row.end == StopAtFlush ? 'w' : ' ';
        observer.onCall = [&](char call) {
            if (call == 'w' && row.end == OutputComes)
                folder.write("dir/out", "another's");
            if (call == 'w' && row.end == FolderMoves)
                fs::rename(folder / "dir", folder / "moved");
            if (call == 'w' && row.end == InputMoves)
                fs::rename(folder / "encrypted", folder / "dir/out");
        };
        const FileJobOutcome outcome = decrypt(row.end == NoInput ? "absent" : "encrypted", "dir/out");
        EXPECT_EQ(outcome.done(), row.left == std::string("new"));
        EXPECT_EQ(outcome.outputDeleted, row.deletedTold);
        const std::string left = test::readFile(folder / "dir/out");
        EXPECT_EQ(left == content ? "new" : left == encrypted ? "input" : left, row.left);
        EXPECT_TRUE(row.end != FolderMoves || fs::is_empty(folder / "moved"));
        for (const auto& entry : fs::directory_iterator(folder / (row.end == FolderMoves ? "moved" : "dir")))
            EXPECT_EQ(entry.path().filename(), "out");
    }
}

TEST_F(FileJob, AnEncryptedFileIsForNobodyWhoCouldNotReadThePlainOne)
{
    const mode_t mask = ::umask(0);
    ::umask(mask);
    for (const unsigned mode : {0600U, 0640U, 0644U, 0666U, 0400U}) {
        fs::permissions(folder / "plain", fs::perms(mode));
        fs::remove(folder / "out");
        EXPECT_TRUE(encrypt("plain", "out").done());
        EXPECT_EQ(fs::status(folder / "out").permissions(), fs::perms(mode & ~mask));
    }
}

} // namespace
