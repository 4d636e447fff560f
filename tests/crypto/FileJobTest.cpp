#include "crypto/Jobs.h"
#include "support/DataRows.h"

#include <chrono>
#include <map>
#include <thread>

namespace {

using namespace tessaly::crypto;
using namespace test;
namespace fs = std::filesystem;

class FileJob : public Jobs
{
protected:
    void SetUp() override
    {
        job.emplace("Threefish-512");
        folder.write("plain", content);
        ASSERT_TRUE(encrypt("plain", "encrypted", false).done());
        existing = ExistingOutput::Keep;
    }

    const std::string content = std::string(100000, 'x') + "end";
};

TEST_F(FileJob, TellsWhatItReadAndMade)
{
    const FileJobOutcome outcome = decrypt("encrypted", "plain2");
    EXPECT_TRUE(outcome.done() && !outcome.outputDeleted);
    EXPECT_EQ(watch.calls, "sw");
    EXPECT_EQ(watch.total, std::ssize(readFile(folder / "encrypted")));
    EXPECT_TRUE(outcome.input.place->names(outcome.input.status));
    EXPECT_TRUE(outcome.output.place->names(outcome.output.status));
    EXPECT_EQ(readFile(folder / "plain2"), content);
    EXPECT_TRUE(encrypt("plain2", "for nobody else", false).done());
    for (const char* name : {"plain2", "for nobody else"})
        EXPECT_EQ(fs::status(folder / name).permissions(), fs::perms(0600));
}

/// When there is progress to tell of at the latest; however short the work is, before the disk is waited for.
TEST_F(FileJob, TheSecretGoesAsSoonAsItCan)
{
    existing = ExistingOutput::ReplaceAtEnd;
    const std::tuple<bool, bool, const char*> rows[] = {
        {true, true, "secret"}, {false, true, "secret"}, {false, false, "secret"}, {false, false, "wrong"}};
    for (const auto& [encrypting, slow, secret] : rows) {
        password = secret;
        FileJobRequest used = request(encrypting ? "plain" : "encrypted", "out");
        used.root = {{1, 2, 3}, {1, 2, 3}};
        std::string seen;
        watch.onCall = [&, isSlow = slow, isGoneAtStart = encrypting](char call) {
            seen += call;
            const auto start = std::chrono::steady_clock::now();
            while (isSlow && call == 's' &&
                   std::chrono::steady_clock::now() - start <=
                       std::chrono::milliseconds(DefaultProgressInterval))
                std::this_thread::yield();
            EXPECT_EQ(used.password.empty(), isGoneAtStart || call != 's') << call;
        };
        const FileJobOutcome outcome = encrypting ? run(*job->encryptor, used) : run(*job->decryptor, used);
        EXPECT_EQ(outcome.done(), password == "secret");
        EXPECT_TRUE(outcome.done() || !outcome.failedAtOutput());
        EXPECT_TRUE(seen.starts_with(slow ? "sp" : "s") && seen.ends_with(outcome.done() ? 'w' : 'd'))
            << seen;
        EXPECT_TRUE(used.password.empty() && used.key.empty() && used.iv.empty() && used.root.salt.empty() &&
                    used.root.bytes.empty());
    }
}

TEST_F(FileJob, RemovesNothingFirstThatIsNoFormerOutput)
{
    existing = ExistingOutput::RemoveFirst;
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

TEST_F(FileJob, LeavesAndTellsWhatItShould)
{
    const std::map<std::string, ExistingOutput> choices = {{"keep", ExistingOutput::Keep},
                                                           {"remove", ExistingOutput::RemoveFirst},
                                                           {"replace", ExistingOutput::ReplaceAtEnd}};
    const std::map<std::string, std::function<void()>> atFlush = {
        {"another's-comes", [this] { folder.write("dir/out", "another's"); }},
        {"folder-moves", [this] { fs::rename(folder / "dir", folder / "moved"); }},
        {"input-moves-there", [this] { fs::rename(folder / "encrypted", folder / "dir/out"); }},
    };
    const std::string encrypted = readFile(folder / "encrypted");
    for (const Row& row : dataRows("jobs.txt")) {
        SCOPED_TRACE(testing::PrintToString(row));
        const std::string& happens = row.at(2);
        fs::remove_all(folder / "dir");
        fs::remove_all(folder / "moved");
        fs::create_directory(folder / "dir");
        folder.write("encrypted", encrypted);
        if (!row[0].empty())
            folder.write("dir/out", row[0]);
        password = happens == "wrong-key" ? "wrong" : "secret";
        existing = choices.at(row[1]);
        watch.cancelAfter = happens == "stop-at-start" ? 's' : happens == "stop-at-flush" ? 'w' : ' ';
        watch.onCall = [&](char call) {
            call == 'w' && atFlush.contains(happens) ? atFlush.at(happens)() : void();
        };
        const FileJobOutcome outcome = decrypt(happens == "no-input" ? "absent" : "encrypted", "dir/out");
        EXPECT_EQ(outcome.done(), row.at(4) == "new");
        EXPECT_EQ(outcome.outputDeleted, row[3] == "told");
        const std::string left = readFile(folder / "dir/out");
        EXPECT_EQ(left == content ? "new" : left == encrypted ? "input" : left, row[4]);
        for (const auto& entry :
             fs::directory_iterator(folder / (fs::exists(folder / "moved") ? "moved" : "dir")))
            EXPECT_TRUE(entry.path().filename() == "out" && !fs::exists(folder / "moved"));
    }
}

} // namespace
