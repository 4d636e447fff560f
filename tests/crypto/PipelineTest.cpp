#include "crypto/Way.h"

#include <gtest/gtest.h>

#include <pthread.h>

#include <atomic>
#include <chrono>
#include <random>
#include <stdexcept>
#include <thread>

namespace {

using namespace test;

constexpr std::uint32_t Chunk = tessaly::crypto::DefaultChunkSize;
/// More than what is done on the calling thread alone.
constexpr int Chunks = 10;
/// Leaves no room for a second piece: the plain loop.
constexpr std::uint32_t OneSlot = 2 << 20;

/// A chain, and pieces that are processed apart, of block and of stream ciphers.
void forEveryWay(const std::function<void(Way&)>& action)
{
    for (const char* name : {"Threefish-1024", "Sosemanuk-256", "XSalsa20"})
        for (const bool isEncryption : {true, false}) {
            SCOPED_TRACE(name + std::string(isEncryption ? " encrypts" : " decrypts"));
            Way way(name, isEncryption, Chunk, Chunks);
            action(way);
        }
}

/// The right output up to the end of a chunk, each of which but the first was told of. Gives their number.
std::size_t wholeChunks(const Way& way, const Outcome& outcome)
{
    const std::size_t header = way.isEncryption || outcome.bytes.empty() ? 0 : 56;
    const std::size_t chunks = (outcome.bytes.size() + header + Chunk - 1) / Chunk;
    EXPECT_EQ(outcome.bytes, way.outputOf(chunks));
    EXPECT_EQ(way.recorder.calls, courseUpTo(static_cast<int>(chunks)) + "f");
    return chunks;
}

TEST(Pipeline, MakesWhatThePlainLoopMakes)
{
    forEveryWay([](Way& way) {
        way.job.chunkSize = OneSlot;
        EXPECT_EQ(way.run().bytes, way.output);
        for (const std::uint32_t chunkSize : {100U, 50000U, 300000U}) {
            way.job.chunkSize = chunkSize;
            EXPECT_EQ(way.run({.mostAtOnce = 12345}).bytes, way.output) << chunkSize;
        }
    });
    for (const bool isEncryption : {true, false}) { // four slots, many times over
        Way way("AES-256", isEncryption, 1 << 20, 15);
        way.job.chunkSize = OneSlot;
        EXPECT_EQ(way.run().bytes, way.output);
    }
    const Job job("CAST-128");
    for (std::size_t length = 10 * Chunk - 60; length < 10 * Chunk + 4; length += 3) {
        const Bytes data = noise(length);
        EXPECT_EQ(job.decrypt(job.encrypt(data).bytes).bytes, data) << length;
    }
}

TEST(Pipeline, TellsOfEveryChunkOnTheCallingThread)
{
    forEveryWay([](Way& way) {
        way.recorder.onCall = [caller = std::this_thread::get_id()](char) {
            EXPECT_EQ(std::this_thread::get_id(), caller);
        };
        EXPECT_EQ(wholeChunks(way, way.run()), Chunks);
        for (std::int64_t i = 0; i < Chunks - 1; ++i)
            EXPECT_EQ(way.recorder.processed.at(static_cast<std::size_t>(i)),
                      std::min<std::int64_t>((i + 2) * Chunk - 56, (Chunks - 1) * Chunk));
    });
}

/// Calls of both streams count the pieces alike.
TEST(Pipeline, TheFirstFailureOfTheStreamIsTold)
{
    forEveryWay([](Way& way) {
        const CryptoResult readFailed(err::ReadStreamFailed, StreamFault);
        const CryptoResult writeFailed(err::WriteStreamFailed, StreamFault);
        const int pieces = way.run().writes;
        ASSERT_GE(pieces, 8);
        for (int read = 1; read <= pieces + 1; ++read)
            for (const int write : {1, read - 1, read, pieces + 1}) {
                const Outcome outcome = way.run({.failAtCall = read}, {.failAtCall = write});
                const bool all = read > pieces && write > pieces;
                EXPECT_EQ(outcome.result, all                         ? CryptoResult()
                                          : write > 0 && write < read ? writeFailed
                                                                      : readFailed);
                EXPECT_EQ(wholeChunks(way, outcome) == Chunks, all);
            }
        for (std::int64_t size = 0; size < std::ssize(way.input); size += 10007) {
            const Outcome outcome = way.run({.endsAt = size});
            EXPECT_EQ(outcome.result, CryptoResult(err::ReadStreamFailed));
            EXPECT_EQ(wholeChunks(way, outcome),
                      static_cast<std::size_t>(size + (way.isEncryption ? 56 : 0)) / Chunk);
        }
    });
}

TEST(Pipeline, AStopEndsItBehindThePieceAtHand)
{
    forEveryWay([](Way& way) {
        const int pieces = way.run().writes;
        for (int call = 1; call <= pieces; ++call) {
            const auto stopAtCall = [&](int count) { count == call ? way.stop() : void(); };
            const Outcome atWrite = way.run({}, {.onCall = stopAtCall});
            EXPECT_EQ(atWrite.result, CryptoResult());
            EXPECT_EQ(atWrite.writes, call);
            EXPECT_EQ(way.recorder.calls.back(), 'F');
            EXPECT_LE(way.run({.onCall = stopAtCall}).writes, call);
        }
    });
}

TEST(Pipeline, NoExceptionLeavesAnyThread)
{
    const auto raiseAt = [](int call) {
        return Faults{.onCall = [call](int count) { count == call ? throw std::runtime_error("") : void(); }};
    };
    const CryptoResult expected({err::CategoryCryptoPP, 6}, err::library(err::ProcessingFailed));
    forEveryWay([&](Way& way) {
        for (const int call : {2, 5, 7}) {
            EXPECT_EQ(way.run(raiseAt(call)).result, expected);
            EXPECT_EQ(way.run({}, raiseAt(call)).result, expected);
        }
        way.recorder.onCall = [](char name) { name == 'p' ? throw std::runtime_error("") : void(); };
        EXPECT_EQ(way.run().result, expected);
        EXPECT_EQ(way.recorder.calls, "spf");
    });
}

/// The system has no stack of that size for a thread.
TEST(Pipeline, WorksWithoutHelpers)
{
    pthread_attr_t attributes;
    std::size_t usual = 0;
    ASSERT_EQ(pthread_getattr_default_np(&attributes), 0);
    ASSERT_EQ(pthread_attr_getstacksize(&attributes, &usual), 0);
    const auto setStack = [&](std::size_t size) {
        return pthread_attr_setstacksize(&attributes, size) + pthread_setattr_default_np(&attributes);
    };
    forEveryWay([&](Way& way) {
        ASSERT_EQ(setStack(std::size_t{1} << 46), 0);
        EXPECT_ANY_THROW(std::thread([] {}).join());
        EXPECT_EQ(wholeChunks(way, way.run()), Chunks);
        ASSERT_EQ(setStack(usual), 0);
    });
}

/// Short jobs with a failure, an exception or a stop at any moment: each ends once, in order, with the
/// start of the right output.
TEST(Pipeline, EndsInOrderWhateverHappens)
{
    std::mt19937 random(1);
    const auto upTo = [&random](int most) { return std::uniform_int_distribution(0, most)(random); };
    std::vector<Way> ways;
    for (const char* name : {"AES-256", "Salsa20-128", "Sosemanuk-128"})
        for (const bool isEncryption : {true, false})
            ways.emplace_back(name, isEncryption, Chunk, Chunks);
    for (int round = 0; round < 2000; ++round) {
        Way& way = ways[static_cast<std::size_t>(round) % ways.size()];
        way.job.callback = &way.recorder;
        const int raising = upTo(25);
        const auto raise = [raising](int call) { call == raising ? throw std::runtime_error("") : void(); };
        const Faults in{.failAtCall = upTo(20), .mostAtOnce = 20000 + upTo(100000), .onCall = raise};
        const Faults out{.failAtCall = upTo(20)};
        std::jthread stopper;
        if (round % 2 == 0)
            stopper = std::jthread([&way, after = std::chrono::microseconds(upTo(1500))] {
                std::this_thread::sleep_for(after);
                way.stop();
            });
        const Outcome outcome = way.run(in, out);
        const std::string& calls = way.recorder.calls;
        ASSERT_TRUE(way.output.size() >= outcome.bytes.size() &&
                    std::equal(outcome.bytes.begin(), outcome.bytes.end(), way.output.begin()));
        ASSERT_EQ(calls.find_first_not_of('p', 1), calls.size() - 1);
        ASSERT_TRUE(outcome.result != CryptoResult() || calls.back() == 'F' || outcome.bytes == way.output);
        ASSERT_TRUE(std::ranges::is_sorted(way.recorder.processed));
        ASSERT_FALSE(way.job.encryptor->isBusy() || way.job.decryptor->isBusy());
    }
}

} // namespace
