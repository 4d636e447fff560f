#include "crypto/cipher/CipherRun.h"

#include "crypto/format/FileHeader.h"

#include <exception>

namespace tessaly::crypto {

namespace {

constexpr std::uint32_t SmallestChunk = 8;
/// Crypto++'s error type for anything that is not an exception of its own.
constexpr std::uint32_t OtherError = 6;

CryptoResult checkArguments(const CipherTask& task, const ICipherEngine& engine)
{
    if (task.in == nullptr)
        return err::NoInputStream;
    if (task.out == nullptr)
        return err::NoOutputStream;
    if (task.chunkSize < SmallestChunk)
        return err::ChunkTooSmall;
    if (task.key.size() != engine.keyLength())
        return err::KeyLengthDiffers;
    if (task.iv.size() != engine.ivLength())
        return err::IvLengthDiffers;
    return {};
}

bool allocate(SecretBytes& buffer, std::uint64_t size)
{
    try {
        buffer.resize(size);
    } catch (const std::exception&) {
        return false;
    }
    return true;
}

/// Calls something of the caller's or of a library; what it throws becomes a result.
template <class Call>
CryptoResult guarded(Call call) noexcept
{
    try {
        return call();
    } catch (...) {
        return {ResultCode{err::CategoryCryptoPP, OtherError}, err::library(err::ProcessingFailed)};
    }
}

} // namespace

CryptoResult runOperation(const CipherTask& task, ICipherEngine& engine, OperationState& state,
                          CryptoResult (*work)(CipherRun&))
{
    if (const CryptoResult refused = checkArguments(task, engine); !refused.ok())
        return refused;
    if (!state.begin())
        return err::Busy;
    CryptoResult result = guarded([&] {
        if (task.callback)
            task.callback->started(task.userData);
        CipherRun run(task, engine, state);
        return work(run);
    });
    const CryptoResult reported = guarded([&] {
        if (task.callback)
            task.callback->finished(state.isStopRequested(), result, task.userData);
        return CryptoResult();
    });
    if (result.ok())
        result = reported;
    state.end(result);
    return result;
}

CipherRun::CipherRun(const CipherTask& task, ICipherEngine& engine, const OperationState& state)
    : m_task(task),
      m_engine(engine),
      m_state(state),
      m_chunkSize(effectiveChunkSize(task.chunkSize, engine.blockLength()))
{
}

CryptoResult CipherRun::prepare()
{
    if (const CryptoResult keyed = m_engine.setKey(m_task.key, m_task.iv); !keyed.ok())
        return keyed;
    const std::uint64_t size = m_chunkSize + m_engine.extraRoom();
    if (!allocate(m_plain, size))
        return err::FirstBufferAllocation;
    if (!allocate(m_cipher, size))
        return err::SecondBufferAllocation;
    return {};
}

CryptoResult CipherRun::read(std::uint8_t* buffer, std::uint64_t count)
{
    while (count > 0) {
        std::int64_t got = 0;
        if (!m_task.in->read(buffer, static_cast<std::int64_t>(count), got) || got < 1)
            return {err::ReadStreamFailed, m_task.in->lastError()};
        buffer += got;
        count -= static_cast<std::uint64_t>(got);
    }
    return {};
}

CryptoResult CipherRun::write(const std::uint8_t* buffer, std::uint64_t count)
{
    const auto asked = static_cast<std::int64_t>(count);
    if (m_task.out->write(buffer, asked) < asked)
        return {err::WriteStreamFailed, m_task.out->lastError()};
    return {};
}

void CipherRun::report(std::uint64_t processed, std::uint64_t total)
{
    if (m_task.callback == nullptr || isStopRequested())
        return;
    const auto now = Clock::now();
    if (now - m_lastReport <= std::chrono::milliseconds(m_task.intervalMs))
        return;
    m_lastReport = now;
    const auto percent =
        static_cast<float>(static_cast<double>(processed) * 100 / static_cast<double>(total));
    m_task.callback->progress(static_cast<std::int64_t>(processed), percent, m_task.userData);
}

} // namespace tessaly::crypto
