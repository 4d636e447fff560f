// The search for the algorithm of a file, by its header alone, and the arithmetic of sizes behind both
// formats.

#include "crypto/catalogue/AlgInfo.h"
#include "crypto/catalogue/Catalogue.h"
#include "crypto/format/FileHeader.h"
#include "crypto/job/AlgorithmSearch.h"
#include "crypto/key/KeyMaterial.h"
#include "crypto/sealed/SealedFormat.h"
#include "fuzz/support/PlainFormat.h"
#include "fuzz/support/Require.h"
#include "fuzz/support/SealedFormat.h"
#include "fuzz/support/SilentJob.h"
#include "fuzz/support/Streams.h"

using namespace fuzz;
using namespace tessaly::crypto;

namespace {

constexpr const char* Password = "correct horse";

void checkSizes(Choices& choices)
{
    __extension__ using Wide = unsigned __int128;
    const std::uint64_t size = choices.hostileNumber(std::uint64_t{PieceSize} << choices.upTo(44));
    require(innerSize(size).has_value() == canBeSealed(size), "which sizes a sealed file can have");
    if (const auto inner = innerSize(size)) {
        const Wide pieces = *inner == 0 ? 1 : (Wide{*inner} + PieceSize - 1) / PieceSize;
        require(Wide{SealSaltSize} + *inner + pieces * TagSize == Wide{size}, "the inner file's size");
    }
    const std::uint64_t blocks[] = {0, 8, 16, 32, 64, 128};
    const std::uint64_t block = choices.PickValueInArray(blocks);
    const std::uint64_t wish = choices.ConsumeIntegral<std::uint32_t>();
    const std::uint64_t chunk = effectiveChunkSize(wish, block);
    require(chunk >= HeaderSize && chunk >= wish && chunk <= wish + HeaderSize + 3 * 128 &&
                (block == 0 || chunk % block == 0),
            "a chunk holds the header and whole blocks, and is hardly more than asked for");
}

/// A header of any cipher, and whether it is found among all of those that take such a secret.
void checkSearch(Choices& choices)
{
    const RawCipher& cipher = choices.oneOf(rawCiphers());
    FileJobRequest request;
    request.passwordMode = choices.seldom(4);
    request.password = tessaly::SecretText(Password);
    request.key = tessaly::SecretBytes(cipher.keyLength, 0x5A);
    request.iv = tessaly::SecretBytes(cipher.ivLength, 0x3C);
    request.cost = {.passes = 1, .kibibytes = 32, .lanes = 4};
    tessaly::SecretBytes key = request.key;
    tessaly::SecretBytes iv = request.iv;
    if (request.passwordMode) {
        const std::uint32_t hashId = keyDerivationHash(cipher.keyLength, cipher.ivLength);
        require(deriveKey(key, cipher.keyLength, hashId, Password).ok(), "the key can be made");
        iv = tessaly::SecretBytes(cipher.ivLength);
    }
    Bytes file = processed(cipher.encryption, key, iv, forge(choices, cipher).plaintext);
    damage(choices, file);

    ByteSource in(file, 1 + static_cast<std::int64_t>(choices.upTo(2000U)));
    request.source = &in;
    SilentJob observer;
    const FoundAlgorithm found = findAlgorithm(request, observer);
    const CryptoResult expected = readPlainFormat(cipher, key, iv, file).result;
    const bool fits =
        !file.empty() && (expected.ok() || expected == CryptoResult(tessaly::err::InputTruncated));
    require(found.algorithmId == (fits ? std::optional(cipher.id) : std::nullopt), "what is found");
    require(found.result == (fits || file.empty() ? CryptoResult() : expected), "and what is said of it");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Choices choices(data, size);
    checkSizes(choices);
    checkSearch(choices);
    return 0;
}
