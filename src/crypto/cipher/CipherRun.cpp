#include "crypto/cipher/CipherRun.h"

#include "crypto/Guard.h"
#include "crypto/catalogue/AlgInfo.h"
#include "crypto/format/FileHeader.h"
#include "crypto/key/KeyMaterial.h"

#include <exception>
#include <utility>

namespace tessaly::crypto {

namespace {

constexpr std::uint32_t SmallestChunk = 8;
/// The key and IV that the task names, or makes of its password.
CryptoResult gatherSecret(const CipherSecret& given, const ICipherEngine& engine, KeyAndIv& secret)
{
    secret.iv = given.iv ? *given.iv : SecretBytes(engine.ivLength());
    if (given.key) {
        secret.key = *given.key;
        return {};
    }
    const std::uint32_t hashId =
        given.hashId.value_or(keyDerivationHash(engine.keyLength(), engine.ivLength()));
    const CryptoResult derived = deriveKey(secret.key, engine.keyLength(), hashId, given.password);
    if (!derived.ok())
        return {derived.first(), err::library(err::KeyDerivationFailed)};
    return {};
}

CryptoResult checkArguments(const CipherTask& task, const KeyAndIv& secret, const ICipherEngine& engine)
{
    if (task.in == nullptr)
        return err::NoInputStream;
    if (task.out == nullptr)
        return err::NoOutputStream;
    if (task.chunkSize < SmallestChunk)
        return err::ChunkTooSmall;
    if (secret.key.size() != engine.keyLength())
        return err::KeyLengthDiffers;
    if (secret.iv.size() != engine.ivLength())
        return err::IvLengthDiffers;
    return {};
}

bool allocate(BufferRing& ring, std::size_t slots, std::size_t slotSize)
{
    try {
        ring.allocate(slots, slotSize);
    } catch (const std::exception&) {
        return false;
    }
    return true;
}

/// From the start of the operation to its end; the state is not busy afterwards, whatever happens.
CryptoResult runStarted(CipherRun& run, OperationState& state, CryptoResult (*work)(CipherRun&))
{
    constexpr ResultCode Stage = err::library(err::ProcessingFailed);
    const CipherTask& task = run.task();
    state.setResult(guarded(Stage, [&] {
        if (task.callback)
            task.callback->started(task.userData);
        return work(run);
    }));
    state.setResult(guarded(Stage, [&] {
        if (task.callback)
            task.callback->finished(state.isStopRequested(), state.lastResult(), task.userData);
    }));
    return state.end();
}

} // namespace

CryptoResult runOperation(const CipherTask& task, ICipherEngine& engine, OperationState& state,
                          CryptoResult (*work)(CipherRun&))
{
    return guarded(err::library(err::ProcessingFailed), [&]() -> CryptoResult {
        KeyAndIv secret;
        if (const CryptoResult gathered = gatherSecret(task.secret, engine, secret); !gathered.ok())
            return gathered;
        if (const CryptoResult refused = checkArguments(task, secret, engine); !refused.ok())
            return refused;
        CipherRun run(task, secret, engine, state);
        if (!state.begin())
            return err::Busy;
        return runStarted(run, state, work);
    });
}

CipherRun::CipherRun(const CipherTask& task, const KeyAndIv& secret, ICipherEngine& engine,
                     const OperationState& state)
    : m_task(task),
      m_secret(secret),
      m_engine(engine),
      m_state(state),
      m_chunkSize(effectiveChunkSize(task.chunkSize, engine.blockLength()))
{
}

CryptoResult CipherRun::prepare(std::uint64_t size)
{
    if (const CryptoResult keyed = m_engine.setKey(m_secret.key, m_secret.iv); !keyed.ok())
        return keyed;
    m_plan = planRing(size, m_chunkSize);
    const std::uint64_t slotSize = m_plan.pieceSize + m_engine.extraRoom();
    if (!allocate(m_input, m_plan.slots, slotSize))
        return err::FirstBufferAllocation;
    if (!allocate(m_output, m_plan.slots, slotSize))
        return err::SecondBufferAllocation;
    return {};
}

std::unique_ptr<ICipherEngine> CipherRun::furtherEngine() const
{
    auto engine = m_engine.another();
    return engine && engine->setKey(m_secret.key, m_secret.iv).ok() ? std::move(engine) : nullptr;
}

CryptoResult CipherRun::read(std::uint8_t* buffer, std::uint64_t count, std::uint64_t& got)
{
    for (got = 0; got < count;) {
        const auto asked = static_cast<std::int64_t>(count - got);
        std::int64_t more = 0;
        if (!m_task.in->read(buffer + got, asked, more) || more < 1 || more > asked)
            return {err::ReadStreamFailed, m_task.in->lastError()};
        got += static_cast<std::uint64_t>(more);
    }
    return {};
}

CryptoResult CipherRun::write(const std::uint8_t* buffer, std::uint64_t count)
{
    const auto asked = static_cast<std::int64_t>(count);
    if (m_task.out->write(buffer, asked) != asked)
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
