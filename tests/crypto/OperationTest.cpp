#include "crypto/Way.h"

#include <array>
#include <chrono>
#include <stdexcept>
#include <thread>

namespace {

using namespace test;

/// The right output up to the end of a chunk, each of which but the first was told of. Gives their number.
int wholeChunks(const Way& way, const Outcome& outcome)
{
    const std::size_t header = way.isEncryption || outcome.bytes.empty() ? 0 : 56;
    const int chunks = static_cast<int>((outcome.bytes.size() + header + way.chunk - 1) / way.chunk);
    EXPECT_EQ(outcome.bytes, way.outputOf(chunks));
    EXPECT_EQ(way.recorder.calls, courseUpTo(chunks) + "f");
    EXPECT_EQ(way.recorder.result, outcome.result);
    return chunks;
}

/// Calls of both streams count the chunks alike.
TEST(Operation, TheFirstFailureOfTheStreamsIsTold)
{
    forEveryWay([](Way& way) {
        const CryptoResult readFailed(err::ReadStreamFailed, StreamFault);
        const CryptoResult writeFailed(err::WriteStreamFailed, StreamFault);
        for (int read = 1; read <= way.chunks + 1; ++read)
            for (const int write : {1, read - 1, read, way.chunks + 1}) {
                const Outcome outcome = way.run({.failAtCall = read}, {.failAtCall = write});
                const bool all = read > way.chunks && write > way.chunks;
                const bool isWrite = write > 0 && write < read;
                EXPECT_EQ(outcome.result, all ? CryptoResult() : isWrite ? writeFailed : readFailed);
                EXPECT_EQ(wholeChunks(way, outcome), std::min(isWrite ? write : read, way.chunks + 1) - 1);
            }
        for (std::size_t size = 0; size < way.input.size(); size += way.chunk / 5) {
            const Outcome outcome = way.run({.endsAt = static_cast<std::int64_t>(size)});
            EXPECT_EQ(outcome.result, CryptoResult(err::ReadStreamFailed)) << size;
            EXPECT_EQ(wholeChunks(way, outcome), (size + (way.isEncryption ? 56U : 0U)) / way.chunk);
        }
        EXPECT_EQ(way.run({}, {.mostAtOnce = 3}).result, CryptoResult(err::WriteStreamFailed));
        for (const std::int64_t miscount : {-1000000, -1, 1}) {
            EXPECT_EQ(way.run({.miscount = miscount}).result, CryptoResult(err::ReadStreamFailed));
            EXPECT_EQ(way.run({}, {.miscount = miscount}).result, CryptoResult(err::WriteStreamFailed));
        }
    });
}

TEST(Operation, StopsAfterTheChunkAtHand)
{
    forEveryWay([](Way& way) {
        for (int chunks = 0; chunks <= way.chunks; ++chunks) {
            const auto stopThere = [&](int call) { call == chunks ? way.stop() : void(); };
            way.stop(); // an early stop is forgotten at the start
            way.recorder.onCall = [&](char) { stopThere(0); };
            const Outcome outcome = way.run({}, {.onCall = stopThere});
            EXPECT_TRUE(outcome.result.ok() && way.recorder.calls.back() == 'F');
            // In a pipeline the caller may be behind with its reports.
            EXPECT_TRUE(way.chunks > 5 || way.recorder.calls == courseUpTo(chunks - 1) + "F");
            EXPECT_EQ(outcome.bytes, way.outputOf(chunks));
            EXPECT_LE(way.run({.onCall = stopThere}).writes, chunks);
        }
    });
}

TEST(Operation, ReportsItsCourseInOrderOnTheCallingThreadAndLetsNoOtherBegin)
{
    forEveryWay([](Way& way) {
        way.recorder.onCall = [&way, caller = std::this_thread::get_id()](char call) {
            EXPECT_EQ(std::this_thread::get_id(), caller);
            EXPECT_TRUE(way.isBusy());
            EXPECT_TRUE(call != 's' || way.process({}, {}).result == CryptoResult(err::Busy));
        };
        EXPECT_EQ(wholeChunks(way, way.run()), way.chunks);
        EXPECT_FALSE(way.isBusy());
        ASSERT_EQ(way.recorder.processed.size(), way.chunks - 1);
        const auto chunk = static_cast<std::int64_t>(way.chunk);
        const std::int64_t all = chunk * (way.chunks - 1);
        std::int64_t end = chunk - 56;
        for (std::size_t i = 0; i < way.recorder.processed.size(); ++i) {
            end = std::min(end + chunk, all);
            EXPECT_EQ(way.recorder.processed[i], end);
            EXPECT_FLOAT_EQ(way.recorder.percents[i],
                            static_cast<float>(end) * 100 / static_cast<float>(all));
        }
        way.job.intervalMs = 100000;
        EXPECT_EQ(way.run().bytes, way.output);
        EXPECT_EQ(way.recorder.calls, "sf") << "no report is due yet";
        way.input.clear();
        const Outcome ofNothing = way.run();
        EXPECT_TRUE(ofNothing.result.ok() && ofNothing.writes == 0 && way.recorder.calls == "sf");
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
    const SecretBytes iv(right.iv.size() - 1);
    for (std::size_t correct = 0; correct < codes.size(); ++correct) {
        MemoryInput* in = correct > 0 ? &memoryInput : nullptr;
        MemoryOutput* out = correct > 1 ? &memoryOutput : nullptr;
        const std::uint32_t chunk = correct > 2 ? 8 : 7;
        const SecretBytes key = correct > 3 ? right.key : SecretBytes(right.key.size() + 1);
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

/// Of the callback or of a stream at one of its calls.
TEST(Operation, NoExceptionLeavesIt)
{
    const auto raise = [] { throw std::runtime_error("of the caller"); };
    const CryptoResult expected({err::CategoryCryptoPP, 6}, err::library(err::ProcessingFailed));
    forEveryWay([&](Way& way) {
        for (const char thrower : {'s', 'p', 'f'}) {
            way.recorder.onCall = [&](char call) { call == thrower ? raise() : void(); };
            EXPECT_EQ(way.run().result, expected);
            EXPECT_EQ(way.recorder.calls, thrower == 's'   ? "sf"
                                          : thrower == 'p' ? "spf"
                                                           : courseUpTo(way.chunks) + "f");
            EXPECT_EQ(way.recorder.result, thrower == 'f' ? CryptoResult() : expected);
        }
        way.recorder.onCall = [](char) {};
        for (const int failing : {1, 2, 5}) {
            const Faults fault = {.onCall = [&](int call) { call == failing ? raise() : void(); }};
            EXPECT_EQ(way.run(fault).result, expected);
            EXPECT_EQ(way.run({}, fault).result, expected);
            EXPECT_EQ(way.recorder.calls.back(), 'f');
            EXPECT_FALSE(way.isBusy());
        }
    });
}

} // namespace
