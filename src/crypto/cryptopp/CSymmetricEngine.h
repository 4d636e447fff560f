#pragma once

#include "crypto/Guard.h"

#include <cryptopp/modes.h>

#include "crypto/cipher/ICipherEngine.h"
#include "lib/secret/SecretHeap.h"

#include <memory>
#include <type_traits>

namespace tessaly::cryptopp {

/// One Crypto++ cipher object in one direction; lengths in bytes. `ExtraRoom` is 0 for every
/// algorithm of the catalogue.
template <class Cipher, std::uint32_t Id, std::uint32_t KeyLength, std::uint32_t IvLength,
          std::uint32_t BlockLength, std::uint32_t ExtraRoom>
class CSymmetricEngine final : public crypto::ICipherEngine, public InSecretHeap
{
public:
    std::uint32_t algorithmId() const override { return Id; }
    std::uint32_t keyLength() const override { return KeyLength; }
    std::uint32_t ivLength() const override { return IvLength; }
    std::uint32_t blockLength() const override { return BlockLength; }
    std::uint32_t extraRoom() const override { return ExtraRoom; }

    crypto::CryptoResult setKey(const SecretBytes& key, const SecretBytes& iv) override
    {
        return crypto::guarded(err::library(err::KeyingFailed), [&] {
            if (iv.empty())
                m_cipher.SetKey(key.data(), key.size());
            else
                m_cipher.SetKeyWithIV(key.data(), key.size(), iv.data(), iv.size());
        });
    }

    crypto::CryptoResult process(std::uint8_t* out, const std::uint8_t* in, std::size_t count) override
    {
        return crypto::guarded(err::library(err::ProcessingFailed),
                               [&] { m_cipher.ProcessData(out, in, count); });
    }

    std::unique_ptr<crypto::ICipherEngine> another() const override
    {
        return IsCbcDecryption || m_cipher.IsRandomAccess() ? std::make_unique<CSymmetricEngine>() : nullptr;
    }

    crypto::CryptoResult continueAt(std::uint64_t position, const std::uint8_t* blockBefore) override
    {
        return crypto::guarded(err::library(err::ProcessingFailed), [&] {
            if constexpr (IsCbcDecryption)
                m_cipher.Resynchronize(blockBefore, BlockLength);
            else
                m_cipher.Seek(position);
        });
    }

private:
    /// In CBC a plain block is made of its own cipher block and the one before it.
    static constexpr bool IsCbcDecryption = std::is_base_of_v<CryptoPP::CBC_Decryption, Cipher>;

    Cipher m_cipher;
};

template <class Cipher, std::uint32_t Id, std::uint32_t KeyLength, std::uint32_t IvLength,
          std::uint32_t BlockLength, std::uint32_t ExtraRoom>
using CSymmetricEncryptorEngine = CSymmetricEngine<Cipher, Id, KeyLength, IvLength, BlockLength, ExtraRoom>;

template <class Cipher, std::uint32_t Id, std::uint32_t KeyLength, std::uint32_t IvLength,
          std::uint32_t BlockLength, std::uint32_t ExtraRoom>
using CSymmetricDecryptorEngine = CSymmetricEngine<Cipher, Id, KeyLength, IvLength, BlockLength, ExtraRoom>;

} // namespace tessaly::cryptopp
