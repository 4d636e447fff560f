#include "crypto/Way.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <stdexcept>
#include <thread>

namespace {

using namespace test;

constexpr int Chunks = 5;

void forEveryWay(const std::function<void(Way&)>& action)
{
    for (const char* name : {"Sosemanuk-192", "Blowfish-448", "Serpent-192", "Threefish-1024"})
        for (const bool isEncryption : {true, false}) {
            SCOPED_TRACE(name + std::string(isEncryption ? " encrypts" : " decrypts"));
            Way way(name, isEncryption);
            action(way);
        }
}

TEST(Operation, EveryReadAndWriteMayFail)
{
    forEveryWay([](Way& way) {
        for (int call = 1; call <= Chunks; ++call)
            for (const bool reading : {true, false}) {
                const Faults fault = {.failAtCall = call};
                const Outcome outcome = reading ? way.run(fault) : way.run({}, fault);
                const CryptoResult expected(reading ? err::ReadStreamFailed : err::WriteStreamFailed,
                                            StreamFault);
                EXPECT_EQ(outcome.result, expected) << call;
                EXPECT_EQ(way.recorder.result, expected);
                EXPECT_EQ(way.recorder.calls, courseUpTo(call - 1) + "f");
                EXPECT_EQ(outcome.bytes, way.outputOf(static_cast<std::size_t>(call - 1)));
            }
        for (std::int64_t size = 0; size < std::ssize(way.input); size += 13)
            EXPECT_EQ(way.run({.endsAt = size}).result, CryptoResult(err::ReadStreamFailed)) << size;
        EXPECT_EQ(way.run({}, {.mostAtOnce = 3}).result, CryptoResult(err::WriteStreamFailed));
        for (const std::int64_t miscount : {-1000, -1, 1}) {
            EXPECT_EQ(way.run({.miscount = miscount}).result, CryptoResult(err::ReadStreamFailed));
            EXPECT_EQ(way.run({}, {.miscount = miscount}).result, CryptoResult(err::WriteStreamFailed));
        }
    });
}

TEST(Operation, StopsAfterTheChunkAtHand)
{
    forEveryWay([](Way& way) {
        for (int chunks = 0; chunks <= Chunks; ++chunks) {
            way.stop(); // an early stop is forgotten at the start
            way.recorder.onCall = [&](char) { chunks == 0 ? way.stop() : void(); };
            const Outcome outcome =
                way.run({}, {.onCall = [&](int call) { call == chunks ? way.stop() : void(); }});
            EXPECT_EQ(outcome.result, CryptoResult());
            EXPECT_EQ(way.recorder.calls, courseUpTo(chunks - 1) + "F");
            EXPECT_EQ(outcome.bytes, way.outputOf(static_cast<std::size_t>(chunks)));
        }
    });
}

TEST(Operation, ReportsItsCourseInOrder)
{
    forEveryWay([](Way& way) {
        EXPECT_EQ(way.run().bytes, way.output);
        EXPECT_EQ(way.recorder.calls, "sppppf") << "the first chunk reports nothing";
        const auto chunk = static_cast<std::int64_t>(way.chunk);
        EXPECT_EQ(way.recorder.processed,
                  (std::vector{2 * chunk - 56, 3 * chunk - 56, 4 * chunk - 56, 4 * chunk}));
        EXPECT_FLOAT_EQ(way.recorder.percents.front(),
                        static_cast<float>(2 * chunk - 56) * 25 / static_cast<float>(chunk));
        EXPECT_FLOAT_EQ(way.recorder.percents.back(), 100);

        way.job.intervalMs = 100000;
        EXPECT_EQ(way.run().bytes, way.output);
        EXPECT_EQ(way.recorder.calls, "sf") << "no report is due yet";

        way.input.clear();
        EXPECT_EQ(way.run().result, CryptoResult()) << "nothing gives nothing";
        EXPECT_EQ(way.recorder.calls, "sf");
        EXPECT_EQ(way.run().writes, 0);
    });
}

/// The interval is over once, before the second chunk is written. On a slow machine once more: such rounds
/// tell nothing.
TEST(Operation, ReportsWhenTheIntervalIsOver)
{
    using Clock = std::chrono::steady_clock;
    Way way("Twofish-256", true);
    way.job.intervalMs = 20;
    const auto spend = [](int call) {
        const auto start = Clock::now();
        while (call == 2 && Clock::now() - start <= std::chrono::milliseconds(20))
            std::this_thread::yield();
    };
    for (int round = 0; round < 100 && way.recorder.calls != "spf"; ++round)
        EXPECT_EQ(way.run({}, {.onCall = spend}).bytes, way.output);
    EXPECT_EQ(way.recorder.calls, "spf");
}

/// All arguments are wrong; one after the other is put right.
TEST(Operation, ArgumentsAreCheckedInOrderWithoutACallback)
{
    const Job right("AES-192");
    MemoryInput memoryInput(noise(10));
    MemoryOutput memoryOutput;
    Recorder recorder;
    const std::array codes = {err::NoInputStream, err::NoOutputStream, err::ChunkTooSmall,
                              err::KeyLengthDiffers, err::IvLengthDiffers};
    for (std::size_t correct = 0; correct < codes.size(); ++correct) {
        MemoryInput* in = correct > 0 ? &memoryInput : nullptr;
        MemoryOutput* out = correct > 1 ? &memoryOutput : nullptr;
        const std::uint32_t chunk = correct > 2 ? 8 : 7;
        const SecretBytes key = correct > 3 ? right.key : SecretBytes(right.key.size() + 1);
        const SecretBytes iv(right.iv.size() - 1);
        EXPECT_EQ(right.encryptor->run(in, out, key, iv, chunk, 0, false, &recorder, nullptr),
                  CryptoResult(codes[correct]));
        EXPECT_EQ(right.decryptor->run(in, out, key, iv, chunk, 0, &recorder, nullptr),
                  CryptoResult(codes[correct]));
    }
    const auto derivation = err::library(err::KeyDerivationFailed);
    EXPECT_EQ(
        right.encryptor->runWithPassword(&memoryInput, &memoryOutput, "x", 99, false, &recorder, nullptr),
        CryptoResult(err::UnknownHash, derivation));
    EXPECT_EQ(right.decryptor->runWithPassword(&memoryInput, &memoryOutput, nullptr, &recorder, nullptr),
              CryptoResult(err::NullArgument, derivation));
    EXPECT_EQ(recorder.calls, "");
    EXPECT_TRUE(memoryInput.isAtStart() && memoryOutput.calls == 0);
}

TEST(Operation, OnlyOneRunsAtATime)
{
    Way way("Twofish-128", true);
    way.recorder.onCall = [&](char call) {
        if (call != 's')
            return;
        EXPECT_TRUE(way.job.encryptor->isBusy());
        EXPECT_EQ(way.job.encrypt(way.input).result, CryptoResult(err::Busy));
    };
    EXPECT_EQ(way.run().bytes, way.output);
    EXPECT_EQ(way.recorder.calls, "sppppf");
    EXPECT_FALSE(way.job.encryptor->isBusy());
}

TEST(Operation, NoExceptionLeavesIt)
{
    const auto raise = [](auto...) { throw std::runtime_error("of the caller"); };
    const CryptoResult expected({err::CategoryCryptoPP, 6}, err::library(err::ProcessingFailed));
    for (const char thrower : {'s', 'p', 'f', 'r'}) {
        Way way("AES-128", true);
        way.recorder.onCall = [&](char call) { call == thrower ? raise() : void(); };
        EXPECT_EQ(way.run(thrower == 'r' ? Faults{.onCall = raise} : Faults{}).result, expected);
        EXPECT_EQ(way.recorder.calls.back(), 'f');
        EXPECT_EQ(way.recorder.result, thrower == 'f' ? CryptoResult() : expected);
        EXPECT_FALSE(way.job.encryptor->isBusy());
    }
}

} // namespace
