#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/cipher/CipherRun.h"
#include "crypto/cipher/ICipherEngine.h"

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace tessaly::crypto {

/// What becomes of the zeros that fill the last block.
enum class Padding {
    Added,
    Dropped,
};

/// A stream behind its first chunk; in bytes of plain data.
struct Rest
{
    std::uint64_t count;
    std::uint64_t fileLength; ///< of the whole plain file
    Padding padding;
};

/// Takes the rest of a stream through three steps: read, process, write. It is cut into pieces of whole
/// chunks, each in a slot of the operation's ring of buffers.
///
/// Threads: the calling one, and helpers when the ring has several slots. All do the same, whatever step
/// comes next: the cipher first, then writing, then reading ahead. With one thread, also when no helper
/// can be started, that is the plain loop. One piece at a time is read and one is written, in order; so is
/// one processed, unless the engine can process pieces apart: then each thread has an engine of its own.
/// Only the calling thread calls back.
///
/// Locks: m_lock guards what is declared below it. It is not held during a step: the piece's slot then
/// belongs to the thread that has taken the step.
///
/// End: a failed step ends the stream before its piece, a stop between two writes. Pieces before the end are
/// still written, so the failure that is told is the first one in the order of the stream.
class Pipeline
{
public:
    /// The first chunk is in the last slot.
    Pipeline(CipherRun& run, const Rest& rest);

    CryptoResult run();

private:
    enum class Step { Process, Write, Read, Wait, End };
    struct Task
    {
        Step step;
        std::uint64_t piece = 0;
    };
    struct Slot
    {
        std::uint64_t count = 0; ///< bytes of plain data
        bool isProcessed = false;
    };

    void startHelpers();
    void work(ICipherEngine& engine, bool isCaller);
    CryptoResult perform(const Task& task, ICipherEngine& engine);
    CryptoResult read(std::uint64_t piece);
    CryptoResult process(std::uint64_t piece, ICipherEngine& engine);
    CryptoResult write(std::uint64_t piece);
    void report(std::unique_lock<std::mutex>& lock);

    Task takeTask();
    void settle(const Task& task, const CryptoResult& result);
    void endAt(std::uint64_t piece, const CryptoResult& result);

    std::size_t slotOf(std::uint64_t piece) const { return piece % m_slots.size(); }
    const std::uint8_t* cipherBlockBefore(std::uint64_t piece) const;

    CipherRun& m_run;
    const Rest m_rest;
    std::uint64_t m_reported = 0;                          ///< bytes of plain data; calling thread only
    std::vector<std::unique_ptr<ICipherEngine>> m_engines; ///< of the helpers

    std::mutex m_lock;
    std::condition_variable m_changed;
    std::vector<Slot> m_slots;
    std::uint64_t m_end;              ///< the first piece that is not written
    bool m_isEndKnown = false;        ///< a failure or a stop has set it
    CryptoResult m_result;            ///< of the whole: why it ends there
    std::uint64_t m_read = 0;         ///< pieces that are read
    std::uint64_t m_taken = 0;        ///< pieces whose processing has begun
    std::uint64_t m_written = 0;      ///< pieces that are written
    std::uint64_t m_writtenBytes = 0; ///< of plain data
    bool m_isReading = false;
    bool m_isProcessing = false;
    bool m_isWriting = false;

    std::vector<std::jthread> m_helpers; ///< last, to be waited for before the rest goes
};

} // namespace tessaly::crypto
