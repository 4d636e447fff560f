#include "crypto/Way.h"
#include "support/NewThreads.h"

#include <algorithm>
#include <atomic>
#include <random>
#include <stdexcept>
#include <thread>

namespace {

using namespace test;

constexpr std::uint32_t Chunk = tessaly::crypto::DefaultChunkSize;
/// Leaves no room for a second piece: the plain loop.
constexpr std::uint32_t OneSlot = 2 << 20;

TEST(Pipeline, MakesWhatThePlainLoopMakesWithAndWithoutHelpers)
{
    const auto compare = [](Way& way) {
        {
            const NewThreads none([] { return false; });
            EXPECT_EQ(way.run().bytes, way.output);
        }
        for (const std::uint32_t chunkSize : {OneSlot, 100U, 50000U, 300000U}) {
            way.job.chunkSize = chunkSize;
            EXPECT_EQ(way.run({.mostAtOnce = 12345}).bytes, way.output) << chunkSize;
        }
    };
    forEveryWay(compare, false);
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

/// Whose last block the next one needs while it is deciphered. Of four slots.
TEST(Pipeline, ReadsNothingIntoThePieceBeforeTheFirstUnwrittenOne)
{
    Way way("AES-256", false, 1 << 20, 15);
    std::atomic<int> writing = 0;
    std::atomic<bool> isTooFar = false;
    const auto read = [&](int call) { isTooFar = isTooFar || (writing > 0 && call > writing + 2); };
    const auto write = [&](int call) {
        writing = call;
        for (int i = 0; i < 300; ++i) // whoever else may go on does
            std::this_thread::yield();
        writing = 0;
    };
    EXPECT_EQ(way.run({.onCall = read}, {.onCall = write}).bytes, way.output);
    EXPECT_FALSE(isTooFar);
}

/// In pieces of several chunks, the last one, too.
TEST(Pipeline, WholeChunksBeforeAFailedReadAreWrittenAndTheFailureIsTold)
{
    for (const bool isEncryption : {true, false}) {
        Way way("XSalsa20", isEncryption, 4096, 80);
        for (std::size_t size = 0; size < way.input.size(); size += 10007) {
            const auto chunks = static_cast<int>((size + (isEncryption ? 56 : 0)) / way.chunk);
            const Outcome cut = way.run({.endsAt = static_cast<std::int64_t>(size)});
            EXPECT_EQ(cut.bytes, way.outputOf(chunks)) << size;
            EXPECT_FALSE(cut.result.ok()) << size;
        }
    }
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
            ways.emplace_back(name, isEncryption, Chunk, 10);
    for (int round = 0; round < 1000; ++round) {
        Way& way = ways[static_cast<std::size_t>(round) % ways.size()];
        way.job.callback = &way.recorder;
        const int raising = upTo(25);
        const auto raise = [raising](int call) { call == raising ? throw std::runtime_error("") : void(); };
        const Faults in{.failAtCall = upTo(20), .mostAtOnce = 20000 + upTo(100000), .onCall = raise};
        const int stopping = upTo(40); // or never
        const auto stop = [&way, stopping](int call) { call == stopping ? way.stop() : void(); };
        const Faults out{.failAtCall = upTo(20), .onCall = stop};
        const Outcome outcome = way.run(in, out);
        const std::string& calls = way.recorder.calls;
        ASSERT_TRUE(way.output.size() >= outcome.bytes.size() &&
                    std::equal(outcome.bytes.begin(), outcome.bytes.end(), way.output.begin()));
        ASSERT_EQ(calls.find_first_not_of('p', 1), calls.size() - 1);
        ASSERT_TRUE(outcome.result != CryptoResult() || calls.back() == 'F' || outcome.bytes == way.output);
        ASSERT_TRUE(std::ranges::is_sorted(way.recorder.processed));
        ASSERT_FALSE(way.isBusy());
    }
}

} // namespace
