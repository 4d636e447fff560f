#include "crypto/cipher/Pipeline.h"

#include "crypto/Guard.h"
#include "crypto/format/FileHeader.h"

#include <algorithm>
#include <exception>

namespace tessaly::crypto {

namespace {

/// Reading, processing and writing at the same time.
constexpr std::size_t HelpersOfAChain = 2;
/// Beyond this the disk is the limit.
constexpr std::size_t MostHelpers = 12;

} // namespace

Pipeline::Pipeline(CipherRun& run, const Rest& rest)
    : m_run(run),
      m_rest(rest),
      m_slots(run.plan().slots),
      m_end((rest.count + run.plan().pieceSize - 1) / run.plan().pieceSize)
{
}

CryptoResult Pipeline::run()
{
    if (m_run.isStopRequested())
        return {};
    startHelpers();
    work(m_run.engine(), true);
    m_helpers.clear();
    return m_result;
}

/// As many as can be had; without any the calling thread does it all.
void Pipeline::startHelpers()
{
    if (m_slots.size() == 1 || m_end < 2)
        return;
    const std::size_t cores = std::thread::hardware_concurrency();
    try {
        while (m_engines.size() < std::min(cores, MostHelpers))
            if (auto engine = m_run.furtherEngine())
                m_engines.push_back(std::move(engine));
            else
                break;
        const std::size_t count = m_engines.empty() ? HelpersOfAChain : m_engines.size();
        m_helpers.reserve(count);
        for (std::size_t i = 0; i < count; ++i) {
            ICipherEngine& engine = i < m_engines.size() ? *m_engines[i] : m_run.engine();
            m_helpers.emplace_back([this, &engine] { work(engine, false); });
        }
    } catch (const std::exception&) {
    }
}

void Pipeline::work(ICipherEngine& engine, bool isCaller)
{
    for (;;) {
        std::unique_lock lock(m_lock);
        if (isCaller)
            report(lock);
        const Task task = takeTask();
        if (task.step == Step::End)
            return;
        if (task.step == Step::Wait) {
            m_changed.wait(lock);
            continue;
        }
        lock.unlock();
        const CryptoResult result =
            guarded(err::library(err::ProcessingFailed), [&] { return perform(task, engine); });
        const bool isStopped = m_run.isStopRequested();
        lock.lock();
        settle(task, result);
        if (isStopped && task.step == Step::Write)
            endAt(m_written, {});
    }
}

Pipeline::Task Pipeline::takeTask()
{
    const bool mayProcess = !m_engines.empty() || !m_isProcessing;
    // The slot before that of the first unwritten piece stays as it is, for its last cipher block.
    const std::uint64_t readAhead = std::max<std::uint64_t>(m_slots.size() - 1, 1);
    if (m_written >= m_end)
        return {Step::End};
    if (mayProcess && m_taken < std::min(m_read, m_end)) {
        m_isProcessing = true;
        return {Step::Process, m_taken++};
    }
    if (!m_isWriting && m_slots[slotOf(m_written)].isProcessed) {
        m_isWriting = true;
        return {Step::Write, m_written};
    }
    if (!m_isReading && m_read < std::min(m_end, m_written + readAhead)) {
        m_isReading = true;
        return {Step::Read, m_read};
    }
    return {Step::Wait};
}

CryptoResult Pipeline::perform(const Task& task, ICipherEngine& engine)
{
    switch (task.step) {
    case Step::Process:
        return process(task.piece, engine);
    case Step::Write:
        return write(task.piece);
    default:
        return read(task.piece);
    }
}

void Pipeline::settle(const Task& task, const CryptoResult& result)
{
    Slot& slot = m_slots[slotOf(task.piece)];
    switch (task.step) {
    case Step::Process:
        m_isProcessing = false;
        slot.isProcessed = true;
        break;
    case Step::Write:
        m_isWriting = false;
        slot.isProcessed = false;
        if (result.ok()) {
            ++m_written;
            m_writtenBytes += slot.count;
        }
        break;
    default:
        m_isReading = false;
        if (slot.count > 0)
            ++m_read;
        break;
    }
    if (!result.ok())
        endAt(task.step == Step::Read ? m_read : task.piece, result);
    m_changed.notify_all();
}

/// Also behind the last piece: its whole chunks may have been read before the failure.
void Pipeline::endAt(std::uint64_t piece, const CryptoResult& result)
{
    if (m_isEndKnown && piece >= m_end)
        return;
    m_isEndKnown = true;
    m_end = piece;
    m_result = result;
    m_changed.notify_all();
}

/// Chunk by chunk, as in a plain loop, though several may have been written together.
void Pipeline::report(std::unique_lock<std::mutex>& lock)
{
    while (m_reported < m_writtenBytes && m_end > 0) {
        m_reported = std::min(m_reported + m_run.chunkSize(), m_writtenBytes);
        lock.unlock();
        const CryptoResult result = guarded(err::library(err::ProcessingFailed), [this] {
            const std::uint64_t left = std::min(m_rest.count - m_reported, m_rest.fileLength);
            m_run.report(m_rest.fileLength - left, m_rest.fileLength);
        });
        const bool isStopped = m_run.isStopRequested();
        lock.lock();
        if (!result.ok())
            endAt(0, result);
        else if (isStopped)
            endAt(m_written + (m_isWriting ? 1 : 0), {});
    }
}

/// What whole chunks there are before a failure is still processed.
CryptoResult Pipeline::read(std::uint64_t piece)
{
    Slot& slot = m_slots[slotOf(piece)];
    slot.count = 0;
    std::uint8_t* buffer = m_run.input(slotOf(piece));
    const std::uint64_t wanted =
        std::min(m_run.plan().pieceSize, m_rest.count - piece * m_run.plan().pieceSize);
    const std::uint64_t padded = roundUp(wanted, m_run.blockLength());
    std::uint64_t got = 0;
    if (m_rest.padding == Padding::Added)
        std::fill(buffer + wanted, buffer + padded, std::uint8_t{0});
    const CryptoResult result = m_run.read(buffer, m_rest.padding == Padding::Added ? wanted : padded, got);
    slot.count = result.ok() ? wanted : roundDown(got, m_run.chunkSize());
    return result;
}

CryptoResult Pipeline::process(std::uint64_t piece, ICipherEngine& engine)
{
    const std::size_t slot = slotOf(piece);
    const std::uint64_t position = m_run.chunkSize() + piece * m_run.plan().pieceSize;
    if (!m_engines.empty())
        if (const CryptoResult result = engine.continueAt(position, cipherBlockBefore(piece)); !result.ok())
            return result;
    return engine.process(m_run.output(slot), m_run.input(slot),
                          roundUp(m_slots[slot].count, m_run.blockLength()));
}

CryptoResult Pipeline::write(std::uint64_t piece)
{
    const std::size_t slot = slotOf(piece);
    const std::uint64_t count = m_slots[slot].count;
    return m_run.write(m_run.output(slot),
                       m_rest.padding == Padding::Added ? roundUp(count, m_run.blockLength()) : count);
}

const std::uint8_t* Pipeline::cipherBlockBefore(std::uint64_t piece) const
{
    const std::uint64_t size = piece == 0 ? m_run.chunkSize() : m_run.plan().pieceSize;
    return m_run.input(slotOf(piece + m_slots.size() - 1)) + size - m_run.blockLength();
}

} // namespace tessaly::crypto
