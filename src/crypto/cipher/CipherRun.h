#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/cipher/BufferRing.h"
#include "crypto/cipher/CipherCallback.h"
#include "crypto/cipher/ICipherEngine.h"
#include "crypto/cipher/OperationState.h"
#include "io/IStreamBytes.h"
#include "io/OStreamBytes.h"
#include "lib/secret/Secret.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

namespace tessaly::crypto {

/// Chunk size in bytes and progress interval in milliseconds of the short forms.
inline constexpr std::uint32_t DefaultChunkSize = 32768;
inline constexpr std::uint32_t DefaultProgressInterval = 400;

/// The secret of an operation: a key, or a password and the hash that makes a key of it.
struct CipherSecret
{
    const SecretBytes* key = nullptr;         ///< null: the password is used
    const char* password = nullptr;           ///< zero-terminated
    std::optional<std::uint32_t> hashId = {}; ///< else the one for the key length
    const SecretBytes* iv = nullptr;          ///< null: zero bytes
};

/// What one encryption or decryption is asked to do.
struct CipherTask
{
    io::IStreamBytes* in;
    io::OStreamBytes* out;
    CipherSecret secret;
    bool salt;
    ICipherCallback* callback; ///< may be null
    void* userData;
    std::uint32_t chunkSize = DefaultChunkSize;         ///< bytes, at least 8
    std::uint32_t intervalMs = DefaultProgressInterval; ///< between two progress reports
};

/// A cipher's key and IV while an operation runs.
struct KeyAndIv
{
    SecretBytes key;
    SecretBytes iv;
};

/// One operation while it runs: its buffers and the steps that both directions are made of. The calling
/// thread, but for the steps and queries that a pipeline does on others, one thread at a time each.
class CipherRun
{
public:
    CipherRun(const CipherTask& task, const KeyAndIv& secret, ICipherEngine& engine,
              const OperationState& state);

    const CipherTask& task() const { return m_task; }
    ICipherEngine& engine() { return m_engine; }
    std::uint64_t blockLength() const { return m_engine.blockLength(); }
    std::uint64_t chunkSize() const { return m_chunkSize; }
    bool isStopRequested() const { return m_state.isStopRequested(); }

    /// Keys the cipher and allocates both rings of buffers for an input of `size` bytes with the header.
    CryptoResult prepare(std::uint64_t size);
    const RingPlan& plan() const { return m_plan; }
    /// What is read into each slot, and what is written out of it.
    std::uint8_t* input(std::size_t slot) { return m_input.slot(slot); }
    std::uint8_t* output(std::size_t slot) { return m_output.slot(slot); }
    /// Another engine with the same key; null where the cipher does not allow it.
    std::unique_ptr<ICipherEngine> furtherEngine() const;

    /// All of `count` bytes, or (5, 60), also for a stream that claims to have given more. `got` tells
    /// how much there is in any case.
    CryptoResult read(std::uint8_t* buffer, std::uint64_t count, std::uint64_t& got);
    /// Exactly `count` bytes, or (5, 61).
    CryptoResult write(const std::uint8_t* buffer, std::uint64_t count);
    /// Calls the progress callback when its time has come.
    void report(std::uint64_t processed, std::uint64_t total);

private:
    using Clock = std::chrono::steady_clock;

    const CipherTask& m_task;
    const KeyAndIv& m_secret;
    ICipherEngine& m_engine;
    const OperationState& m_state;
    std::uint64_t m_chunkSize;
    RingPlan m_plan{};
    BufferRing m_input;
    BufferRing m_output;
    Clock::time_point m_lastReport = Clock::now();
};

/// The two directions; each processes its whole input.
CryptoResult encryptStream(CipherRun& run);
CryptoResult decryptStream(CipherRun& run);

/// The whole of a public form: makes the key, checks the arguments, then does `work` as the one operation
/// of the object that owns `state`, between the started and finished callbacks. No exception leaves it.
CryptoResult runOperation(const CipherTask& task, ICipherEngine& engine, OperationState& state,
                          CryptoResult (*work)(CipherRun&));

} // namespace tessaly::crypto
