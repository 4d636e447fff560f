#pragma once

#include "crypto/MemoryStreams.h"
#include "crypto/catalogue/Catalogue.h"
#include "crypto/cipher/CipherRun.h"
#include "crypto/cryptopp/CCipherFactory.h"
#include "crypto/format/FileHeader.h"
#include "lib/secret/Hex.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <random>
#include <string>
#include <string_view>

namespace tessaly::crypto {

inline void PrintTo(const CryptoResult& result, std::ostream* out)
{
    *out << '(' << result.module << ", " << result.code << "; " << result.subModule << ", " << result.subCode
         << ')';
}

} // namespace tessaly::crypto

namespace test {

using tessaly::SecretBytes;
using tessaly::crypto::CatalogueEntry;
using tessaly::crypto::CryptoResult;
using tessaly::crypto::findAlgorithm;
namespace err = tessaly::err;

inline Bytes fromHex(std::string_view hex)
{
    const auto bytes = tessaly::decodeHex(hex).value();
    return {bytes.begin(), bytes.end()};
}

inline std::string text(const Bytes& bytes)
{
    return {bytes.begin(), bytes.end()};
}

inline SecretBytes secret(const Bytes& bytes)
{
    return {bytes.begin(), bytes.end()};
}

/// Bytes without any order, the same ones in every run.
inline Bytes noise(std::size_t count, std::uint32_t seed = 1)
{
    Bytes bytes(count);
    std::ranges::generate(bytes, [random = std::mt19937(seed)]() mutable { return random() & 0xFF; });
    return bytes;
}

inline Bytes operator^(Bytes first, const Bytes& second)
{
    for (std::size_t i = 0; i < first.size(); ++i)
        first[i] ^= second.at(i);
    return first;
}

struct Outcome
{
    CryptoResult result;
    Bytes bytes;
    int writes = 0;
};

/// An encryptor and a decryptor with all that their full forms take, from memory to memory.
struct Job
{
    explicit Job(std::string_view name) : Job(*findAlgorithm(name)) {}
    explicit Job(const CatalogueEntry& entry)
        : algorithm(entry),
          key(secret(noise(entry.record.keyLength, 2))),
          iv(secret(noise(entry.record.ivLength, 3)))
    {
        EXPECT_TRUE(tessaly::cryptopp::CEncryptorFactory().create(1, entry.id, &encryptor).ok());
        EXPECT_TRUE(tessaly::cryptopp::CDecryptorFactory().create(1, entry.id, &decryptor).ok());
    }

    Outcome encrypt(MemoryInput in, const Faults& outputFaults = {}) const
    {
        MemoryOutput out(outputFaults);
        return {encryptor->run(&in, &out, key, iv, chunkSize, intervalMs, salt, callback, nullptr), out.bytes,
                out.calls};
    }
    Outcome decrypt(MemoryInput in, const Faults& outputFaults = {}) const
    {
        MemoryOutput out(outputFaults);
        return {decryptor->run(&in, &out, key, iv, chunkSize, intervalMs, callback, nullptr), out.bytes,
                out.calls};
    }

    const CatalogueEntry& algorithm;
    SecretBytes key;
    SecretBytes iv;
    std::uint32_t chunkSize = tessaly::crypto::DefaultChunkSize;
    std::uint32_t intervalMs = 0;
    bool salt = false;
    tessaly::crypto::ICipherCallback* callback = nullptr;
    std::unique_ptr<tessaly::crypto::ISymmetricEncryptor> encryptor;
    std::unique_ptr<tessaly::crypto::ISymmetricDecryptor> decryptor;
};

inline Bytes headerOf(const CatalogueEntry& algorithm, std::uint64_t length)
{
    Bytes header(tessaly::crypto::HeaderSize, 0xAA);
    EXPECT_TRUE(tessaly::crypto::makeHeader(algorithm.id, length, false,
                                            std::span<std::uint8_t, tessaly::crypto::HeaderSize>(header))
                    .ok());
    return header;
}

} // namespace test
