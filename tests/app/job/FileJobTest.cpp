#include "app/job/CFileJob.h"
#include "app/job/CMsgDispatcher.h"
#include "crypto/cryptopp/CCipherFactory.h"
#include "lib/err/ErrorCodes.h"
#include "lib/sync/Signal.h"
#include "support/TempFolder.h"

#include <QtTest>
#include <gtest/gtest.h>

using namespace thisapp;
using namespace tessaly;
namespace fs = std::filesystem;

namespace {

constexpr AlgSelection Serpent{1, 452};
constexpr crypto::Argon2Cost Cheap{1, 32, 4};
constexpr std::int64_t ManyChunks = 4 << 20;

/// Takes what is written, and holds its writer up from the first write until it is opened.
class Gate final : public io::OStreamBytes
{
public:
    std::int64_t write(const void*, std::int64_t count) override
    {
        std::ignore = m_reached.set();
        std::ignore = m_open.wait();
        written += count;
        return count;
    }
    ResultCode lastError() const override { return {}; }
    bool isReached() { return m_reached.wait(240'000); }
    void open() { std::ignore = m_open.set(); }

    std::int64_t written = 0;

private:
    sync::Signal m_reached;
    sync::Signal m_open;
};

class FileJobTest : public ::testing::TestWithParam<Operation>
{
protected:
    FileJobTest()
    {
        folder.write("plain", std::string(ManyChunks, 'x'));
        for (const auto news :
             {&CMsgDispatcher::notifyEncryptFinished, &CMsgDispatcher::notifyInputRemovalFinished}) {
            QObject::connect(
                &dispatcher, news, &dispatcher, [this] { atEnd(); }, Qt::DirectConnection);
            QObject::connect(&dispatcher, news, &dispatcher, [this] { ++ends; });
        }
    }

    SEncryptData request(Operation operation, const char* input, const char* output) const
    {
        SEncryptData data;
        data.operation = operation;
        data.selection = Serpent;
        data.request.input = folder.at(input);
        data.request.output = folder.at(output);
        data.request.password = SecretText("secret");
        data.request.cost = Cheap;
        return data;
    }
    bool waitForEnd()
    {
        const int before = ends;
        const bool ended = QTest::qWaitFor([&] { return ends > before; }, 240'000);
        job.finish();
        return ended;
    }
    /// The outcome of a whole job.
    crypto::FileJobOutcome run(SEncryptData data)
    {
        EXPECT_TRUE(job.prepare(data.operation, data.selection));
        EXPECT_TRUE(job.start(std::move(data)).ok());
        EXPECT_TRUE(waitForEnd());
        return job.data().outcome;
    }

    int ends = 0;
    std::function<void()> atEnd = [] {}; ///< on the worker's thread
    test::TempFolder folder;
    cryptopp::CEncryptorFactory encryptors;
    cryptopp::CDecryptorFactory decryptors;
    CMsgDispatcher dispatcher;
    CFileJob job{encryptors, decryptors, dispatcher};
};

INSTANTIATE_TEST_SUITE_P(, FileJobTest, ::testing::Values(Operation::Encrypt, Operation::Decrypt));

TEST_P(FileJobTest, StopsOnceAndTheNextOneRuns)
{
    ASSERT_TRUE(run(request(Operation::Encrypt, "plain", "encrypted")).done());
    const char* input = GetParam() == Operation::Encrypt ? "plain" : "encrypted";
    Gate gate;
    SEncryptData held = request(GetParam(), input, "out");
    held.request.sink = &gate;
    ASSERT_TRUE(job.prepare(GetParam(), Serpent));
    ASSERT_TRUE(job.start(std::move(held)).ok());
    ASSERT_TRUE(gate.isReached());
    EXPECT_TRUE(job.isRunning() && job.isStoppable());
    EXPECT_EQ(job.progress().phase, JobPhase::Processing);
    EXPECT_TRUE(job.data().request.password.empty()) << "the worker has it";
    EXPECT_FALSE(job.end(1)) << "it hangs";
    EXPECT_TRUE(job.isRunning() && !job.isStoppable()) << "it is stopped already";
    gate.open();
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(job.data().outcome.cancelled);
    EXPECT_LT(gate.written, ManyChunks);
    EXPECT_FALSE(job.isRunning() || job.isStoppable());
    EXPECT_TRUE(job.end(0));

    EXPECT_TRUE(run(request(GetParam(), input, "out")).done()) << job.data().errorText;
    EXPECT_TRUE(fs::exists(folder / "out"));
}

TEST_P(FileJobTest, TellsWhyItCouldNotDoIt)
{
    const bool encrypts = GetParam() == Operation::Encrypt;
    ASSERT_TRUE(job.prepare(encrypts ? Operation::Decrypt : Operation::Encrypt, Serpent));
    ASSERT_TRUE(job.start(request(GetParam(), "plain", "out")).ok());
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(job.data().outcome.result.first(), err::library(err::EngineNotInitialized));
    EXPECT_NE(job.data().errorText, "");
    EXPECT_FALSE(job.prepare(GetParam(), {1, 7})) << "no such algorithm";
}

/// On the worker's thread, whatever its owner is busy with.
TEST_F(FileJobTest, TellsOfEveryPhaseUpToTheRemovalAndLosesNoNews)
{
    std::vector<JobPhase> phases;
    std::vector<std::int64_t> processed;
    const auto note = [&] {
        const JobProgress now = job.progress();
        if (phases.empty() || phases.back() != now.phase)
            phases.push_back(now.phase);
        processed.push_back(now.processed);
    };
    for (const auto news : {&CMsgDispatcher::notifyEncryptStarted, &CMsgDispatcher::notifyEncryptProgress})
        QObject::connect(&dispatcher, news, &dispatcher, note, Qt::DirectConnection);
    int attempts = 0;
    atEnd = [&attempts] {
        if (++attempts % 3 != 0)
            throw std::bad_alloc();
    };
    SEncryptData sealed = request(Operation::Encrypt, "plain", "sealed");
    sealed.request.seal = true;
    ASSERT_TRUE(run(std::move(sealed)).done());
    using enum JobPhase;
    EXPECT_EQ(phases, (std::vector{DerivingKey, Processing, Flushing}));
    EXPECT_EQ(processed.front(), 0);
    EXPECT_EQ(processed.back(), ManyChunks);

    const SEncryptData ended = job.data();
    job.clear();
    EXPECT_EQ(job.data().outcome.output.place, nullptr) << "its folder cannot be ejected";
    ASSERT_TRUE(job.startInputRemoval(ended).ok());
    EXPECT_TRUE(job.isRunning() && !job.isStoppable()) << "a removal heeds no stop";
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(job.inputRemoval().removed);
    EXPECT_EQ(job.data().outcome.input.place, nullptr);
    EXPECT_FALSE(fs::exists(folder / "plain"));

    SEncryptData wrong = request(Operation::Decrypt, "sealed", "out");
    wrong.selection = DefaultAlgSelection;
    EXPECT_FALSE(run(std::move(wrong)).root.bytes.empty()) << "for the algorithm that fits";
    job.clear();
    EXPECT_TRUE(job.data().outcome.root.bytes.empty());
}

} // namespace
