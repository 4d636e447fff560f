#include "crypto/Engine.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

namespace {

using namespace test;

/// Notes every call: s(tarted), p(rogress), f(inished), F(inished after a stop).
class Recorder final : public tessaly::crypto::ICipherCallback
{
public:
    std::string calls;
    std::vector<std::int64_t> processed;
    std::vector<float> percents;
    CryptoResult result;
    void* data = nullptr;
    std::function<void()> onStarted;
    std::function<void()> onProgress;

    void started(void* userData) override
    {
        calls += 's';
        data = userData;
        if (onStarted)
            onStarted();
    }
    void progress(std::int64_t count, float percent, void* userData) override
    {
        calls += userData == data ? 'p' : '?';
        processed.push_back(count);
        percents.push_back(percent);
        if (onProgress)
            onProgress();
    }
    void finished(bool stopped, const CryptoResult& final, void* userData) override
    {
        calls += userData != data ? '?' : stopped ? 'F' : 'f';
        result = final;
    }
};

/// Both directions of one algorithm over the same small chunks; the tests go through all of them.
struct Direction
{
    Job job;
    bool isEncryption;
    std::uint64_t chunk; ///< as the engine rounds it

    Direction(const char* name, bool encryption) : job(name), isEncryption(encryption)
    {
        job.chunkSize = 60;
        chunk = tessaly::crypto::effectiveChunkSize(60, job.algorithm.record.blockLength);
    }

