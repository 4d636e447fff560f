#include "crypto/cryptopp/CCipherFactory.h"

#include "crypto/Guard.h"
#include "crypto/catalogue/Catalogue.h"
#include "crypto/cryptopp/CSymmetricCipher.h"
#include "crypto/cryptopp/CSymmetricEngine.h"
#include "crypto/cryptopp/Ciphers.h"

namespace tessaly::cryptopp {

namespace {

using namespace ciphers;

// Every length in the catalogue is one that the cipher itself declares.
#define BLOCK_CIPHER(id, name, cipher, key, block, advice)                                                   \
    static_assert(cipher::BLOCKSIZE == (block) && cipher::StaticGetValidKeyLength(key) == (key), name);
#define STREAM_CIPHER(id, name, cipher, key, iv, advice)                                                     \
    static_assert(cipher::IV_LENGTH == (iv) && cipher::StaticGetValidKeyLength(key) == (key), name);
#include "crypto/catalogue/algorithms.def"

template <std::uint32_t Id, std::uint32_t KeyLength, std::uint32_t IvLength, std::uint32_t BlockLength,
          class Algorithm>
void make(std::unique_ptr<crypto::ISymmetricEncryptor>& encryptor)
{
    using Engine =
        CSymmetricEncryptorEngine<typename Algorithm::Encryption, Id, KeyLength, IvLength, BlockLength, 0>;
    encryptor = std::make_unique<CSymmetricEncryptor<Engine>>();
}

template <std::uint32_t Id, std::uint32_t KeyLength, std::uint32_t IvLength, std::uint32_t BlockLength,
          class Algorithm>
void make(std::unique_ptr<crypto::ISymmetricDecryptor>& decryptor)
{
    using Engine =
        CSymmetricDecryptorEngine<typename Algorithm::Decryption, Id, KeyLength, IvLength, BlockLength, 0>;
    decryptor = std::make_unique<CSymmetricDecryptor<Engine>>();
}

template <class Cipher>
crypto::CryptoResult makeById(std::uint32_t algorithmId, std::unique_ptr<Cipher>& cipher)
{
    switch (algorithmId) {
#define BLOCK_CIPHER(id, name, cipherClass, key, block, advice)                                              \
    case id:                                                                                                 \
        make<id, key, block, block, CBC_Mode<cipherClass>>(cipher);                                          \
        return {};
#define STREAM_CIPHER(id, name, cipherClass, key, iv, advice)                                                \
    case id:                                                                                                 \
        make<id, key, iv, 0, cipherClass>(cipher);                                                           \
        return {};
#include "crypto/catalogue/algorithms.def"
    default:
        return err::UnknownAlgorithm;
    }
}

} // namespace

template <class Cipher>
crypto::CryptoResult CCipherFactory<Cipher>::create(std::uint32_t providerId, std::uint32_t algorithmId,
                                                    std::unique_ptr<Cipher>* cipher) const
{
    if (cipher == nullptr)
        return err::NullArgument;
    cipher->reset();
    if (providerId != crypto::CryptoPPLibraryId)
        return err::UnknownAlgorithm;
    return crypto::guarded({}, [&] { return makeById(algorithmId, *cipher); });
}

template class CCipherFactory<crypto::ISymmetricEncryptor>;
template class CCipherFactory<crypto::ISymmetricDecryptor>;

} // namespace tessaly::cryptopp
