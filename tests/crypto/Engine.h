#pragma once

#include "crypto/Catalogue.h"
#include "crypto/CipherRun.h"
#include "crypto/FileHeader.h"
#include "crypto/MemoryStreams.h"
#include "crypto/cryptopp/CDecryptorFactory.h"
#include "crypto/cryptopp/CEncryptorFactory.h"
#include "lib/secret/Hex.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
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
namespace err = tessaly::err;

inline Bytes fromHex(std::string_view hex)
{
    const auto bytes = tessaly::decodeHex(hex).value();
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
    std::uint32_t state = seed * 2654435761U;
    for (std::uint8_t& byte : bytes) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<std::uint8_t>(state >> 24);
    }
    return bytes;
}

inline std::unique_ptr<tessaly::crypto::ISymmetricEncryptor> encryptorOf(const CatalogueEntry& algorithm)
{
    std::unique_ptr<tessaly::crypto::ISymmetricEncryptor> made;
    EXPECT_TRUE(tessaly::cryptopp::CEncryptorFactory().create(1, algorithm.id, &made).ok());
    return made;
}

inline std::unique_ptr<tessaly::crypto::ISymmetricDecryptor> decryptorOf(const CatalogueEntry& algorithm)
{
    std::unique_ptr<tessaly::crypto::ISymmetricDecryptor> made;
    EXPECT_TRUE(tessaly::cryptopp::CDecryptorFactory().create(1, algorithm.id, &made).ok());
    return made;
}

/// The one way through which most tests go: full form, everything in memory.
struct Job
{
    explicit Job(std::string_view name) : Job(*tessaly::crypto::findAlgorithm(name)) {}
    explicit Job(const CatalogueEntry& entry)
        : algorithm(entry),
          key(secret(noise(entry.record.keyLength, 2))),
          iv(secret(noise(entry.record.ivLength, 3)))
    {
    }

    const CatalogueEntry& algorithm;
    SecretBytes key;
    SecretBytes iv;
    std::uint32_t chunkSize = tessaly::crypto::DefaultChunkSize;
    std::uint32_t intervalMs = 0;
    bool salt = false;
    tessaly::crypto::ICipherCallback* callback = nullptr;
    void* userData = nullptr;

    CryptoResult encrypt(MemoryInput& in, MemoryOutput& out) const
    {
        return encryptorOf(algorithm)->encrypt(&in, &out, key, iv, chunkSize, intervalMs, salt, callback,
                                               userData);
    }
    CryptoResult decrypt(MemoryInput& in, MemoryOutput& out) const
    {
        return decryptorOf(algorithm)->decrypt(&in, &out, key, iv, chunkSize, intervalMs, callback, userData);
    }
    Bytes encrypted(const Bytes& plain) const
    {
        MemoryInput in(plain);
        MemoryOutput out;
        EXPECT_EQ(encrypt(in, out), CryptoResult()) << algorithm.name;
        return out.bytes;
    }
};

/// What an encryption of `data` enciphers: header, data and padding.
inline Bytes plainFile(const CatalogueEntry& algorithm, const Bytes& data)
{
    Bytes file(tessaly::crypto::HeaderSize);
    EXPECT_TRUE(tessaly::crypto::makeHeader(algorithm.id, data.size(), false,
                                            std::span<std::uint8_t, tessaly::crypto::HeaderSize>(file))
                    .ok());
    file.insert(file.end(), data.begin(), data.end());
    file.resize(tessaly::crypto::roundUp(file.size(), algorithm.record.blockLength));
    return file;
}

inline Bytes operator^(Bytes first, const Bytes& second)
{
    for (std::size_t i = 0; i < first.size(); ++i)
        first[i] ^= second.at(i);
    return first;
}

/// One block under a block cipher alone: the IV is chosen so that CBC feeds it to the cipher.
inline Bytes enciphered(const CatalogueEntry& algorithm, const Bytes& key, const Bytes& block)
{
    Job job(algorithm);
    job.key = secret(key);
    job.iv = secret(block ^ plainFile(algorithm, {0}));
    Bytes file = job.encrypted({0});
    file.resize(block.size());
    return file;
}

/// The first `count` bytes of a stream cipher's key stream.
inline Bytes keyStream(const CatalogueEntry& algorithm, const Bytes& key, const Bytes& iv, std::size_t count)
{
    Job job(algorithm);
    job.key = secret(key);
    job.iv = secret(iv);
    const Bytes zeros(count);
    Bytes stream = job.encrypted(zeros) ^ plainFile(algorithm, zeros);
    stream.resize(count);
    return stream;
}

} // namespace test
