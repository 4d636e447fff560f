#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/cipher/CipherCallback.h"
#include "crypto/cipher/ICipherEngine.h"
#include "crypto/cipher/OperationState.h"
#include "io/IStreamBytes.h"
#include "io/OStreamBytes.h"
#include "lib/secret/Secret.h"

#include <chrono>
#include <cstdint>

namespace tessaly::crypto {

/// Chunk size in bytes and progress interval in milliseconds of the short forms.
inline constexpr std::uint32_t DefaultChunkSize = 32768;
inline constexpr std::uint32_t DefaultProgressInterval = 400;

/// What one encryption or decryption is asked to do.
struct CipherTask
{
    io::IStreamBytes* in;
    io::OStreamBytes* out;
    const SecretBytes& key;
    const SecretBytes& iv;
    std::uint32_t chunkSize;  ///< bytes, at least 8
    std::uint32_t intervalMs; ///< between two progress reports
    bool salt;
    ICipherCallback* callback; ///< may be null
    void* userData;
};

/// One operation while it runs: its buffers and the steps that both directions are made of.
class CipherRun
{
public:
    CipherRun(const CipherTask& task, ICipherEngine& engine, const OperationState& state);

    const CipherTask& task() const { return m_task; }
    ICipherEngine& engine() { return m_engine; }
    std::uint64_t blockLength() const { return m_engine.blockLength(); }
    std::uint64_t chunkSize() const { return m_chunkSize; }
    bool isStopRequested() const { return m_state.isStopRequested(); }

    /// Keys the cipher and allocates both buffers of one chunk.
    CryptoResult prepare();
    std::uint8_t* plain() { return m_plain.data(); }
    std::uint8_t* cipher() { return m_cipher.data(); }

    /// All of `count` bytes, or (5, 60).
    CryptoResult read(std::uint8_t* buffer, std::uint64_t count);
    /// All of `count` bytes, or (5, 61).
    CryptoResult write(const std::uint8_t* buffer, std::uint64_t count);
    /// Calls the progress callback when its time has come.
    void report(std::uint64_t processed, std::uint64_t total);

private:
    using Clock = std::chrono::steady_clock;

    const CipherTask& m_task;
    ICipherEngine& m_engine;
    const OperationState& m_state;
    std::uint64_t m_chunkSize;
    SecretBytes m_plain;
    SecretBytes m_cipher;
    Clock::time_point m_lastReport = Clock::now();
};

/// The two directions; each processes its whole input.
CryptoResult encryptStream(CipherRun& run);
CryptoResult decryptStream(CipherRun& run);

/// Checks the arguments, then does `work` as the one operation of the object that owns `state`,
/// between the started and finished callbacks. No exception leaves it.
CryptoResult runOperation(const CipherTask& task, ICipherEngine& engine, OperationState& state,
                          CryptoResult (*work)(CipherRun&));

} // namespace tessaly::crypto
