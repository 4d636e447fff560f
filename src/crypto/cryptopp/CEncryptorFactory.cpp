#include "crypto/cryptopp/CEncryptorFactory.h"

#include "crypto/catalogue/Catalogue.h"
#include "crypto/cryptopp/CSymmetricEncryptor.h"
#include "crypto/cryptopp/CSymmetricEngine.h"
#include "crypto/cryptopp/Ciphers.h"

namespace tessaly::cryptopp {

namespace {

using namespace ciphers;

template <class Cipher, std::uint32_t Id, std::uint32_t KeyLength, std::uint32_t IvLength,
          std::uint32_t BlockLength>
std::unique_ptr<crypto::ISymmetricEncryptor> make()
{
    using Engine = CSymmetricEncryptorEngine<Cipher, Id, KeyLength, IvLength, BlockLength, 0>;
    return std::make_unique<CSymmetricEncryptor<Engine>>();
}

// Every length in the catalogue is one that the cipher itself declares.
#define BLOCK_CIPHER(id, name, cipher, key, block)                                                           \
    static_assert(cipher::BLOCKSIZE == (block) && cipher::StaticGetValidKeyLength(key) == (key), name);
#define STREAM_CIPHER(id, name, cipher, key, iv)                                                             \
    static_assert(cipher::IV_LENGTH == (iv) && cipher::StaticGetValidKeyLength(key) == (key), name);
#include "crypto/catalogue/algorithms.def"

std::unique_ptr<crypto::ISymmetricEncryptor> makeById(std::uint32_t algorithmId)
{
    switch (algorithmId) {
#define BLOCK_CIPHER(id, name, cipher, key, block)                                                           \
    case id:                                                                                                 \
        return make<CBC_Mode<cipher>::Encryption, id, key, block, block>();
#define STREAM_CIPHER(id, name, cipher, key, iv)                                                             \
    case id:                                                                                                 \
        return make<cipher::Encryption, id, key, iv, 0>();
#include "crypto/catalogue/algorithms.def"
    default:
        return nullptr;
    }
}

} // namespace

crypto::CryptoResult CEncryptorFactory::create(std::uint32_t providerId, std::uint32_t algorithmId,
                                               std::unique_ptr<crypto::ISymmetricEncryptor>* encryptor) const
{
    if (encryptor == nullptr)
        return err::NullArgument;
    encryptor->reset();
    if (providerId != crypto::CryptoPPLibraryId)
        return err::UnknownAlgorithm;
    const crypto::CryptoResult made = guarded({}, [&] { *encryptor = makeById(algorithmId); });
    return made.ok() && *encryptor == nullptr ? crypto::CryptoResult(err::UnknownAlgorithm) : made;
}

} // namespace tessaly::cryptopp