    Bytes data() const { return noise(4 * chunk); }
    Bytes input() const { return isEncryption ? data() : Job(job.algorithm).encrypted(data()); }
    Bytes output() const { return isEncryption ? Job(job.algorithm).encrypted(data()) : data(); }
    CryptoResult run(MemoryInput& in, MemoryOutput& out) const
    {
        return isEncryption ? job.encrypt(in, out) : job.decrypt(in, out);
    }
    /// What the first `chunks` chunks write.
    Bytes outputOf(std::size_t chunks) const
    {
        const std::size_t size = chunks == 0 ? 0 : chunks * chunk - (isEncryption ? 0 : 56);
        Bytes start = output();
        start.resize(std::min(size, start.size()));
        return start;
    }
};

std::vector<Direction> directions()
{
    std::vector<Direction> all;
    for (const char* name : {"Sosemanuk-192", "Blowfish-448", "Serpent-192", "Threefish-1024"})
        for (const bool isEncryption : {true, false})
            all.emplace_back(name, isEncryption);
    return all;
}

constexpr std::size_t Chunks = 5; ///< of 4 chunks of data and the header

/// Runs until call number `failing` of the stream fails; expects that error and the chunks before it.
void expectFailureAt(int failing, Direction direction, bool failInput)
{
    SCOPED_TRACE(std::string(direction.job.algorithm.name) + ", call " + std::to_string(failing));
    MemoryInput in(direction.input());
    MemoryOutput out;
    (failInput ? in.faults : out.faults).failAtCall = failing;
    Recorder recorder;
    direction.job.callback = &recorder;
    const CryptoResult expected(failInput ? err::ReadStreamFailed : err::WriteStreamFailed, StreamFault);
    EXPECT_EQ(direction.run(in, out), expected);
    EXPECT_EQ(recorder.result, expected);
    EXPECT_EQ(recorder.calls.front(), 's');
    EXPECT_EQ(recorder.calls.back(), 'f');
    EXPECT_EQ(out.bytes, direction.outputOf(static_cast<std::size_t>(failing - 1)));
}

TEST(Operation, EveryReadAndWriteMayFail)
{
    for (const Direction& direction : directions()) {
        MemoryInput in(direction.input());
        MemoryOutput out;
        ASSERT_EQ(direction.run(in, out), CryptoResult());
        ASSERT_EQ(in.calls, static_cast<int>(Chunks));
        ASSERT_EQ(out.calls, static_cast<int>(Chunks));
        for (int call = 1; call <= in.calls; ++call) {
            expectFailureAt(call, direction, true);
            expectFailureAt(call, direction, false);
        }
    }
}

TEST(Operation, AShrinkingInputAndAShortWriteAreErrors)
{
    for (const Direction& direction : directions()) {
        const Bytes input = direction.input();
        for (std::int64_t size = 0; size < std::ssize(input); size += 13) {
            MemoryInput in(input);
            in.shrinksTo = size;
            MemoryOutput out;
            EXPECT_EQ(direction.run(in, out), CryptoResult(err::ReadStreamFailed)) << size;
        }
        MemoryInput in(input);
        MemoryOutput out;
        out.faults.mostAtOnce = 3;
        EXPECT_EQ(direction.run(in, out), CryptoResult(err::WriteStreamFailed));
        EXPECT_EQ(out.calls, 1);
    }
}

TEST(Operation, StopsAfterTheChunkAtHand)
{
    for (const Direction& direction : directions())
        for (std::size_t chunks = 0; chunks <= Chunks; ++chunks) {
            SCOPED_TRACE(std::string(direction.job.algorithm.name) + ", " + std::to_string(chunks));
            const Job& job = direction.job;
            const auto encryptor = encryptorOf(job.algorithm);
            const auto decryptor = decryptorOf(job.algorithm);
            const auto stop = [&] { direction.isEncryption ? encryptor->stop() : decryptor->stop(); };
            stop(); // an early stop is forgotten at the start
            MemoryInput in(direction.input());
            MemoryOutput out;
            Recorder recorder;
            if (chunks == 0)
                recorder.onStarted = stop;
            out.faults.onCall = [&](int call) {
                if (static_cast<std::size_t>(call) == chunks)
                    stop();
            };
            EXPECT_EQ(direction.isEncryption ? encryptor->encrypt(&in, &out, job.key, job.iv, job.chunkSize,
                                                                  0, false, &recorder, nullptr)
                                             : decryptor->decrypt(&in, &out, job.key, job.iv, job.chunkSize,
                                                                  0, &recorder, nullptr),
                      CryptoResult());
            EXPECT_EQ(recorder.calls, "s" + std::string(chunks < 2 ? 0 : chunks - 2, 'p') + "F");
            EXPECT_EQ(out.bytes, direction.outputOf(chunks));
        }
}

TEST(Operation, ReportsItsCourseInOrder)
{
    for (Direction direction : directions()) {
        Recorder recorder;
        int mark = 0;
        direction.job.callback = &recorder;
        direction.job.userData = &mark;
        MemoryInput in(direction.input());
        MemoryOutput out;
        recorder.onStarted = [&] { EXPECT_EQ(in.calls, 0); };
        ASSERT_EQ(direction.run(in, out), CryptoResult());
        EXPECT_EQ(recorder.calls, "sppppf") << "the first chunk reports nothing";
        EXPECT_EQ(recorder.data, &mark);
        const auto total = static_cast<std::int64_t>(direction.data().size());
        const auto chunk = static_cast<std::int64_t>(direction.chunk);
        EXPECT_EQ(recorder.processed,
                  (std::vector<std::int64_t>{2 * chunk - 56, 3 * chunk - 56, 4 * chunk - 56, total}));
        EXPECT_FLOAT_EQ(recorder.percents.back(), 100);
        EXPECT_FLOAT_EQ(recorder.percents.front(),
                        static_cast<float>(2 * chunk - 56) * 100 / static_cast<float>(total));

        Recorder patient;
        direction.job.callback = &patient;
        direction.job.intervalMs = 100000;
        MemoryInput again(direction.input());
        ASSERT_EQ(direction.run(again, out), CryptoResult());
        EXPECT_EQ(patient.calls, "sf");
    }
}

TEST(Operation, AnEmptyInputGivesAnEmptyOutput)
{
    for (Direction direction : directions()) {
        Recorder recorder;
        direction.job.callback = &recorder;
        MemoryInput in({});
        MemoryOutput out;
        EXPECT_EQ(direction.run(in, out), CryptoResult());
        EXPECT_EQ(recorder.calls, "sf");
        EXPECT_EQ(out.calls, 0);
    }
}

/// All arguments are wrong; one after the other is put right.
TEST(Operation, ArgumentsAreCheckedInOrderWithoutACallback)
{
    const Job right("AES-192");
    MemoryInput memoryInput(noise(10));
    MemoryOutput out;
    Recorder recorder;
    for (int correct = 0; correct < 5; ++correct) {
        MemoryInput* in = correct > 0 ? &memoryInput : nullptr;
        MemoryOutput* output = correct > 1 ? &out : nullptr;
        const std::uint32_t chunk = correct > 2 ? 8 : 7;
        const SecretBytes key = correct > 3 ? right.key : SecretBytes(right.key.size() + 1);
        const SecretBytes iv(right.iv.size() - 1);
        const CryptoResult expected = std::array{err::NoInputStream, err::NoOutputStream, err::ChunkTooSmall,
                                                 err::KeyLengthDiffers, err::IvLengthDiffers}
                                          .at(static_cast<std::size_t>(correct));
        EXPECT_EQ(
            encryptorOf(right.algorithm)->encrypt(in, output, key, iv, chunk, 0, false, &recorder, nullptr),
            expected);
        EXPECT_EQ(decryptorOf(right.algorithm)->decrypt(in, output, key, iv, chunk, 0, &recorder, nullptr),
                  expected);
    }
    EXPECT_EQ(recorder.calls, "");
    EXPECT_EQ(memoryInput.calls + out.calls, 0);
}

TEST(Operation, AKeyThatCannotBeDerivedEndsIt)
{
    const CatalogueEntry& algorithm = *tessaly::crypto::findAlgorithm("AES-256");
    MemoryInput in(noise(10));
    MemoryOutput out;
    Recorder recorder;
    const auto derivation = err::library(err::KeyDerivationFailed);
    const CryptoResult unknownHash(err::UnknownHash, derivation);
    EXPECT_EQ(encryptorOf(algorithm)->encryptWithPassword(&in, &out, "x", 99, false, &recorder, nullptr),
              unknownHash);
    EXPECT_EQ(decryptorOf(algorithm)->decryptWithPassword(&in, &out, "x", 99, &recorder, nullptr),
              unknownHash);
    EXPECT_EQ(encryptorOf(algorithm)->encryptWithPassword(&in, &out, nullptr, false, &recorder, nullptr),
              CryptoResult(err::NullArgument, derivation));
    EXPECT_EQ(recorder.calls, "");
    EXPECT_EQ(in.calls + out.calls, 0);
}

TEST(Operation, OnlyOneRunsAtATime)
{
    const Job job("Twofish-128");
    const auto encryptor = encryptorOf(job.algorithm);
    MemoryInput in(noise(10));
    MemoryInput second(noise(10));
    MemoryOutput out;
    Recorder recorder;
    Recorder refused;
    recorder.onStarted = [&] {
        EXPECT_TRUE(encryptor->isBusy());
        EXPECT_EQ(encryptor->encrypt(&second, &out, job.key, job.iv, false, &refused, nullptr),
                  CryptoResult(err::Busy));
    };
    EXPECT_EQ(encryptor->encrypt(&in, &out, job.key, job.iv, false, &recorder, nullptr), CryptoResult());
    EXPECT_FALSE(encryptor->isBusy());
    EXPECT_EQ(recorder.calls + refused.calls, "sf");
    EXPECT_EQ(encryptor->encrypt(&second, &out, job.key, job.iv, false, &refused, nullptr), CryptoResult());
}

TEST(Operation, NoExceptionLeavesIt)
{
    const auto raise = [] { throw std::runtime_error("of the caller"); };
    const CryptoResult expected({err::CategoryCryptoPP, 6}, err::library(err::ProcessingFailed));
    for (int thrower = 0; thrower < 3; ++thrower) {
        Job job("AES-128");
        job.chunkSize = 64;
        Recorder recorder;
        MemoryInput in(noise(500));
        MemoryOutput out;
        if (thrower == 0)
            recorder.onStarted = raise;
        else if (thrower == 1)
            recorder.onProgress = raise;
        else
            in.faults.onCall = [&](int) { raise(); };
        const auto encryptor = encryptorOf(job.algorithm);
        EXPECT_EQ(encryptor->encrypt(&in, &out, job.key, job.iv, job.chunkSize, 0, false, &recorder, nullptr),
                  expected);
        EXPECT_EQ(recorder.calls.back(), 'f');
        EXPECT_EQ(recorder.result, expected);
        EXPECT_FALSE(encryptor->isBusy());
    }
}

} // namespace
