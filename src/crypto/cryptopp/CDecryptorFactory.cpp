#include "crypto/cryptopp/CDecryptorFactory.h"

#include "crypto/catalogue/Catalogue.h"
#include "crypto/cryptopp/CSymmetricDecryptor.h"
#include "crypto/cryptopp/CSymmetricEngine.h"
#include "crypto/cryptopp/Ciphers.h"

namespace tessaly::cryptopp {

namespace {

using namespace ciphers;

template <class Cipher, std::uint32_t Id, std::uint32_t KeyLength, std::uint32_t IvLength,
          std::uint32_t BlockLength>
std::unique_ptr<crypto::ISymmetricDecryptor> make()
{
    using Engine = CSymmetricDecryptorEngine<Cipher, Id, KeyLength, IvLength, BlockLength, 0>;
    return std::make_unique<CSymmetricDecryptor<Engine>>();
}

std::unique_ptr<crypto::ISymmetricDecryptor> makeById(std::uint32_t algorithmId)
{
    switch (algorithmId) {
#define BLOCK_CIPHER(id, name, cipher, key, block)                                                           \
    case id:                                                                                                 \
        return make<CBC_Mode<cipher>::Decryption, id, key, block, block>();
#define STREAM_CIPHER(id, name, cipher, key, iv)                                                             \
    case id:                                                                                                 \
        return make<cipher::Decryption, id, key, iv, 0>();
#include "crypto/catalogue/algorithms.def"
    default:
        return nullptr;
    }
}

} // namespace

crypto::CryptoResult CDecryptorFactory::create(std::uint32_t providerId, std::uint32_t algorithmId,
                                               std::unique_ptr<crypto::ISymmetricDecryptor>* decryptor) const
{
    if (decryptor == nullptr)
        return err::NullArgument;
    decryptor->reset();
    if (providerId != crypto::CryptoPPLibraryId)
        return err::UnknownAlgorithm;
    const crypto::CryptoResult made = guarded({}, [&] { *decryptor = makeById(algorithmId); });
    return made.ok() && *decryptor == nullptr ? crypto::CryptoResult(err::UnknownAlgorithm) : made;
}

} // namespace tessaly::cryptopp
