// The decryptor on files of the plain format, forged by somebody who knows the key, then damaged. A second
// reader tells what has to come of each; no file asks for more memory than in proportion to its size.

#include "crypto/catalogue/Catalogue.h"
#include "crypto/cipher/CipherRun.h"
#include "crypto/cryptopp/CCipherFactory.h"
#include "fuzz/support/AllocationWatch.h"
#include "fuzz/support/PlainFormat.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/Streams.h"

#include <algorithm>

using namespace fuzz;
using namespace tessaly::crypto;

namespace {

constexpr std::uint32_t MostChunk = 65536;

void checkEncryptor(const RawCipher& cipher, const tessaly::SecretBytes& key, const tessaly::SecretBytes& iv,
                    const Forgery& forgery, const Bytes& file, std::uint32_t chunk)
{
    std::unique_ptr<ISymmetricEncryptor> encryptor;
    require(tessaly::cryptopp::CEncryptorFactory().create(CryptoPPLibraryId, cipher.id, &encryptor).ok(),
            "there is an encryptor");
    ByteSource in(forgery.data);
    ByteSink out;
    require(encryptor->run(&in, &out, key, iv, chunk, 0, false, nullptr, nullptr).ok() && out.bytes == file,
            "the encryptor writes what the second writer does");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Choices choices(data, size);
    const RawCipher& cipher = choices.oneOf(rawCiphers());
    const tessaly::SecretBytes key(cipher.keyLength, 0x5A);
    const tessaly::SecretBytes iv(cipher.ivLength, 0x3C);
    const std::uint32_t chunk =
        choices.seldom(8) ? DefaultChunkSize : 8 + choices.upTo(choices.seldom(8) ? MostChunk - 8 : 500);
    const Forgery forgery = forge(choices, cipher);
    Bytes file = processed(cipher.encryption, key, iv, forgery.plaintext);
    if (forgery.isHonest)
        checkEncryptor(cipher, key, iv, forgery, file, chunk);
    damage(choices, file);

    ByteSource in(choices, file);
    ByteSink out(StreamFault::choose(choices, file.size()));
    out.bytes.reserve(file.size());
    std::unique_ptr<ISymmetricDecryptor> decryptor;
    require(tessaly::cryptopp::CDecryptorFactory().create(CryptoPPLibraryId, cipher.id, &decryptor).ok(),
            "there is a decryptor");
    const AllocationWatch memory;
    const CryptoResult result = decryptor->run(&in, &out, key, iv, chunk, 0, nullptr, nullptr);
    require(memory.peak() <= 4 * (file.size() + chunk) + (1 << 19), "memory in proportion to the file");

    const Reading expected = readPlainFormat(cipher, key, iv, file);
    if (in.hasFailed() || out.hasFailed()) {
        require(!result.ok(), "a failed stream is told");
        require(out.bytes.size() <= expected.data.size() &&
                    std::ranges::equal(out.bytes, std::span(expected.data).first(out.bytes.size())),
                "what comes before a failure is right");
        return 0;
    }
    require(result == expected.result, "the result is that of the second reader");
    require(out.bytes == expected.data, "the data are those of the second reader");
    return 0;
}
