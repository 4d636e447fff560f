#pragma once

#include "crypto/CryptoResult.h"
#include "crypto/key/ThrowAwayCipher.h"
#include "io/IRewindableBytes.h"
#include "lib/platform/File.h"

#include <atomic>
#include <filesystem>
#include <memory>

namespace tessaly::crypto {

/// Keeps the bytes of a stream whose length is not known in advance, to read them afterwards as often as
/// needed: in a file without a name, enciphered under a throw-away key, so that nothing of them reaches the
/// disk. Filled first and read then, by one thread at a time; the queries may come from any.
class Spool final : public io::IRewindableBytes
{
public:
    /// The folder is to have room for the stream. Errors are the system's, or of the random generator.
    CryptoResult open(const std::filesystem::path& folder);
    /// What stands in the buffer afterwards is of no use.
    CryptoResult append(std::uint8_t* bytes, std::size_t count);

    ResultCode rewind() override;
    bool isAtStart() const override { return m_position == 0; }
    bool isAtEnd() const override { return m_position == m_size; }
    [[nodiscard]] bool read(void* buffer, std::int64_t count, std::int64_t& countRead) override;
    std::int64_t size() const override { return m_size; }
    ResultCode lastError() const override { return m_error; }

private:
    bool fail(ResultCode error);

    platform::File m_file;
    std::unique_ptr<IThrowAwayCipher> m_cipher;
    std::atomic<std::int64_t> m_size = 0;
    std::atomic<std::int64_t> m_position = 0;
    std::atomic<ResultCode> m_error = ResultCode{};
};

} // namespace tessaly::crypto
