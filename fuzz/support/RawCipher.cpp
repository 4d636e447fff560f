#include "fuzz/support/RawCipher.h"

#include "crypto/cryptopp/CSymmetricEngine.h"
#include "crypto/cryptopp/Ciphers.h"
#include "crypto/format/FileHeader.h"
#include "fuzz/support/Require.h"

namespace fuzz {

namespace {

using namespace tessaly::cryptopp;
using tessaly::crypto::ICipherEngine;

template <class Engine>
std::unique_ptr<ICipherEngine> make()
{
    return std::make_unique<Engine>();
}

template <class Cipher, std::uint32_t Id, std::uint32_t Key, std::uint32_t Iv, std::uint32_t Block>
constexpr RawCipher row()
{
    return {Id,
            Key,
            Iv,
            Block,
            make<CSymmetricEngine<typename Cipher::Encryption, Id, Key, Iv, Block, 0>>,
            make<CSymmetricEngine<typename Cipher::Decryption, Id, Key, Iv, Block, 0>>};
}

template <class Cipher, std::uint32_t Id, std::uint32_t Key, std::uint32_t Block>
constexpr RawCipher cbc()
{
    return row<CryptoPP::CBC_Mode<Cipher>, Id, Key, Block, Block>();
}

constexpr RawCipher Ciphers[] = {
    row<CryptoPP::PanamaCipher<CryptoPP::LittleEndian>, 50, 32, 32, 0>(),
    row<CryptoPP::Salsa20, 151, 32, 8, 0>(),
    cbc<CryptoPP::CAST128, 500, 16, 8>(),
    cbc<CryptoPP::Rijndael, 252, 32, 16>(),
    cbc<CryptoPP::SHACAL2, 902, 32, 32>(),
    cbc<CryptoPP::Threefish512, 1011, 64, 64>(),
    cbc<CryptoPP::Threefish1024, 1012, 128, 128>(),
};

} // namespace

std::span<const RawCipher> rawCiphers()
{
    return Ciphers;
}

Bytes processed(RawCipher::Maker maker, const tessaly::SecretBytes& key, const tessaly::SecretBytes& iv,
                Bytes bytes)
{
    const auto engine = maker();
    bytes.resize(tessaly::crypto::roundDown(bytes.size(), engine->blockLength()));
    require(engine->setKey(key, iv).ok(), "the cipher takes the key");
    if (!bytes.empty())
        require(engine->process(bytes.data(), bytes.data(), bytes.size()).ok(), "the cipher works");
    return bytes;
}

} // namespace fuzz
